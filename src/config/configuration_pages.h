#pragma once

#include "config/configuration_answers.h"
#include "controls/number_box.h"
#include "controls/text_box.h"
#include "records/wizard_page.h"

#include <QScrollArea>

class frmWizConfig_Welcome : public WelcomePage {
    Q_OBJECT
public:
    frmWizConfig_Welcome(ConfigurationWizard& wizard, QWidget* parent);
};

/// The contact details that invoices print.
class frmWizConfig_Business : public MessagePage {
    Q_OBJECT
public:
    frmWizConfig_Business(ConfigurationWizard& wizard, QWidget* parent);

    CONTROL(TextBox, txtBusinessName);
    CONTROL(TextBox, txtAddress1);
    CONTROL(TextBox, txtAddress2);
    CONTROL(TextBox, txtCity);
    CONTROL(TextBox, txtState);
    CONTROL(TextBox, txtCountry);
    CONTROL(TextBox, txtPostcode);
    CONTROL(TextBox, txtPhone);
    CONTROL(TextBox, txtFax);

protected:
    bool StoreAnswers() override;

private:
    struct Field {
        TextBox* box;
        QString& answer;
    };
    const std::vector<Field> m_fields;
};

/// A name too long for its place shows its ends.
class FileNameLabel : public QLabel {
public:
    void ShowFile(const QString& file);

protected:
    void paintEvent(QPaintEvent* event) override;
};

/// Chooses the logo of the invoices and shows it in its own size.
class frmWizConfig_Logo : public MessagePage {
    Q_OBJECT
public:
    frmWizConfig_Logo(ConfigurationWizard& wizard, QWidget* parent);

    CONTROL(FileNameLabel, lblLogofilename);
    CONTROL(QPushButton, cmdBrowse);
    CONTROL(QPushButton, cmdClear);
    CONTROL(QScrollArea, picPreview);

protected:
    bool StoreAnswers() override;

private:
    void LoadLogo(const QString& file);
    void ShowLogo(const QString& file, const QPixmap& picture);
    void Browse();
    void Clear();

    ConfigurationWizard& m_wizard;
    QLabel* m_picture;
};

/// The first tax rate, the secondary tax, and whether invoices show taxes. A percentage that is no number becomes 0.
class frmWizConfig_Tax : public MessagePage {
    Q_OBJECT
public:
    frmWizConfig_Tax(ConfigurationWizard& wizard, QWidget* parent);

    CONTROL(TextBox, txtName);
    CONTROL(NumberBox, txtPercentage);
    CONTROL(QCheckBox, chkHideTaxOnInvoice);
    CONTROL(QCheckBox, chkEnableTax2);
    CONTROL(QWidget, picTax2);
    CONTROL(TextBox, txtSalesTaxName2);

protected:
    bool StoreAnswers() override;

private:
    ConfigurationWizard& m_wizard;
};

/// The next three only present what the program has; their boxes are not read.
class frmWizConfig_Barcode : public MessagePage {
    Q_OBJECT
public:
    frmWizConfig_Barcode(ConfigurationWizard& wizard, QWidget* parent);

    CONTROL(QCheckBox, chkBarcode);
};

class frmWizConfig_PickingList : public MessagePage {
    Q_OBJECT
public:
    frmWizConfig_PickingList(ConfigurationWizard& wizard, QWidget* parent);

    CONTROL(QCheckBox, chkPickingList);
};

class frmWizConfig_Cats : public MessagePage {
    Q_OBJECT
public:
    frmWizConfig_Cats(ConfigurationWizard& wizard, QWidget* parent);

    CONTROL(QCheckBox, chkCats);
};

class frmWizConfig_Complete : public FinishPage {
    Q_OBJECT
public:
    frmWizConfig_Complete(ConfigurationWizard& wizard, QWidget* parent);
};
