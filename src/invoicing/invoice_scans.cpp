#include "base/numbers.h"
#include "controls/message_box.h"
#include "controls/scan_sound.h"
#include "controls/scan_watch.h"
#include "controls/status_line.h"
#include "db/batch.h"
#include "db/connection.h"
#include "invoicing/add_order_line.h"
#include "invoicing/invoice_page.h"
#include "invoicing/order_lines.h"

void InvoicePage::ConnectScans()
{
    On(cmdAddBarCodeItem, &QPushButton::clicked, this, &InvoicePage::AddBarCodeItem);
    // A quote would end the program; where it was not meant for the bar code box, that would be out of place.
    const auto isKnown = [](const QString& code) { return !code.contains(u'\'') && FindScannedItem(code); };
    TakeScans({this, txtBarcode, cmdAddBarCodeItem, isKnown, [] { TellUnknownCode(); }});
    KeepCodesOut({txtDiscount, txtAmountPayed});
}

void InvoicePage::TellUnknownCode()
{
    PlayScanSound(ScanSound::NotFound);
    ScanMsgBox(tr("Item not found."), Icon::Critical);
}

void InvoicePage::AddBarCodeItem()
{
    const QString code = txtBarcode->text();
    const std::optional<ScannedItem> scanned = FindScannedItem(code);
    if (!scanned) {
        TellUnknownCode();
        txtBarcode->FocusAll();
        return;
    }

    m_lastCode = code;
    emit Scanned();
    const std::optional<qint64> line = InBatch(*gConnection, [&] {
        const Currency price = ListPrice(scanned->itemId, cboPriceList->SelectedData());
        return AddLine(
            scanned->itemId, scanned->quantity, Val(txtDiscount->text()), chkWarrantyInvoice->isChecked(), price);
    });

    // Not cleared, which could be undone: a day's scans would never be forgotten.
    txtBarcode->setText(QString());
    txtBarcode->setFocus();
    ShowScanned(line ? *line : LineOfItem(scanned->itemId), WhyNotAdded(code, line));
}

QString InvoicePage::WhyNotAdded(const QString& code, std::optional<qint64> line)
{
    if (!line)
        return tr("There is not enough in stock to add %1.").arg(code);
    return *line == 0 ? tr("%1 was not added: the tax rate of its item no longer exists.").arg(code) : QString();
}

void InvoicePage::ShowScanned(qint64 lineId, const QString& whyNotAdded)
{
    PlayScanSound(whyNotAdded.isEmpty() ? ScanSound::Found : ScanSound::NotFound);
    if (!whyNotAdded.isEmpty()) {
        ShowScanLine();
        ShowStatus(whyNotAdded);
    }
    if (const int row = gNewInvoice->RowOf(lineId); row > 0)
        gNewInvoice->ShowTinted(row);
}

void InvoicePage::ShowScanLine()
{
    if (!isVisible())
        return;
    constexpr int ShownOfACode = 40;
    const int lines = gNewInvoice->Rows() - 1;
    qint64 pieces = 0;
    for (const ShownLine& line : m_lines)
        pieces += line.quantity;
    const QString text = m_lastCode.isEmpty()
        ? tr("Lines: %1   Pieces: %2").arg(lines).arg(pieces)
        : tr("Lines: %1   Pieces: %2   Last code: %3").arg(lines).arg(pieces).arg(m_lastCode.left(ShownOfACode));
    emit LinesCounted(text);
}

// The line stands there before the first scan: if it came with that, all of the page would move.
void InvoicePage::showEvent(QShowEvent* event)
{
    Panel::showEvent(event);
    ShowScanLine();
}

void InvoicePage::hideEvent(QHideEvent* event)
{
    Panel::hideEvent(event);
    if (!event->spontaneous())
        emit LinesCounted(QString());
}
