#include "exchange/import_preview.h"

#include "controls/layout.h"
#include "controls/message_box.h"
#include "exchange/import_records.h"
#include "inventory/name_label.h"

#include <QCoreApplication>
#include <QHeaderView>

namespace {

constexpr qint64 NoSeparator = 0;
constexpr int LinesShown = 5;

/// Lets `area` be as low as a few of the lines that it shows.
void LimitHeight(QAbstractScrollArea* area, int line)
{
    area->setMinimumHeight(LinesShown * line + 2 * area->frameWidth());
}

} // namespace

ImportWizard::ImportWizard()
    : WizardState(WizardState::Import)
    , ImportSeparator(frmWizImport_Preview::tr("(none)"))
{
}

frmWizImport_Preview::frmWizImport_Preview(ImportWizard& wizard, QWidget* parent)
    : MessagePage("frmWizImport_Preview", tr("Choose the fields to import"),
        tr("Choose the fields you want to import."), wizard, parent)
    , m_wizard(wizard)
    , m_fields(MakeFieldRows(wizard.ImportFields.size()))
{
    chkFirstLine->setText(tr("First line has field names"));
    auto* preview = new QLabel(tr("Preview:"));
    SetLabelOf(preview, g);
    LimitHeight(g, g->verticalHeader()->defaultSectionSize());
    m_progress->setAccessibleName(tr("Importing records"));
    ShowFields();
    SetContent(column({
        row({fields({{tr("String separator:"), cboSep}}), gap(12), chkFirstLine, stretch()}),
        preview,
        g,
        row({lblRows, m_progress, stretch()}),
        new QLabel(tr("Import Fields:")),
        picBack,
    }));
    QSizePolicy place = g->sizePolicy();
    place.setRetainSizeWhenHidden(true);
    g->setSizePolicy(place);
    g->hide();
    m_progress->hide();

    cboSep->AddItems({{QStringLiteral("\""), '"'}, {QStringLiteral("'"), '\''}, {QStringLiteral("#"), '#'},
        {tr("(none)"), NoSeparator}});
    SelectComboByText(cboSep, wizard.ImportSeparator);
    chkFirstLine->setChecked(wizard.ImportFirstLineNames);
    FillSources();

    m_timer->setObjectName(QStringLiteral("Timer1"));
    On(m_timer, &QTimer::timeout, this, &frmWizImport_Preview::DoImportPreview);
    On(cboSep, &ComboBox::Click, this, &frmWizImport_Preview::ReadAgain);
    On(chkFirstLine, &QCheckBox::toggled, this, &frmWizImport_Preview::ReadAgain);
    ReadAgain();
}

QList<frmWizImport_Preview::FieldRow> frmWizImport_Preview::MakeFieldRows(qsizetype count)
{
    QList<FieldRow> rows;
    for (int i = 1; i <= count; ++i) {
        const QByteArray number = QByteArray::number(i);
        rows.append({Make<QLabel>("lblTableField_" + number), Make<ComboBox>("cboImportField_" + number)});
    }
    return rows;
}

void frmWizImport_Preview::ShowFields()
{
    QGridLayout* lines = fields({});
    for (qsizetype i = 0; i < m_fields.size(); ++i) {
        const FieldRow& field = m_fields.at(i);
        ShowName(field.label, m_wizard.ImportFields.at(i).Caption);
        AddFieldLine(lines, {field.label, field.source});
    }
    picFore->setLayout(lines);
    picBack->setVerticalScrollBar(VScroll);
    picBack->setFocusPolicy(Qt::NoFocus);
    picBack->setWidgetResizable(true);
    picBack->setWidget(picFore);
    LimitHeight(picBack, picFore->sizeHint().height() / int(m_fields.size()));
}

void frmWizImport_Preview::FillSources()
{
    QList<std::pair<QString, qint64>> sources{{tr("(ignore)"), ImportField::Ignored}};
    for (int col = 0; col < g->Cols(); ++col)
        sources.append({g->TextMatrix(0, col), col});
    for (qsizetype i = 0; i < m_fields.size(); ++i) {
        ComboBox* source = m_fields.at(i).source;
        source->Clear();
        source->AddItems(sources);
        // The file may have lost the column.
        source->SetListIndex(0);
        SelectComboByData(source, m_wizard.ImportFields.at(i).SourceColumn);
    }
}

void frmWizImport_Preview::ReadAgain()
{
    m_reading.reset();
    cmdNext->setEnabled(false);
    lblRows->clear();
    m_timer->start();
}

void frmWizImport_Preview::DoImportPreview()
{
    try {
        if (!m_reading) {
            const char separator = char(cboSep->SelectedData());
            m_reading.emplace(g, ImportWizard::ImportFileName,
                separator == NoSeparator ? std::nullopt : std::optional(separator),
                chkFirstLine->isChecked() ? ImportReading::FirstLine::Titles : ImportReading::FirstLine::Cells);
        }
        const bool goesOn = m_reading->ReadPiece();
        if (m_reading->Rows() > 0)
            lblRows->setText(tr("%1 records.").arg(m_reading->Rows()));
        if (!goesOn)
            ShowPreview();
    } catch (...) {
        const RuntimeError error = CaughtError();
        m_timer->stop();
        m_reading.reset();
        MsgBox(tr("Unable to to import CSV file.") + u'\n' + error.Description(), Icon::Critical);
    }
}

void frmWizImport_Preview::ShowPreview()
{
    m_timer->stop();
    FillSources();
    m_reading.reset();
    g->show();
    cmdNext->setEnabled(true);
}

void frmWizImport_Preview::done(int result)
{
    m_timer->stop();
    m_reading.reset();
    MessagePage::done(result);
}

bool frmWizImport_Preview::StoreAnswers()
{
    m_wizard.ImportSeparator = cboSep->Text();
    m_wizard.ImportFirstLineNames = chkFirstLine->isChecked();
    for (qsizetype i = 0; i < m_fields.size(); ++i)
        m_wizard.ImportFields[i].SourceColumn = qint16(m_fields.at(i).source->SelectedData());
    DoImport();
    return true;
}

void frmWizImport_Preview::DoImport()
{
    m_progress->show();
    const auto failure = [this] {
        const Hourglass hourglass(tr("Importing the records..."));
        return ImportRecords({g->Rows() - 1, [this](int row, int col) { return g->TextMatrix(row, col); }},
            m_wizard.ImportFields, [this](int done, int total) {
                m_progress->setRange(0, total);
                m_progress->setValue(done);
                // Keys and clicks wait: the window is painted and answers the system.
                QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
            });
    }();
    if (failure)
        MsgBox(tr("Error occured when importing record %1").arg(failure->record) + u'\n' + failure->description,
            Icon::Critical);
}
