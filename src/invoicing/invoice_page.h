#pragma once

#include "base/currency.h"
#include "controls/combo_box.h"
#include "controls/date_picker.h"
#include "controls/form.h"
#include "controls/number_box.h"
#include "controls/steady_label.h"
#include "controls/text_box.h"
#include "db/file_changes.h"
#include "invoicing/invoice_totals.h"
#include "invoicing/open_invoice.h"
#include "parties/party_fields.h"
#include "records/record_list.h"

#include <QCheckBox>
#include <QLabel>
#include <QPushButton>

#include <optional>
#include <vector>

/// The invoice page: the one invoice that is open, new or old. It has no Save button and keeps no copy of the data:
/// each control writes through when the focus leaves it, so the rows are as current as the last control left.
class InvoicePage : public Panel {
    Q_OBJECT
public:
    explicit InvoicePage(QWidget* parent);

    /// The entries of the payment methods, with none selected.
    void FillPaymentMethods();
    /// Opens gCurrentInvoiceId, or a new invoice when that is -1. To be called when the panel shows.
    void ShowInvoicePage();
    /// Offers the price lists of now, with the same one selected, or the default one where that is gone. To be called
    /// when the lists have changed.
    void RefillPriceLists();
    /// Captions or hides the secondary tax as it is set up now.
    void ShowSecondaryTax();

    /// Clears the page and adds the Invoice row with the next number, which is only read. Sets both current ids.
    void CreateNewInvoice();
    /// Fills the page from the row gCurrentInvoiceId. Without such a row the page stays as it is.
    void EditInvoice();
    /// Fills the customer section; empties it when there is no such customer.
    void LoadCustomerDetailsIntoInvoice(qint32 customerId);
    /// Writes the customer and the invoice as they stand on the page; adds the Customer row if the invoice has none
    /// yet. Writes nothing while no invoice is open.
    void UpdateInvoiceEdit();
    /// Saves when the control with the focus was typed into and not left since. To be called before another invoice
    /// shows while the page is in view.
    void SaveWhatIsBeingTyped();
    /// Shows what is stored of the customer, who may have been edited in another form: the next save would write back
    /// what the page shows.
    void ShowCustomerAnew();
    /// Refills the lines and the totals. The line `selectId` is selected, else row `selectRow` or the last one.
    void RefreshNewInvoiceItemsList(int selectRow, qint64 selectId);

    CONTROL(TextBox, txtFirstname);
    CONTROL(TextBox, txtLastname);
    CONTROL(TextBox, txtBusinessName);
    CONTROL(TextBox, txtAddress1);
    CONTROL(TextBox, txtAddress2);
    CONTROL(TextBox, txtCity);
    CONTROL(TextBox, txtState);
    CONTROL(QLabel, lblPostCode);
    CONTROL(TextBox, txtPostcode);
    CONTROL(TextBox, txtCountry);
    CONTROL(TextBox, txtPhone);
    CONTROL(TextBox, txtFax);
    CONTROL(TextBox, txtEmail);
    CONTROL(NumberBox, txtDiscount);
    CONTROL(ComboBox, cboPriceList);
    CONTROL(QPushButton, cmdNewInvoiceCustSearch);
    CONTROL(QPushButton, cmdNewInvoiceCustReset);
    CONTROL(TextBox, lblInvoiceNo);
    CONTROL(DatePicker, lblInvoiceDate);
    CONTROL(DatePicker, dtShippedDate);
    CONTROL(QCheckBox, chkWarrantyInvoice);
    CONTROL(QWidget, picBarcode);
    CONTROL(TextBox, txtBarcode);
    CONTROL(QPushButton, cmdAddBarCodeItem);
    CONTROL(RecordList, gNewInvoice);
    CONTROL(QPushButton, cmdAddOrderItem);
    CONTROL(QPushButton, cmdEditOrderItem);
    CONTROL(QPushButton, cmdDeleteOrderItem);
    CONTROL(QPushButton, cmdAddGroupItems);
    CONTROL(QWidget, picNewInvoiceBotBit);
    CONTROL(ComboBox, cboPaymentMethod);
    CONTROL(NumberBox, txtAmountPayed);
    CONTROL(QCheckBox, chkPaid);
    CONTROL(MultiLineTextBox, txtNotes);
    CONTROL_AT(QLabel, lblLabels, 26);
    CONTROL(SteadyLabel, lblSecondTax);
    CONTROL(SteadyLabel, lblTotal);
    CONTROL(QWidget, picNewInvoiceBotButts);
    CONTROL(QPushButton, cmdCompleteInvoice);
    CONTROL(QPushButton, cmdCancelInvoice);
    CONTROL(QPushButton, cmdPrintPickingList);
    CONTROL(QPushButton, cmdCloseInvoice);

signals:
    /// Work on the invoice has ended; the invoice history is to show.
    void Left();
    /// An item was found by its bar code.
    void Scanned();
    /// The lines and pieces of the invoice and the code that was scanned last, if any; "" when the page is left.
    void LinesCounted(const QString& text);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    /// As they are stored, in every language.
    static constexpr const char* PaymentMethods[]{QT_TR_NOOP("N/A"), QT_TR_NOOP("Check"), QT_TR_NOOP("Cash"),
        QT_TR_NOOP("Credit Card"), QT_TR_NOOP("Bank Transfer"), QT_TR_NOOP("Charge to Account")};

    PartyFields CustomerBoxes() const { return CustomerFields(*this); }

    QLayout* CustomerSection();
    QLayout* LinesSection();
    QLayout* PaymentAndTotals();
    QLayout* EndButtons();
    void SetCaptions();
    void ConnectSaves();
    void ConnectCommands();
    void ConnectScans();
    void ConnectKeys();

    void FillPriceListChoice();
    void PriceListChosen();
    void ShowInvoice(const InvoiceFields& invoice);
    void ShowShippedDate(const std::optional<QDate>& shipped);
    /// Shows the one line that was added to or changed since the lines were filled, by this page alone. False, having
    /// done nothing, when more may have changed.
    bool ShowLine(qint64 lineId);
    void ShowFigures();
    void ShowTotals(double secondTax, double total);
    void ShowWhetherItExists();

    void CorrectDiscount();
    InvoiceCustomer CustomerOnPage() const;
    InvoiceFields InvoiceOnPage() const;
    QList<QWidget*> ControlsSavedWhenLeft() const;

    void SearchCustomer();
    void ResetCustomer();
    void AddOrderItem();
    static void TellUnknownCode();
    void AddBarCodeItem();
    /// "" where the scan of `code` has added to `line`, which is as AddLine returned it.
    static QString WhyNotAdded(const QString& code, std::optional<qint64> line);
    void ShowScanned(qint64 lineId, const QString& whyNotAdded);
    void ShowScanLine();
    void AddGroupItems();
    bool AddChosenGroupItems();
    void EditOrderItem();
    void EditLine(qint64 lineId);
    void DeleteOrderItem();
    /// Within a batch. Returns the line that the item is in then, 0 where it or its tax rate is gone; nothing when it
    /// is short of stock.
    std::optional<qint64> AddLine(
        qint32 itemId, qint32 quantity, double discountPercent, bool isWarranty, Currency unitPrice);
    qint32 QuantityInRow(int row) const;
    void CompleteInvoice();
    void CloseInvoice();
    void CancelInvoice();
    void PrintPickingList();
    void Leave(const QString& numberGivenTwice, const QString& done);

    QWidget* m_gone = nullptr; ///< says that the invoice was deleted
    QString m_lastCode; ///< of the scans on this invoice
    std::vector<ShownLine> m_lines; ///< one a row
    TaxRateColumn m_taxRates;
    qint32 m_linesOf = -1; ///< the invoice
    FileChanges m_file; ///< since they were read
};
