#include "config/configuration_pages.h"

#include "base/numbers.h"
#include "controls/dialogs.h"
#include "controls/focus.h"
#include "controls/layout.h"
#include "controls/message_box.h"
#include "paper/report_picture.h"
#include "sql/schema.h"

#include <QGuiApplication>
#include <QStyle>
#include <QStylePainter>
#include <QTimer>

namespace {

void SelectAllOnEntering(TextBox* box)
{
    OnFocusGained(box, [box] {
        box->selectAll();
        // The press that brought the focus sets the cursor after this.
        if (QGuiApplication::mouseButtons() != Qt::NoButton)
            QTimer::singleShot(0, box, &QLineEdit::selectAll);
    });
}

} // namespace

frmWizConfig_Welcome::frmWizConfig_Welcome(ConfigurationWizard& wizard, QWidget* parent)
    : WelcomePage("frmWizConfig_Welcome", tr("Configuration Wizard"),
        tr("Using this wizard you can configure your inventory details."), wizard, parent)
{
}

frmWizConfig_Business::frmWizConfig_Business(ConfigurationWizard& wizard, QWidget* parent)
    : MessagePage("frmWizConfig_Business", tr("Business contact details"),
        tr("Enter your business contact details, this information will be used on your invoices."), wizard, parent)
    , m_fields{
          {txtBusinessName, wizard.ConfigBusinessName},
          {txtAddress1, wizard.ConfigAddress1},
          {txtAddress2, wizard.ConfigAddress2},
          {txtCity, wizard.ConfigCity},
          {txtState, wizard.ConfigState},
          {txtCountry, wizard.ConfigCountry},
          {txtPostcode, wizard.ConfigPostCode},
          {txtPhone, wizard.ConfigPhone},
          {txtFax, wizard.ConfigFax},
      }
{
    SetContent(column({
        fields({
            {tr("Business Name:"), txtBusinessName},
            {tr("Address:"), txtAddress1},
            {tr("Address:"), txtAddress2},
            {tr("City:"), txtCity},
            {tr("State:"), txtState},
            {tr("Country:"), txtCountry},
            {tr("Zip/Post Code:"), txtPostcode},
            {tr("Phone:"), txtPhone},
            {tr("Fax:"), txtFax},
        }),
        stretch(),
    }));
    for (const Field& field : m_fields) {
        field.box->setText(field.answer);
        SelectAllOnEntering(field.box);
    }
}

bool frmWizConfig_Business::StoreAnswers()
{
    for (const Field& field : m_fields)
        field.answer = field.box->text();
    return true;
}

void FileNameLabel::ShowFile(const QString& file)
{
    setText(file);
    SetPlainToolTip(this, file);
}

void FileNameLabel::paintEvent(QPaintEvent* /*event*/)
{
    QStylePainter painter(this);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideMiddle, width());
    painter.drawItemText(rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(), shown, foregroundRole());
}

frmWizConfig_Logo::frmWizConfig_Logo(ConfigurationWizard& wizard, QWidget* parent)
    : MessagePage("frmWizConfig_Logo", tr("Your company logo"),
        tr("You can optionally select a logo to be displayed on your invoices. Click Browse to select your logo file."),
        wizard, parent)
    , m_wizard(wizard)
    , m_picture(new QLabel)
{
    cmdBrowse->setText(tr("B&rowse"));
    cmdClear->setText(tr("Clear"));
    lblLogofilename->setTextFormat(Qt::PlainText);
    lblLogofilename->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_picture->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    picPreview->setWidget(m_picture);
    picPreview->setWidgetResizable(true);
    SetContent(column({
        fields({
            {tr("Logo filename:"), lblLogofilename},
            {QString(), row({cmdBrowse, cmdClear, stretch()})},
            {tr("Logo preview:"), picPreview},
        }),
    }));
    cmdNext->setFocus();
    ShowLogo(QString(), QPixmap());
    if (!wizard.ConfigLogoFile.isEmpty())
        LoadLogo(wizard.ConfigLogoFile);

    On(cmdBrowse, &QPushButton::clicked, this, [this] { Browse(); });
    On(cmdClear, &QPushButton::clicked, this, [this] { Clear(); });
}

void frmWizConfig_Logo::LoadLogo(const QString& file)
{
    constexpr QSize NoLimit(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    const QPixmap picture = QPixmap::fromImage(ReadPicture(file, NoLimit));
    if (picture.isNull())
        MsgBox(tr("Unable to load file ") + file, Icon::Critical);
    else
        ShowLogo(file, picture);
}

void frmWizConfig_Logo::ShowLogo(const QString& file, const QPixmap& picture)
{
    m_picture->setPixmap(picture);
    lblLogofilename->ShowFile(file);
    cmdClear->setEnabled(!file.isEmpty());
}

void frmWizConfig_Logo::Browse()
{
    const QString file = OpenFileName(tr("Open"),
        tr("BMP Image (*.bmp)") + QLatin1String(";;") + tr("JPG Image (*.jpg)") + QLatin1String(";;")
            + tr("GIF Image (*.gif)"));
    if (!file.isEmpty())
        LoadLogo(file);
}

void frmWizConfig_Logo::Clear()
{
    cmdBrowse->setFocus();
    ShowLogo(QString(), QPixmap());
    // At once: Back does not bring the logo back.
    m_wizard.ConfigLogoFile.clear();
}

bool frmWizConfig_Logo::StoreAnswers()
{
    m_wizard.ConfigLogoFile = lblLogofilename->text();
    return true;
}

frmWizConfig_Tax::frmWizConfig_Tax(ConfigurationWizard& wizard, QWidget* parent)
    : MessagePage("frmWizConfig_Tax", tr("Tax information"),
        tr("Enter the tax name and percentage that can be added to items sold (you can setup multiple tax rates "
           "later)."),
        wizard, parent)
    , m_wizard(wizard)
{
    chkHideTaxOnInvoice->setText(tr("Hide tax information on invoices."));
    chkEnableTax2->setText(tr("Enable Secondary Tax"));
    txtSalesTaxName2->setPlaceholderText(tr("2nd Sales Tax"));
    QGridLayout* tax2 = fields({{tr("2nd Sales Tax Name (i.e. PST etc):"), txtSalesTaxName2}});
    tax2->setContentsMargins(0, 0, 0, 0);
    picTax2->setLayout(tax2);
    SetContent(column({
        fields({{tr("Tax Name:"), txtName}, {tr("Percentage:"), txtPercentage}}),
        chkHideTaxOnInvoice,
        chkEnableTax2,
        picTax2,
        stretch(),
    }));

    txtName->setMaxLength(LongestName);
    txtName->ShowWhole(wizard.ConfigTaxName);
    txtPercentage->setText(wizard.ConfigTaxPercent);
    txtSalesTaxName2->setText(wizard.ConfigSecondTaxName);
    chkHideTaxOnInvoice->setChecked(wizard.ConfigHideTax);
    chkEnableTax2->setChecked(wizard.ConfigSecondTaxEnable);
    picTax2->setVisible(wizard.ConfigSecondTaxEnable);

    On(chkEnableTax2, &QCheckBox::toggled, this, [this](bool enable) { picTax2->setVisible(enable); });
}

bool frmWizConfig_Tax::StoreAnswers()
{
    if (!IsNumeric(txtPercentage->text()))
        txtPercentage->setText(QStringLiteral("0"));
    m_wizard.ConfigTaxName = txtName->text();
    m_wizard.ConfigTaxPercent = txtPercentage->text();
    m_wizard.ConfigHideTax = chkHideTaxOnInvoice->isChecked();
    m_wizard.ConfigSecondTaxName = txtSalesTaxName2->text();
    m_wizard.ConfigSecondTaxEnable = chkEnableTax2->isChecked();
    return true;
}

frmWizConfig_Barcode::frmWizConfig_Barcode(ConfigurationWizard& wizard, QWidget* parent)
    : MessagePage("frmWizConfig_Barcode", tr("Enable Barcodes"),
        tr("Would you like to enable barcode scanning? This can help you save time later when adding items."), wizard,
        parent)
{
    chkBarcode->setText(tr("Enable Barcode Scanning"));
    SetContent(column({chkBarcode, stretch()}));
}

frmWizConfig_PickingList::frmWizConfig_PickingList(ConfigurationWizard& wizard, QWidget* parent)
    : MessagePage("frmWizConfig_PickingList", tr("Enable Picking Lists"),
        tr("Would you like to enable the creation of Picking Lists? Picking Lists help you to physically locate items "
           "for orders."),
        wizard, parent)
{
    chkPickingList->setText(tr("Enable Picking List"));
    SetContent(column({chkPickingList, stretch()}));
}

frmWizConfig_Cats::frmWizConfig_Cats(ConfigurationWizard& wizard, QWidget* parent)
    : MessagePage("frmWizConfig_Cats", tr("Enable Item Categories"),
        tr("Would you like to enable item Categories and Sub-categories? Categories can help you to organize your "
           "inventory items."),
        wizard, parent)
{
    chkCats->setText(tr("Enable Item Categories and Sub-categories"));
    SetContent(column({chkCats, stretch()}));
}

frmWizConfig_Complete::frmWizConfig_Complete(ConfigurationWizard& wizard, QWidget* parent)
    : FinishPage("frmWizConfig_Complete", tr("Click Finish to complete your configuration."), wizard, parent)
{
}
