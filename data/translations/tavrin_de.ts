<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>No data</source>
        <translation>Keine Daten</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Beschriftung</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Speichern unter...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Save Chart As</source>
        <translation>Diagramm speichern unter</translation>
    </message>
    <message>
        <source>PNG picture (*.png);;SVG drawing (*.svg)</source>
        <translation>PNG-Bild (*.png);;SVG-Zeichnung (*.svg)</translation>
    </message>
    <message>
        <source>chart</source>
        <translation>diagramm</translation>
    </message>
    <message>
        <source>The chart could not be saved as %1.</source>
        <translation>Das Diagramm konnte nicht als %1 gespeichert werden.</translation>
    </message>
    <message>
        <source>No printer is installed. The chart can be saved as a picture without one.</source>
        <translation>Es ist kein Drucker installiert. Das Diagramm kann auch ohne Drucker als Bild gespeichert werden.</translation>
    </message>
    <message>
        <source>The chart could not be printed.</source>
        <translation>Das Diagramm konnte nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>Series %1</source>
        <translation>Datenreihe %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1, %2: %3</translation>
    </message>
    <message>
        <source>3D bar chart</source>
        <translation>3D-Säulendiagramm</translation>
    </message>
    <message>
        <source>2D bar chart</source>
        <translation>2D-Säulendiagramm</translation>
    </message>
    <message>
        <source>3D line chart</source>
        <translation>3D-Liniendiagramm</translation>
    </message>
    <message>
        <source>2D line chart</source>
        <translation>2D-Liniendiagramm</translation>
    </message>
    <message>
        <source>3D area chart</source>
        <translation>3D-Flächendiagramm</translation>
    </message>
    <message>
        <source>2D area chart</source>
        <translation>2D-Flächendiagramm</translation>
    </message>
    <message>
        <source>3D step chart</source>
        <translation>3D-Stufendiagramm</translation>
    </message>
    <message>
        <source>2D step chart</source>
        <translation>2D-Stufendiagramm</translation>
    </message>
    <message>
        <source>%1 without data</source>
        <translation>%1 ohne Daten</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, %2 to %3</source>
        <translation>%1, %2 bis %3</translation>
    </message>
</context>
<context>
    <name>CsvExports</name>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>CSV (*.csv)</source>
        <translation>CSV (*.csv)</translation>
    </message>
    <message>
        <source>Text documents (*.txt)</source>
        <translation>Textdokumente (*.txt)</translation>
    </message>
    <message>
        <source>Unable to write to file, please check you have permissions and try again.</source>
        <translation>Die Datei kann nicht geschrieben werden. Bitte prüfen Sie Ihre Zugriffsrechte und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Writing the file...</source>
        <translation>Datei wird geschrieben...</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>The first line has no end. Lines must end with CR LF.</source>
        <translation>Die erste Zeile hat kein Ende. Zeilen müssen mit CR LF enden.</translation>
    </message>
</context>
<context>
    <name>CustomerCommands</name>
    <message>
        <source>This customer has existing invoices and cannot be deleted. To delete this customer first delete all their invoices.</source>
        <translation>Für diesen Kunden gibt es Rechnungen; er kann nicht gelöscht werden. Löschen Sie zuerst alle seine Rechnungen.</translation>
    </message>
    <message>
        <source>Cannot delete customer.</source>
        <translation>Der Kunde kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Delete customer?</source>
        <translation>Kunden löschen?</translation>
    </message>
    <message>
        <source>Customer %1 deleted</source>
        <translation>Kunde %1 gelöscht</translation>
    </message>
</context>
<context>
    <name>CustomerMatches</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Postcode</source>
        <translation>PLZ</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
</context>
<context>
    <name>CustomersPanel</name>
    <message>
        <source>View/Edit Customer</source>
        <translation>Kunden anzeigen/bearbeiten</translation>
    </message>
    <message>
        <source>Add Customer</source>
        <translation>Kunden hinzufügen</translation>
    </message>
    <message>
        <source>Delete Customer</source>
        <translation>Kunden löschen</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Kunden</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Zip/Postcode</source>
        <translation>PLZ</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Instructions - you are currently viewing your customer list. This includes all customers you have invoiced or previously added. To sort by a column click it&apos;s title. For more details press F1 for help.</source>
        <translation>Hinweis - Sie sehen Ihre Kundenliste. Sie enthält alle Kunden, denen Sie Rechnungen gestellt oder die Sie selbst hinzugefügt haben. Klicken Sie auf einen Spaltentitel, um nach dieser Spalte zu sortieren. Mit F1 öffnen Sie die Hilfe.</translation>
    </message>
    <message>
        <source>Reading the customers...</source>
        <translation>Kunden werden gelesen...</translation>
    </message>
</context>
<context>
    <name>DatabaseBackup</name>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>MDB (*.mdb)</source>
        <translation>MDB (*.mdb)</translation>
    </message>
    <message>
        <source>Unable to write to file </source>
        <translation>Die Datei kann nicht geschrieben werden: </translation>
    </message>
    <message>
        <source>Successfully backed up database file.</source>
        <translation>Die Datenbankdatei wurde gesichert.</translation>
    </message>
    <message>
        <source>Copying the database...</source>
        <translation>Datenbank wird kopiert...</translation>
    </message>
</context>
<context>
    <name>DatePicker</name>
    <message>
        <source>Tick to give a date</source>
        <translation>Ankreuzen, um ein Datum anzugeben</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>%1
The path does not exist. Check the path and try again.</source>
        <translation>%1
Der Pfad ist nicht vorhanden. Prüfen Sie den Pfad und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The help pages are not available.</source>
        <translation>Die Hilfeseiten sind nicht verfügbar.</translation>
    </message>
</context>
<context>
    <name>EmailLink</name>
    <message>
        <source>Email</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Write an email</source>
        <translation>E-Mail schreiben</translation>
    </message>
    <message>
        <source>Write an email to this address</source>
        <translation>Eine E-Mail an diese Adresse schreiben</translation>
    </message>
</context>
<context>
    <name>FileWait</name>
    <message>
        <source>Waiting for another program that has the database open...</source>
        <translation>Warten auf ein anderes Programm, das die Datenbank geöffnet hat...</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Words to look for, in any order</source>
        <translation>Gesuchte Wörter, in beliebiger Reihenfolge</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filter:</translation>
    </message>
    <message>
        <source>Close the filter (Esc)</source>
        <translation>Filter schließen (Esc)</translation>
    </message>
    <message>
        <source>Close the filter</source>
        <translation>Filter schließen</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>FinishPage</name>
    <message>
        <source>Finished</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Fertigstellen</translation>
    </message>
</context>
<context>
    <name>FlexGrid</name>
    <message>
        <source>Invalid Row value</source>
        <translation>Ungültiger Wert für Row</translation>
    </message>
    <message>
        <source>Invalid Col value</source>
        <translation>Ungültiger Wert für Col</translation>
    </message>
    <message>
        <source>No row has all of these words. Press Esc to show all rows.</source>
        <translation>Keine Zeile enthält alle diese Wörter. Mit Esc zeigen Sie alle Zeilen.</translation>
    </message>
</context>
<context>
    <name>HelpDesk</name>
    <message>
        <source>The help file %1 is missing or damaged.</source>
        <translation>Die Hilfedatei %1 fehlt oder ist beschädigt.</translation>
    </message>
</context>
<context>
    <name>ImportFields</name>
    <message>
        <source>Item Name</source>
        <translation>Artikelbezeichnung</translation>
    </message>
    <message>
        <source>Item Ref. Number</source>
        <translation>Artikelnummer</translation>
    </message>
    <message>
        <source>Item Description</source>
        <translation>Artikelbeschreibung</translation>
    </message>
    <message>
        <source>Item Barcode</source>
        <translation>Barcode des Artikels</translation>
    </message>
    <message>
        <source>Item Location</source>
        <translation>Lagerplatz</translation>
    </message>
    <message>
        <source>Item Sub-Category</source>
        <translation>Unterkategorie</translation>
    </message>
    <message>
        <source>Item Vendor</source>
        <translation>Lieferant</translation>
    </message>
    <message>
        <source>Item Tax Rate</source>
        <translation>Steuersatz</translation>
    </message>
    <message>
        <source>Number in Stock</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Reorder Level</source>
        <translation>Meldebestand</translation>
    </message>
    <message>
        <source>Minimum Stock Level</source>
        <translation>Mindestbestand</translation>
    </message>
    <message>
        <source>Warranty Returns</source>
        <translation>Garantierückgaben</translation>
    </message>
</context>
<context>
    <name>ImportReading</name>
    <message>
        <source>Field%1</source>
        <translation>Feld%1</translation>
    </message>
    <message>
        <source>Reading the file...</source>
        <translation>Datei wird gelesen...</translation>
    </message>
</context>
<context>
    <name>InventoryList</name>
    <message>
        <source>Price List:</source>
        <translation>Preisliste:</translation>
    </message>
    <message>
        <source>New Item</source>
        <translation>Neuer Artikel</translation>
    </message>
    <message>
        <source>View/Edit Item</source>
        <translation>Artikel anzeigen/bearbeiten</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Artikel löschen</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Sale Price</source>
        <translation>Verkaufspreis</translation>
    </message>
    <message>
        <source>Tax Rate</source>
        <translation>Steuersatz</translation>
    </message>
    <message>
        <source>In Stock</source>
        <translation>Auf Lager</translation>
    </message>
    <message>
        <source>Instructions - you are currently viewing your inventory. This includes all inventory items. To sort by a column click it&apos;s title. For more details press F1 for help.</source>
        <translation>Hinweis - Sie sehen Ihren Bestand. Er enthält alle Ihre Artikel. Klicken Sie auf einen Spaltentitel, um nach dieser Spalte zu sortieren. Mit F1 öffnen Sie die Hilfe.</translation>
    </message>
    <message>
        <source>%1 items.</source>
        <translation>%1 Artikel.</translation>
    </message>
    <message>
        <source>This item is used on one or more invoices and cannot be deleted. To delete this item first delete all invoices it is included in.</source>
        <translation>Dieser Artikel steht auf einer oder mehreren Rechnungen und kann nicht gelöscht werden. Löschen Sie zuerst alle Rechnungen, auf denen er steht.</translation>
    </message>
    <message>
        <source>Cannot delete item.</source>
        <translation>Der Artikel kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Delete item?</source>
        <translation>Artikel löschen?</translation>
    </message>
    <message>
        <source>Item %1 deleted</source>
        <translation>Artikel %1 gelöscht</translation>
    </message>
    <message>
        <source>At or below the reorder level</source>
        <translation>Auf oder unter dem Meldebestand</translation>
    </message>
    <message>
        <source>Reading the items...</source>
        <translation>Artikel werden gelesen...</translation>
    </message>
</context>
<context>
    <name>InvoiceDocuments</name>
    <message>
        <source>Preparing the document...</source>
        <translation>Beleg wird vorbereitet...</translation>
    </message>
</context>
<context>
    <name>InvoiceHistory</name>
    <message>
        <source>View/Edit Invoice</source>
        <translation>Rechnung anzeigen/bearbeiten</translation>
    </message>
    <message>
        <source>New Invoice</source>
        <translation>Neue Rechnung</translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation>Rechnung löschen</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>Show invoices:</source>
        <translation>Rechnungen anzeigen:</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Business Name</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Invoice Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Invoice History</source>
        <translation>Rechnungsübersicht</translation>
    </message>
    <message>
        <source>Instructions - you are currently viewing your Invoice History. This includes all past invoices that have been created. To sort by a column click it&apos;s title. For more details press F1 for help.</source>
        <translation>Hinweis - Sie sehen Ihre Rechnungsübersicht. Sie enthält alle bisher erstellten Rechnungen. Klicken Sie auf einen Spaltentitel, um nach dieser Spalte zu sortieren. Mit F1 öffnen Sie die Hilfe.</translation>
    </message>
    <message>
        <source>All Invoices</source>
        <translation>Alle Rechnungen</translation>
    </message>
    <message>
        <source>Unpaid Invoices</source>
        <translation>Unbezahlte Rechnungen</translation>
    </message>
    <message>
        <source>No invoice has been selected. Select an invoice from the list and try again.</source>
        <translation>Es ist keine Rechnung ausgewählt. Wählen Sie eine Rechnung aus der Liste aus und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this invoice?</source>
        <translation>Möchten Sie diese Rechnung wirklich löschen?</translation>
    </message>
    <message>
        <source>Invoice %1 deleted</source>
        <translation>Rechnung %1 gelöscht</translation>
    </message>
    <message>
        <source>Reading the invoices...</source>
        <translation>Rechnungen werden gelesen...</translation>
    </message>
</context>
<context>
    <name>InvoicePage</name>
    <message>
        <source>Clear customer details?</source>
        <translation>Kundendaten leeren?</translation>
    </message>
    <message>
        <source>Item not found.</source>
        <translation>Artikel nicht gefunden.</translation>
    </message>
    <message>
        <source>Not all items have enough stock to be added to the invoice.</source>
        <translation>Nicht von allen Artikeln ist genug auf Lager, um sie auf die Rechnung zu setzen.</translation>
    </message>
    <message>
        <source>Delete item from invoice?</source>
        <translation>Position von der Rechnung löschen?</translation>
    </message>
    <message>
        <source>Cancel invoice?</source>
        <translation>Rechnung verwerfen?</translation>
    </message>
    <message>
        <source>Print Invoice?</source>
        <translation>Rechnung drucken?</translation>
    </message>
    <message>
        <source>Invoice number %1 was given twice: another invoice went out under it meanwhile.</source>
        <translation>Die Rechnungsnummer %1 wurde zweimal vergeben: Unter ihr ist inzwischen eine andere Rechnung ausgestellt worden.</translation>
    </message>
    <message>
        <source>Edit Invoice</source>
        <translation>Rechnung bearbeiten</translation>
    </message>
    <message>
        <source>New Invoice</source>
        <translation>Neue Rechnung</translation>
    </message>
    <message>
        <source>Bar Code:</source>
        <translation>Barcode:</translation>
    </message>
    <message>
        <source>This invoice no longer exists: it has been deleted. What you enter here belongs to no invoice.</source>
        <translation>Diese Rechnung gibt es nicht mehr: Sie wurde gelöscht. Was Sie hier eingeben, gehört zu keiner Rechnung.</translation>
    </message>
    <message>
        <source>Instructions -  Enter your customer&apos;s details and/or click Customer Search to locate an existing customer. Add your invoice items and then click Complete Invoice.</source>
        <translation>Hinweis - Geben Sie die Kundendaten ein oder klicken Sie auf Kunden suchen, um einen vorhandenen Kunden zu finden. Fügen Sie die Positionen hinzu und klicken Sie dann auf Rechnung abschließen.</translation>
    </message>
    <message>
        <source>Enter your customer&apos;s details:</source>
        <translation>Kundendaten eingeben:</translation>
    </message>
    <message>
        <source>Zip/Post Code:</source>
        <translation>PLZ:</translation>
    </message>
    <message>
        <source>Customer &amp;Search</source>
        <translation>Kunden s&amp;uchen</translation>
    </message>
    <message>
        <source>&amp;Reset Customer</source>
        <translation>Kunden &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>Warranty Invoice</source>
        <translation>Garantierechnung</translation>
    </message>
    <message>
        <source>Add From Bar Code</source>
        <translation>Über Barcode hinzufügen</translation>
    </message>
    <message>
        <source>Add Order Item</source>
        <translation>Position hinzufügen</translation>
    </message>
    <message>
        <source>Edit Order Item</source>
        <translation>Position bearbeiten</translation>
    </message>
    <message>
        <source>Delete Order Item</source>
        <translation>Position löschen</translation>
    </message>
    <message>
        <source>Add Group Items</source>
        <translation>Artikelgruppe hinzufügen</translation>
    </message>
    <message>
        <source>Paid in full</source>
        <translation>Vollständig bezahlt</translation>
    </message>
    <message>
        <source>Secondary Tax:</source>
        <translation>Zweite Steuer:</translation>
    </message>
    <message>
        <source>Complete Invoice</source>
        <translation>Rechnung abschließen</translation>
    </message>
    <message>
        <source>Cancel Invoice</source>
        <translation>Rechnung verwerfen</translation>
    </message>
    <message>
        <source>Picking List</source>
        <translation>Kommissionierliste</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>First Name:</source>
        <translation>Vorname:</translation>
    </message>
    <message>
        <source>Last Name:</source>
        <translation>Nachname:</translation>
    </message>
    <message>
        <source>Business Name:</source>
        <translation>Firma:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Bundesland:</translation>
    </message>
    <message>
        <source>Country:</source>
        <translation>Land:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Telefon:</translation>
    </message>
    <message>
        <source>Fax:</source>
        <translation>Fax:</translation>
    </message>
    <message>
        <source>Email:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>Discount:</source>
        <translation>Rabatt:</translation>
    </message>
    <message>
        <source>Price List:</source>
        <translation>Preisliste:</translation>
    </message>
    <message>
        <source>Invoice No:</source>
        <translation>Rechnungsnr.:</translation>
    </message>
    <message>
        <source>Invoice Date:</source>
        <translation>Rechnungsdatum:</translation>
    </message>
    <message>
        <source>Shipped Date:</source>
        <translation>Versanddatum:</translation>
    </message>
    <message>
        <source>Qty</source>
        <translation>Anz.</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Sale Price</source>
        <translation>Verkaufspreis</translation>
    </message>
    <message>
        <source>Tax Rate</source>
        <translation>Steuersatz</translation>
    </message>
    <message>
        <source>Sub-Total</source>
        <translation>Gesamtpreis</translation>
    </message>
    <message>
        <source>Items Ordered:</source>
        <translation>Positionen:</translation>
    </message>
    <message>
        <source>Payment Method:</source>
        <translation>Zahlungsart:</translation>
    </message>
    <message>
        <source>Amount Payed:</source>
        <translation>Gezahlter Betrag:</translation>
    </message>
    <message>
        <source>Invoice Notes:</source>
        <translation>Bemerkungen zur Rechnung:</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>Summe:</translation>
    </message>
    <message>
        <source>Customer Payments:</source>
        <translation>Zahlungen des Kunden:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Scheck</translation>
    </message>
    <message>
        <source>Cash</source>
        <translation>Bar</translation>
    </message>
    <message>
        <source>Credit Card</source>
        <translation>Kreditkarte</translation>
    </message>
    <message>
        <source>Bank Transfer</source>
        <translation>Überweisung</translation>
    </message>
    <message>
        <source>Charge to Account</source>
        <translation>Auf Rechnung</translation>
    </message>
    <message>
        <source>Invoice %1 cancelled</source>
        <translation>Rechnung %1 verworfen</translation>
    </message>
    <message>
        <source>Invoice %1 completed</source>
        <translation>Rechnung %1 abgeschlossen</translation>
    </message>
    <message>
        <source>Invoice %1 closed</source>
        <translation>Rechnung %1 geschlossen</translation>
    </message>
    <message>
        <source>There is not enough in stock to add %1.</source>
        <translation>Es ist nicht genug auf Lager, um %1 hinzuzufügen.</translation>
    </message>
    <message>
        <source>%1 was not added: the tax rate of its item no longer exists.</source>
        <translation>%1 wurde nicht hinzugefügt: Den Steuersatz des Artikels gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>Lines: %1   Pieces: %2</source>
        <translation>Positionen: %1   Stück: %2</translation>
    </message>
    <message>
        <source>Lines: %1   Pieces: %2   Last code: %3</source>
        <translation>Positionen: %1   Stück: %2   Letzter Code: %3</translation>
    </message>
    <message>
        <source>Nothing is ordered yet. Scan a bar code or press &quot;%1&quot;.</source>
        <translation>Noch keine Positionen. Scannen Sie einen Barcode oder klicken Sie auf „%1“.</translation>
    </message>
</context>
<context>
    <name>InvoiceReport</name>
    <message>
        <source>Phone: </source>
        <translation>Telefon: </translation>
    </message>
    <message>
        <source>Warranty Invoice</source>
        <translation>Garantierechnung</translation>
    </message>
    <message>
        <source>Invoice / Receipt for</source>
        <translation>Rechnung / Quittung für</translation>
    </message>
    <message>
        <source>Invoice Number:</source>
        <translation>Rechnungsnummer:</translation>
    </message>
    <message>
        <source>Your order of</source>
        <translation>Ihre Bestellung vom</translation>
    </message>
    <message>
        <source>Ref.</source>
        <translation>Ref.</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Steuer</translation>
    </message>
    <message>
        <source>Our Price</source>
        <translation>Unser Preis</translation>
    </message>
    <message>
        <source>Total Price</source>
        <translation>Gesamtpreis</translation>
    </message>
    <message>
        <source>Tax Total</source>
        <translation>Steuersumme</translation>
    </message>
    <message>
        <source>Order Total (including tax)</source>
        <translation>Gesamtsumme (einschl. Steuer)</translation>
    </message>
    <message>
        <source>2nd Tax Total</source>
        <translation>Summe 2. Steuer</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Rechnung</translation>
    </message>
</context>
<context>
    <name>ItemGroups</name>
    <message>
        <source>View/Edit Item Group</source>
        <translation>Artikelgruppe anzeigen/bearbeiten</translation>
    </message>
    <message>
        <source>New Item Group</source>
        <translation>Neue Artikelgruppe</translation>
    </message>
    <message>
        <source>Delete Item Group</source>
        <translation>Artikelgruppe löschen</translation>
    </message>
    <message>
        <source>Item Groups</source>
        <translation>Artikelgruppen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Instructions - you are currently viewing your item groups. To sort by a column click it&apos;s title. For more details press F1 for help.</source>
        <translation>Hinweis - Sie sehen Ihre Artikelgruppen. Klicken Sie auf einen Spaltentitel, um nach dieser Spalte zu sortieren. Mit F1 öffnen Sie die Hilfe.</translation>
    </message>
    <message>
        <source>No item group has been selected. Select an item group from the list and try again.</source>
        <translation>Es ist keine Artikelgruppe ausgewählt. Wählen Sie eine Artikelgruppe aus der Liste aus und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>This Item Group has existing items and cannot be deleted. To delete this Item Group first delete all items they supply.</source>
        <translation>Diese Artikelgruppe enthält Artikel und kann nicht gelöscht werden. Entfernen Sie zuerst alle Artikel aus der Gruppe.</translation>
    </message>
    <message>
        <source>Cannot delete Item Group.</source>
        <translation>Die Artikelgruppe kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Delete Item Group?</source>
        <translation>Artikelgruppe löschen?</translation>
    </message>
    <message>
        <source>Item Group %1 deleted</source>
        <translation>Artikelgruppe %1 gelöscht</translation>
    </message>
</context>
<context>
    <name>KeyGroupForm</name>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>There is nothing to show. Press &quot;%1&quot; to begin.</source>
        <translation>Noch nichts vorhanden. Klicken Sie auf „%1“, um zu beginnen.</translation>
    </message>
</context>
<context>
    <name>KeyListForm</name>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>There is nothing to show. Press &quot;Add&quot; to begin.</source>
        <translation>Noch nichts vorhanden. Klicken Sie auf „Hinzufügen“, um zu beginnen.</translation>
    </message>
</context>
<context>
    <name>ListPanel</name>
    <message>
        <source>There is nothing to show. Press &quot;%1&quot; to begin.</source>
        <translation>Noch nichts vorhanden. Klicken Sie auf „%1“, um zu beginnen.</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>Import In&amp;ventory...</source>
        <translation>Bestand &amp;importieren...</translation>
    </message>
    <message>
        <source>Export &amp;Invoices...</source>
        <translation>&amp;Rechnungen exportieren...</translation>
    </message>
    <message>
        <source>Export Inv&amp;entory...</source>
        <translation>B&amp;estand exportieren...</translation>
    </message>
    <message>
        <source>Export &amp;Customers...</source>
        <translation>&amp;Kunden exportieren...</translation>
    </message>
    <message>
        <source>Export &amp;Today&apos;s Invoices...</source>
        <translation>&amp;Heutige Rechnungen exportieren...</translation>
    </message>
    <message>
        <source>&amp;Backup Database...</source>
        <translation>Da&amp;tenbank sichern...</translation>
    </message>
    <message>
        <source>Page &amp;Setup...</source>
        <translation>&amp;Seite einrichten...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Aus&amp;schneiden</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Cle&amp;ar</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Web Orders</source>
        <translation>&amp;Webbestellungen</translation>
    </message>
    <message>
        <source>&amp;Configure Web Orders...</source>
        <translation>Webbestellungen &amp;konfigurieren...</translation>
    </message>
    <message>
        <source>&amp;Create Web Orders Page...</source>
        <translation>Webbestell&amp;seite erstellen...</translation>
    </message>
    <message>
        <source>Inv&amp;oices</source>
        <translation>&amp;Rechnungen</translation>
    </message>
    <message>
        <source>Invoice &amp;History</source>
        <translation>&amp;Rechnungsübersicht</translation>
    </message>
    <message>
        <source>&amp;New Invoice</source>
        <translation>&amp;Neue Rechnung</translation>
    </message>
    <message>
        <source>&amp;Find Invoice...</source>
        <translation>Rechnung &amp;suchen...</translation>
    </message>
    <message>
        <source>&amp;Set Next Invoice No...</source>
        <translation>Nä&amp;chste Rechnungsnummer festlegen...</translation>
    </message>
    <message>
        <source>&amp;Inventory</source>
        <translation>Be&amp;stand</translation>
    </message>
    <message>
        <source>&amp;View Inventory</source>
        <translation>&amp;Bestand anzeigen</translation>
    </message>
    <message>
        <source>View Item &amp;Groups</source>
        <translation>Artikel&amp;gruppen anzeigen</translation>
    </message>
    <message>
        <source>&amp;Add Item...</source>
        <translation>&amp;Artikel hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Receive Stock...</source>
        <translation>&amp;Wareneingang...</translation>
    </message>
    <message>
        <source>&amp;Customers</source>
        <translation>&amp;Kunden</translation>
    </message>
    <message>
        <source>&amp;View Customers</source>
        <translation>&amp;Kunden anzeigen</translation>
    </message>
    <message>
        <source>&amp;Add Customer...</source>
        <translation>Kunden &amp;hinzufügen...</translation>
    </message>
    <message>
        <source>&amp;Find Customer...</source>
        <translation>Kunden &amp;suchen...</translation>
    </message>
    <message>
        <source>Email Mailing List &amp;Wizard...</source>
        <translation>&amp;Assistent für E-Mail-Verteiler...</translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation>B&amp;erichte</translation>
    </message>
    <message>
        <source>&amp;Quick Statistics</source>
        <translation>&amp;Kurzstatistik</translation>
    </message>
    <message>
        <source>&amp;Reorder Report</source>
        <translation>&amp;Bestellvorschlag</translation>
    </message>
    <message>
        <source>&amp;Filtered Reorder Report...</source>
        <translation>&amp;Gefilterter Bestellvorschlag...</translation>
    </message>
    <message>
        <source>&amp;Stock Level Report</source>
        <translation>Be&amp;standsbericht</translation>
    </message>
    <message>
        <source>&amp;Custom Reports...</source>
        <translation>&amp;Eigene Berichte...</translation>
    </message>
    <message>
        <source>&amp;Vendors</source>
        <translation>&amp;Lieferanten</translation>
    </message>
    <message>
        <source>&amp;View Vendors</source>
        <translation>&amp;Lieferanten anzeigen</translation>
    </message>
    <message>
        <source>&amp;Add Vendor...</source>
        <translation>Lieferanten &amp;hinzufügen...</translation>
    </message>
    <message>
        <source>Confi&amp;gure</source>
        <translation>K&amp;onfiguration</translation>
    </message>
    <message>
        <source>&amp;Configuration Wizard...</source>
        <translation>&amp;Konfigurationsassistent...</translation>
    </message>
    <message>
        <source>&amp;Regional Settings...</source>
        <translation>&amp;Regionale Einstellungen...</translation>
    </message>
    <message>
        <source>&amp;Tax Rates...</source>
        <translation>&amp;Steuersätze...</translation>
    </message>
    <message>
        <source>Item &amp;Locations and Warehouses...</source>
        <translation>&amp;Lager und Lagerplätze...</translation>
    </message>
    <message>
        <source>Item C&amp;ategories...</source>
        <translation>&amp;Artikelkategorien...</translation>
    </message>
    <message>
        <source>&amp;Invoice Style...</source>
        <translation>Rechnungs&amp;darstellung...</translation>
    </message>
    <message>
        <source>Multiple Item &amp;Pricing...</source>
        <translation>Artikel&amp;preise...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Contents...</source>
        <translation>&amp;Inhalt...</translation>
    </message>
    <message>
        <source>Tip of the &amp;Day...</source>
        <translation>&amp;Tipp des Tages...</translation>
    </message>
    <message>
        <source>&amp;Index...</source>
        <translation>Inde&amp;x...</translation>
    </message>
    <message>
        <source>&amp;Search...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>&amp;Online Support</source>
        <translation>&amp;Online-Support</translation>
    </message>
    <message>
        <source>Send &amp;Feedback</source>
        <translation>&amp;Feedback senden</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>Ü&amp;ber...</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Unable to open database </source>
        <translation>Die Datenbank kann nicht geöffnet werden: </translation>
    </message>
    <message>
        <source>Tavrin Inventory</source>
        <translation>Tavrin Inventory</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>We&apos;ve noticed that this is the first time you have launched Tavrin Inventory. You may find it useful to follow the getting started tutorial. Would you like to view it now?</source>
        <translation>Sie haben Tavrin Inventory zum ersten Mal gestartet. Eine Einführung erleichtert Ihnen den Einstieg. Möchten Sie sie jetzt ansehen?</translation>
    </message>
    <message>
        <source>Would you like to run the &apos;Configuration Wizard&apos; now?</source>
        <translation>Möchten Sie jetzt den Konfigurationsassistenten ausführen?</translation>
    </message>
    <message>
        <source>The database file %1 is damaged. Close the program and restore a backup of the file: what is entered from now on may be lost.</source>
        <translation>Die Datenbankdatei %1 ist beschädigt. Beenden Sie das Programm und stellen Sie eine Sicherung der Datei wieder her: Was Sie von jetzt an eingeben, kann verloren gehen.</translation>
    </message>
    <message>
        <source>Post Code</source>
        <translation>PLZ</translation>
    </message>
    <message>
        <source>Bringing the database file up to date...</source>
        <translation>Datenbankdatei wird auf den neuesten Stand gebracht...</translation>
    </message>
</context>
<context>
    <name>NameForm</name>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Record not found.</source>
        <translation>Datensatz nicht gefunden.</translation>
    </message>
</context>
<context>
    <name>NumberBox</name>
    <message>
        <source>This is not a number. Write it like %1.</source>
        <translation>Das ist keine Zahl. Schreiben Sie sie wie %1.</translation>
    </message>
</context>
<context>
    <name>PickingList</name>
    <message>
        <source>Invoice No:</source>
        <translation>Rechnungsnr.:</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Lagerplatz:</translation>
    </message>
    <message>
        <source>Warehouse:</source>
        <translation>Lager:</translation>
    </message>
    <message>
        <source>Picking List</source>
        <translation>Kommissionierliste</translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Page Set&amp;up...</source>
        <translation>Seite ein&amp;richten...</translation>
    </message>
    <message>
        <source>&amp;Save as PDF...</source>
        <translation>Als &amp;PDF speichern...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>First Page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Last Page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>Go to Page</source>
        <translation>Gehe zu Seite</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Fit Width</source>
        <translation>Seitenbreite</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>Ganze Seite</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Ver&amp;kleinern</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Ver&amp;größern</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source> of %1 </source>
        <translation> von %1 </translation>
    </message>
    <message>
        <source> of ... </source>
        <translation> von ... </translation>
    </message>
    <message>
        <source>The document was handed to the printer.</source>
        <translation>Das Dokument wurde an den Drucker übergeben.</translation>
    </message>
    <message>
        <source>The printer did not take the document.</source>
        <translation>Der Drucker hat das Dokument nicht angenommen.</translation>
    </message>
    <message>
        <source>No printer is installed. Do you want to save the document as a PDF instead?</source>
        <translation>Es ist kein Drucker installiert. Möchten Sie das Dokument stattdessen als PDF speichern?</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>PDF-Dokumente (*.pdf)</translation>
    </message>
    <message>
        <source>Unable to write to file %1</source>
        <translation>Die Datei %1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Gespeichert als %1</translation>
    </message>
    <message>
        <source>Counting the pages...</source>
        <translation>Seiten werden gezählt...</translation>
    </message>
    <message>
        <source>Printing...</source>
        <translation>Wird gedruckt...</translation>
    </message>
    <message>
        <source>Writing the PDF...</source>
        <translation>PDF wird geschrieben...</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ist bereits vorhanden.
Möchten Sie die Datei ersetzen?</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
</context>
<context>
    <name>RecordList</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filter</translation>
    </message>
    <message>
        <source>Reading the list...</source>
        <translation>Liste wird gelesen...</translation>
    </message>
    <message>
        <source>S&amp;ort By</source>
        <translation>S&amp;ortieren nach</translation>
    </message>
</context>
<context>
    <name>ReportLayout</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language that this is a translation to: a PDF tells it to screen readers.</extracomment>
        <translation>de</translation>
    </message>
</context>
<context>
    <name>ReportsPanel</name>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>&lt;&lt; Expand</source>
        <translation>&lt;&lt; Vergrößern</translation>
    </message>
    <message>
        <source>Invoices this month</source>
        <translation>Rechnungen im Monat</translation>
    </message>
    <message>
        <source>Invoices per month</source>
        <translation>Rechnungen pro Monat</translation>
    </message>
    <message>
        <source>Compare Item Sales!</source>
        <translation>Verkäufe vergleichen</translation>
    </message>
    <message>
        <source>3D Bar</source>
        <translation>3D-Säulen</translation>
    </message>
    <message>
        <source>2D Bar</source>
        <translation>2D-Säulen</translation>
    </message>
    <message>
        <source>3D Line</source>
        <translation>3D-Linien</translation>
    </message>
    <message>
        <source>2D Line</source>
        <translation>2D-Linien</translation>
    </message>
    <message>
        <source>3D Area</source>
        <translation>3D-Flächen</translation>
    </message>
    <message>
        <source>2D Area</source>
        <translation>2D-Flächen</translation>
    </message>
    <message>
        <source>3D Step</source>
        <translation>3D-Stufen</translation>
    </message>
    <message>
        <source>2D Step</source>
        <translation>2D-Stufen</translation>
    </message>
    <message>
        <source>View Graph:</source>
        <translation>Diagramm:</translation>
    </message>
    <message>
        <source>Graph Style:</source>
        <translation>Darstellung:</translation>
    </message>
    <message>
        <source>Red Product:</source>
        <translation>Rotes Produkt:</translation>
    </message>
    <message>
        <source>Green Product:</source>
        <translation>Grünes Produkt:</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>Shrink &gt;&gt;</source>
        <translation>Verkleinern &gt;&gt;</translation>
    </message>
    <message>
        <source>Computing the statistics...</source>
        <translation>Statistik wird berechnet...</translation>
    </message>
    <message>
        <source>Computing the graph...</source>
        <translation>Diagramm wird berechnet...</translation>
    </message>
</context>
<context>
    <name>ScanWatch</name>
    <message>
        <source>Answer the question first, then scan again.</source>
        <translation>Beantworten Sie zuerst die Frage und scannen Sie dann noch einmal.</translation>
    </message>
    <message>
        <source>Close the message first, then scan again.</source>
        <translation>Schließen Sie zuerst die Meldung und scannen Sie dann noch einmal.</translation>
    </message>
    <message>
        <source>The code was typed. Press Enter to go on.</source>
        <translation>Der Code wurde eingegeben. Drücken Sie die Eingabetaste, um fortzufahren.</translation>
    </message>
    <message>
        <source>Close this form first, then scan again.</source>
        <translation>Schließen Sie zuerst dieses Formular und scannen Sie dann noch einmal.</translation>
    </message>
    <message>
        <source>Open an invoice first, then scan again.</source>
        <translation>Öffnen Sie zuerst eine Rechnung und scannen Sie dann noch einmal.</translation>
    </message>
</context>
<context>
    <name>StatisticsFrame</name>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Total invoices today:</source>
        <translation>Rechnungen heute:</translation>
    </message>
    <message>
        <source>Most invoices on:</source>
        <translation>Meiste Rechnungen:</translation>
    </message>
    <message>
        <source>Least invoices on:</source>
        <translation>Wenigste Rechnungen:</translation>
    </message>
    <message>
        <source>Most popular month:</source>
        <translation>Stärkster Monat:</translation>
    </message>
    <message>
        <source>Least popular month:</source>
        <translation>Schwächster Monat:</translation>
    </message>
    <message>
        <source>Most repeating customer:</source>
        <translation>Treuester Kunde:</translation>
    </message>
    <message>
        <source>Invoices this month:</source>
        <translation>Rechnungen im Monat:</translation>
    </message>
    <message>
        <source>Invoices this month YTD:</source>
        <translation>Im Vorjahresmonat:</translation>
    </message>
    <message>
        <source>Total invoices:</source>
        <translation>Rechnungen gesamt:</translation>
    </message>
    <message>
        <source>Monday:</source>
        <translation>Montag:</translation>
    </message>
    <message>
        <source>Tuesday:</source>
        <translation>Dienstag:</translation>
    </message>
    <message>
        <source>Wednesday:</source>
        <translation>Mittwoch:</translation>
    </message>
    <message>
        <source>Thursday:</source>
        <translation>Donnerstag:</translation>
    </message>
    <message>
        <source>Friday:</source>
        <translation>Freitag:</translation>
    </message>
    <message>
        <source>Saturday:</source>
        <translation>Samstag:</translation>
    </message>
    <message>
        <source>Sunday:</source>
        <translation>Sonntag:</translation>
    </message>
    <message>
        <source>Invoices this week</source>
        <translation>Rechnungen in dieser Woche</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Saved as %1</source>
        <translation>Gespeichert als %1</translation>
    </message>
</context>
<context>
    <name>StockReports</name>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>No In Stock</source>
        <translation>Auf Lager</translation>
    </message>
    <message>
        <source>Min Stock Level</source>
        <translation>Mindestbestand</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Lieferant</translation>
    </message>
    <message>
        <source>Reorder Report</source>
        <translation>Bestellvorschlag</translation>
    </message>
    <message>
        <source>Filtered Reorder Report</source>
        <translation>Gefilterter Bestellvorschlag</translation>
    </message>
    <message>
        <source>Stock Level Report</source>
        <translation>Bestandsbericht</translation>
    </message>
    <message>
        <source>Preparing the report...</source>
        <translation>Bericht wird vorbereitet...</translation>
    </message>
</context>
<context>
    <name>ToolbarTexts</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Web Orders</source>
        <translation>Webbestellungen</translation>
    </message>
    <message>
        <source>Customer...</source>
        <translation>Kunde...</translation>
    </message>
    <message>
        <source>Invoice...</source>
        <translation>Rechnung...</translation>
    </message>
    <message>
        <source>New Invoice</source>
        <translation>Neue Rechnung</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Rechnungen</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Kunden</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
</context>
<context>
    <name>VendorsPanel</name>
    <message>
        <source>View/Edit Vendor</source>
        <translation>Lieferanten anzeigen/bearbeiten</translation>
    </message>
    <message>
        <source>New Vendor</source>
        <translation>Neuer Lieferant</translation>
    </message>
    <message>
        <source>Delete Vendor</source>
        <translation>Lieferanten löschen</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>Lieferanten</translation>
    </message>
    <message>
        <source>Business Name</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Contact Name</source>
        <translation>Ansprechpartner</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Instructions - you are currently viewing your vendors. To sort by a column click it&apos;s title. For more details press F1 for help.</source>
        <translation>Hinweis - Sie sehen Ihre Lieferanten. Klicken Sie auf einen Spaltentitel, um nach dieser Spalte zu sortieren. Mit F1 öffnen Sie die Hilfe.</translation>
    </message>
    <message>
        <source>No vendor has been selected. Select a vendor from the list and try again.</source>
        <translation>Es ist kein Lieferant ausgewählt. Wählen Sie einen Lieferanten aus der Liste aus und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>This vendor has existing items and cannot be deleted. To delete this vendor first delete all items they supply.</source>
        <translation>Von diesem Lieferanten gibt es Artikel; er kann nicht gelöscht werden. Löschen Sie zuerst alle Artikel, die er liefert.</translation>
    </message>
    <message>
        <source>Cannot delete vendor.</source>
        <translation>Der Lieferant kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Delete vendor?</source>
        <translation>Lieferanten löschen?</translation>
    </message>
    <message>
        <source>Vendor %1 deleted</source>
        <translation>Lieferant %1 gelöscht</translation>
    </message>
</context>
<context>
    <name>WebOrdersPage</name>
    <message>
        <source>Create Web Orders Page</source>
        <translation>Webbestellseite erstellen</translation>
    </message>
    <message>
        <source>HTML (*.html);;HTM (*.htm)</source>
        <translation>HTML (*.html);;HTM (*.htm)</translation>
    </message>
</context>
<context>
    <name>WelcomePage</name>
    <message>
        <source>Display this welcome screen at startup.</source>
        <translation>Diese Begrüßungsseite beim Start anzeigen.</translation>
    </message>
    <message>
        <source>Welcome to the %1</source>
        <translation>Willkommen: %1</translation>
    </message>
    <message>
        <source>To continue, click Next.</source>
        <translation>Klicken Sie auf Weiter, um fortzufahren.</translation>
    </message>
</context>
<context>
    <name>WizardPage</name>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>About</source>
        <translation>Über</translation>
    </message>
    <message>
        <source>Tavrin Inventory</source>
        <translation>Tavrin Inventory</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>The fully flexible and easy to use inventory management system.</source>
        <translation>Die flexible und leicht zu bedienende Warenwirtschaft.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Website</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation>&amp;Systeminfo...</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>Die Systeminformationen sind derzeit nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>frmAddCategory</name>
    <message>
        <source>No Category has been selected to edit. Please select a Category and try again.</source>
        <translation>Es ist keine Kategorie zum Bearbeiten ausgewählt. Bitte wählen Sie eine Kategorie aus und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Please select a Category to remove.</source>
        <translation>Bitte wählen Sie die Kategorie aus, die entfernt werden soll.</translation>
    </message>
    <message>
        <source>This Category is in use by one or more Sub-Categories and so cannot be deleted. To delete this Sub-Category first remove the Sub-Categories and then try again.</source>
        <translation>Diese Kategorie wird von einer oder mehreren Unterkategorien verwendet und kann nicht gelöscht werden. Entfernen Sie zuerst die Unterkategorien und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this Category?</source>
        <translation>Möchten Sie diese Kategorie wirklich löschen?</translation>
    </message>
    <message>
        <source>Category Details</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Instructions - enter the Category name and then click OK.</source>
        <translation>Hinweis - Geben Sie den Namen der Kategorie ein und klicken Sie dann auf OK.</translation>
    </message>
    <message>
        <source>Please enter a Category name to continue.</source>
        <translation>Bitte geben Sie den Namen der Kategorie ein, um fortzufahren.</translation>
    </message>
</context>
<context>
    <name>frmAddGroupItems</name>
    <message>
        <source>Add Group Items</source>
        <translation>Artikelgruppe hinzufügen</translation>
    </message>
    <message>
        <source>Add Items to Invoice</source>
        <translation>Artikel auf die Rechnung setzen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Item Groups:</source>
        <translation>Artikelgruppen:</translation>
    </message>
    <message>
        <source>Instructions - select the item group to add to the invoice and then click &apos;Add Items to Invoice&apos;.</source>
        <translation>Hinweis - Wählen Sie die Artikelgruppe für die Rechnung aus und klicken Sie dann auf „Artikel auf die Rechnung setzen“.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>No Item Group has been selected. Please select an Item Group to add then try again.</source>
        <translation>Es ist keine Artikelgruppe ausgewählt. Bitte wählen Sie eine Artikelgruppe aus und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>There are no item groups.</source>
        <translation>Es gibt keine Artikelgruppen.</translation>
    </message>
</context>
<context>
    <name>frmAddLocation</name>
    <message>
        <source>No Location has been selected to edit. Please select a Location and try again.</source>
        <translation>Es ist kein Lagerplatz zum Bearbeiten ausgewählt. Bitte wählen Sie einen Lagerplatz aus und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Please select a Location to remove.</source>
        <translation>Bitte wählen Sie den Lagerplatz aus, der entfernt werden soll.</translation>
    </message>
    <message>
        <source>This Location is in use by one or more items and so cannot be deleted. To delete this Location first remove the items and then try again.</source>
        <translation>Dieser Lagerplatz wird von einem oder mehreren Artikeln verwendet und kann nicht gelöscht werden. Entfernen Sie zuerst die Artikel und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this Location?</source>
        <translation>Möchten Sie diesen Lagerplatz wirklich löschen?</translation>
    </message>
    <message>
        <source>Location Details</source>
        <translation>Lagerplatz</translation>
    </message>
    <message>
        <source>Instructions - enter the Location name and then click OK.</source>
        <translation>Hinweis - Geben Sie den Namen des Lagerplatzes ein und klicken Sie dann auf OK.</translation>
    </message>
    <message>
        <source>Please enter a Location name to continue.</source>
        <translation>Bitte geben Sie den Namen des Lagerplatzes ein, um fortzufahren.</translation>
    </message>
</context>
<context>
    <name>frmAddOrderItem</name>
    <message>
        <source>Add Order Item</source>
        <translation>Position hinzufügen</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>No In Stock</source>
        <translation>Auf Lager</translation>
    </message>
    <message>
        <source>Sale Price</source>
        <translation>Verkaufspreis</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Item Matches:</source>
        <translation>Gefundene Artikel:</translation>
    </message>
    <message>
        <source>Add Item to Invoice</source>
        <translation>Artikel auf die Rechnung setzen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Item Matches</source>
        <translation>Gefundene Artikel</translation>
    </message>
    <message>
        <source>Instructions - select the item to add to the invoice and then click &apos;Add Item to Invoice&apos;. To search for an item select the Category, Sub-Category, Item Name, Item Description and then click &apos;Search&apos;.</source>
        <translation>Hinweis - Wählen Sie den Artikel für die Rechnung aus und klicken Sie dann auf „Artikel auf die Rechnung setzen“. Um einen Artikel zu suchen, geben Sie Kategorie, Unterkategorie, Bezeichnung oder Beschreibung an und klicken Sie auf „Suchen“.</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Kategorie:</translation>
    </message>
    <message>
        <source>Sub Category:</source>
        <translation>Unterkategorie:</translation>
    </message>
    <message>
        <source>Price List:</source>
        <translation>Preisliste:</translation>
    </message>
    <message>
        <source>Item Name:</source>
        <translation>Bezeichnung:</translation>
    </message>
    <message>
        <source>Item Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Item Number:</source>
        <translation>Artikelnummer:</translation>
    </message>
    <message>
        <source>Quantity to Add:</source>
        <translation>Menge:</translation>
    </message>
    <message>
        <source>Price:</source>
        <translation>Preis:</translation>
    </message>
    <message>
        <source>All Categories</source>
        <translation>Alle Kategorien</translation>
    </message>
    <message>
        <source>No Category</source>
        <translation>Ohne Kategorie</translation>
    </message>
    <message>
        <source>All Sub-Categories</source>
        <translation>Alle Unterkategorien</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Suche läuft...</translation>
    </message>
    <message>
        <source>%1 Item Matches:</source>
        <translation>%1 gefundene Artikel:</translation>
    </message>
    <message>
        <source>This item does not have enough items in stock. To add this item first increase the total number in stock.</source>
        <translation>Von diesem Artikel ist nicht genug auf Lager. Erhöhen Sie zuerst den Bestand, um ihn hinzuzufügen.</translation>
    </message>
    <message>
        <source>No item matches.</source>
        <translation>Kein Artikel gefunden.</translation>
    </message>
    <message>
        <source>Searching the items...</source>
        <translation>Artikel werden durchsucht...</translation>
    </message>
</context>
<context>
    <name>frmAddPriceList</name>
    <message>
        <source>%1 (Default)</source>
        <translation>%1 (Standard)</translation>
    </message>
    <message>
        <source>No Price List has been selected to edit. Please select a Price List and try again.</source>
        <translation>Es ist keine Preisliste zum Bearbeiten ausgewählt. Bitte wählen Sie eine Preisliste aus und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Please select a Price List to remove.</source>
        <translation>Bitte wählen Sie die Preisliste aus, die entfernt werden soll.</translation>
    </message>
    <message>
        <source>This is the default Price List and so cannot be deleted. However it can be renamed, to rename press the Edit button.</source>
        <translation>Dies ist die Standardpreisliste; sie kann nicht gelöscht werden. Sie kann aber umbenannt werden: Klicken Sie dazu auf Bearbeiten.</translation>
    </message>
    <message>
        <source>All pricing for this Price List will be lost. Are you sure you want to delete this Price List?</source>
        <translation>Alle Preise dieser Preisliste gehen verloren. Möchten Sie diese Preisliste wirklich löschen?</translation>
    </message>
    <message>
        <source>Price List Details</source>
        <translation>Preisliste</translation>
    </message>
    <message>
        <source>Instructions - enter the Price List name and then click OK.</source>
        <translation>Hinweis - Geben Sie den Namen der Preisliste ein und klicken Sie dann auf OK.</translation>
    </message>
    <message>
        <source>Please enter a Price List name to continue.</source>
        <translation>Bitte geben Sie den Namen der Preisliste ein, um fortzufahren.</translation>
    </message>
    <message>
        <source>Adding prices</source>
        <translation>Preise werden hinzugefügt</translation>
    </message>
    <message>
        <source>Adding prices: %p%</source>
        <translation>Preise hinzufügen: %p%</translation>
    </message>
</context>
<context>
    <name>frmAddSubCategory</name>
    <message>
        <source>No Sub-Category has been selected to edit. Please select a Sub-Category and try again.</source>
        <translation>Es ist keine Unterkategorie zum Bearbeiten ausgewählt. Bitte wählen Sie eine Unterkategorie aus und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Please select a Sub-Category to remove.</source>
        <translation>Bitte wählen Sie die Unterkategorie aus, die entfernt werden soll.</translation>
    </message>
    <message>
        <source>This Sub-Category is in use by one or more items and so cannot be deleted. To delete this Sub-Category first remove the items and then try again.</source>
        <translation>Diese Unterkategorie wird von einem oder mehreren Artikeln verwendet und kann nicht gelöscht werden. Entfernen Sie zuerst die Artikel und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this Sub-Category?</source>
        <translation>Möchten Sie diese Unterkategorie wirklich löschen?</translation>
    </message>
    <message>
        <source>Sub-Category Details</source>
        <translation>Unterkategorie</translation>
    </message>
    <message>
        <source>Instructions - enter the Sub-Category name and then click OK.</source>
        <translation>Hinweis - Geben Sie den Namen der Unterkategorie ein und klicken Sie dann auf OK.</translation>
    </message>
    <message>
        <source>Please enter a Sub-Category name to continue.</source>
        <translation>Bitte geben Sie den Namen der Unterkategorie ein, um fortzufahren.</translation>
    </message>
</context>
<context>
    <name>frmAddTaxRate</name>
    <message>
        <source>No Tax Rate has been selected to edit. Please select a Tax Rate and try again.</source>
        <translation>Es ist kein Steuersatz zum Bearbeiten ausgewählt. Bitte wählen Sie einen Steuersatz aus und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Please select a Tax Rate to remove.</source>
        <translation>Bitte wählen Sie den Steuersatz aus, der entfernt werden soll.</translation>
    </message>
    <message>
        <source>This Tax Rate is in use by one or more items and so cannot be deleted. To delete this Tax Rate first remove the items and then try again.</source>
        <translation>Dieser Steuersatz wird von einem oder mehreren Artikeln verwendet und kann nicht gelöscht werden. Entfernen Sie zuerst die Artikel und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this Tax Rate?</source>
        <translation>Möchten Sie diesen Steuersatz wirklich löschen?</translation>
    </message>
    <message>
        <source>Tax Rate Details</source>
        <translation>Steuersatz</translation>
    </message>
    <message>
        <source>Instructions - enter the Tax Rate name, tax percentage and then click OK.</source>
        <translation>Hinweis - Geben Sie Namen und Prozentsatz des Steuersatzes ein und klicken Sie dann auf OK.</translation>
    </message>
    <message>
        <source>Please enter a Tax Rate name to continue.</source>
        <translation>Bitte geben Sie den Namen des Steuersatzes ein, um fortzufahren.</translation>
    </message>
    <message>
        <source>Percentage:</source>
        <translation>Prozentsatz:</translation>
    </message>
</context>
<context>
    <name>frmAddWarehouse</name>
    <message>
        <source>No Warehouse has been selected to edit. Please select a Warehouse and try again.</source>
        <translation>Es ist kein Lager zum Bearbeiten ausgewählt. Bitte wählen Sie ein Lager aus und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Please select a Warehouse to remove.</source>
        <translation>Bitte wählen Sie das Lager aus, das entfernt werden soll.</translation>
    </message>
    <message>
        <source>The default warehouse cannot be deleted. To change this warehouse click Edit.</source>
        <translation>Das Standardlager kann nicht gelöscht werden. Um es zu ändern, klicken Sie auf Bearbeiten.</translation>
    </message>
    <message>
        <source>This Warehouse is in use by one or more locations and so cannot be deleted. To delete this Warehouse first remove the locations and then try again.</source>
        <translation>Dieses Lager wird von einem oder mehreren Lagerplätzen verwendet und kann nicht gelöscht werden. Entfernen Sie zuerst die Lagerplätze und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this Warehouse?</source>
        <translation>Möchten Sie dieses Lager wirklich löschen?</translation>
    </message>
    <message>
        <source>Warehouse Details</source>
        <translation>Lager</translation>
    </message>
    <message>
        <source>Instructions - enter the Warehouse name and then click OK.</source>
        <translation>Hinweis - Geben Sie den Namen des Lagers ein und klicken Sie dann auf OK.</translation>
    </message>
    <message>
        <source>Please enter a Warehouse name to continue.</source>
        <translation>Bitte geben Sie den Namen des Lagers ein, um fortzufahren.</translation>
    </message>
</context>
<context>
    <name>frmCategories</name>
    <message>
        <source>Configure Categories</source>
        <translation>Kategorien konfigurieren</translation>
    </message>
    <message>
        <source>Instructions - configure the Categories and Sub-Categories items can be in.</source>
        <translation>Hinweis - Legen Sie die Kategorien und Unterkategorien Ihrer Artikel fest.</translation>
    </message>
    <message>
        <source>Categories:</source>
        <translation>Kategorien:</translation>
    </message>
    <message>
        <source>Sub-Categories:</source>
        <translation>Unterkategorien:</translation>
    </message>
    <message>
        <source>&amp;Add Sub-Category</source>
        <translation>&amp;Unterkategorie hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Edit Sub-Category</source>
        <translation>Unterkategorie bea&amp;rbeiten</translation>
    </message>
    <message>
        <source>&amp;Remove Sub-Category</source>
        <translation>Unterkategorie en&amp;tfernen</translation>
    </message>
    <message>
        <source>No Category has been selected to add the Sub-Category to. Please select a Category to continue.</source>
        <translation>Es ist keine Kategorie für die Unterkategorie ausgewählt. Bitte wählen Sie eine Kategorie aus, um fortzufahren.</translation>
    </message>
</context>
<context>
    <name>frmConfigInvoice</name>
    <message>
        <source>Invoice Style</source>
        <translation>Rechnungsdarstellung</translation>
    </message>
    <message>
        <source>Instructions - choose your invoice style and then click OK.</source>
        <translation>Hinweis - Wählen Sie die Darstellung Ihrer Rechnungen und klicken Sie dann auf OK.</translation>
    </message>
    <message>
        <source>Font Size:</source>
        <translation>Schriftgröße:</translation>
    </message>
    <message>
        <source>Hide &apos;Our Price&apos; column.</source>
        <translation>Spalte „Unser Preis“ ausblenden.</translation>
    </message>
    <message>
        <source>Hide tax information on invoices.</source>
        <translation>Steuerangaben auf Rechnungen ausblenden.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>frmCustomer</name>
    <message>
        <source>Customer Details</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>First Name:</source>
        <translation>Vorname:</translation>
    </message>
    <message>
        <source>Last Name:</source>
        <translation>Nachname:</translation>
    </message>
    <message>
        <source>Business Name:</source>
        <translation>Firma:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Bundesland:</translation>
    </message>
    <message>
        <source>Country:</source>
        <translation>Land:</translation>
    </message>
    <message>
        <source>Zip/Post Code:</source>
        <translation>PLZ:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Telefon:</translation>
    </message>
    <message>
        <source>Fax:</source>
        <translation>Fax:</translation>
    </message>
    <message>
        <source>Email:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>Discount:</source>
        <translation>Rabatt:</translation>
    </message>
    <message>
        <source>Customer %1 saved</source>
        <translation>Kunde %1 gespeichert</translation>
    </message>
</context>
<context>
    <name>frmFindCustomer</name>
    <message>
        <source>Find Customer</source>
        <translation>Kunden suchen</translation>
    </message>
    <message>
        <source>First Name:</source>
        <translation>Vorname:</translation>
    </message>
    <message>
        <source>Last Name:</source>
        <translation>Nachname:</translation>
    </message>
    <message>
        <source>Business Name:</source>
        <translation>Firma:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Bundesland:</translation>
    </message>
    <message>
        <source>Country:</source>
        <translation>Land:</translation>
    </message>
    <message>
        <source>Post Code:</source>
        <translation>PLZ:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Telefon:</translation>
    </message>
    <message>
        <source>Email:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>&amp;Start Search</source>
        <translation>S&amp;uche starten</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Add Customer</source>
        <translation>Kunden hinzufügen</translation>
    </message>
    <message>
        <source>View/Edit Customer</source>
        <translation>Kunden anzeigen/bearbeiten</translation>
    </message>
    <message>
        <source>Delete Customer</source>
        <translation>Kunden löschen</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>Treffer</translation>
    </message>
    <message>
        <source>Total customer matches:</source>
        <translation>Gefundene Kunden:</translation>
    </message>
    <message>
        <source>No criteria to search by has been entered. Please enter some details and try again.</source>
        <translation>Es sind keine Suchkriterien angegeben. Bitte geben Sie etwas ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>No customer matches.</source>
        <translation>Kein Kunde gefunden.</translation>
    </message>
    <message>
        <source>Searching the customers...</source>
        <translation>Kunden werden durchsucht...</translation>
    </message>
</context>
<context>
    <name>frmFindInvoice</name>
    <message>
        <source>Find Invoice</source>
        <translation>Rechnung suchen</translation>
    </message>
    <message>
        <source>&amp;Start Search</source>
        <translation>S&amp;uche starten</translation>
    </message>
    <message>
        <source>View/Edit Invoice</source>
        <translation>Rechnung anzeigen/bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>Treffer</translation>
    </message>
    <message>
        <source>From Date:</source>
        <translation>Von Datum:</translation>
    </message>
    <message>
        <source>To Date:</source>
        <translation>Bis Datum:</translation>
    </message>
    <message>
        <source>Total matches:</source>
        <translation>Treffer gesamt:</translation>
    </message>
    <message>
        <source>Contact Name</source>
        <translation>Ansprechpartner</translation>
    </message>
    <message>
        <source>Business Name</source>
        <translation>Firma</translation>
    </message>
    <message>
        <source>Invoice Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>No criteria to search by has been entered. Please enter some details and try again.</source>
        <translation>Es sind keine Suchkriterien angegeben. Bitte geben Sie etwas ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>No reservation has been selected. Select a reservation to to view or edit and try again.</source>
        <translation>Es ist keine Rechnung ausgewählt. Wählen Sie eine Rechnung zum Anzeigen oder Bearbeiten aus und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Press &quot;Start Search&quot; to list the invoices of these days.</source>
        <translation>Klicken Sie auf „Suche starten“, um die Rechnungen dieser Tage aufzulisten.</translation>
    </message>
    <message>
        <source>No invoice is of these days.</source>
        <translation>An diesen Tagen gibt es keine Rechnung.</translation>
    </message>
    <message>
        <source>Searching the invoices...</source>
        <translation>Rechnungen werden durchsucht...</translation>
    </message>
</context>
<context>
    <name>frmHelp</name>
    <message>
        <source>Tavrin Inventory Help</source>
        <translation>Hilfe zu Tavrin Inventory</translation>
    </message>
    <message>
        <source>Ways to a page</source>
        <translation>Wege zu einer Seite</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Hilfeseite</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>Inde&amp;x</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Suchen</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>Look for</source>
        <translation>Suchen nach</translation>
    </message>
    <message>
        <source>Type the first letters of a word</source>
        <translation>Die ersten Buchstaben eines Wortes</translation>
    </message>
    <message>
        <source>Words to search for</source>
        <translation>Gesuchte Wörter</translation>
    </message>
    <message>
        <source>Type words, then press Enter</source>
        <translation>Wörter eingeben, dann Eingabetaste</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Gefundene Seiten</translation>
    </message>
    <message>
        <source>&amp;Find in page:</source>
        <translation>In der Seite s&amp;uchen:</translation>
    </message>
    <message>
        <source>Find in page</source>
        <translation>In der Seite suchen</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Rückwärts suchen</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Symbolleiste</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vor</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Startseite</translation>
    </message>
    <message>
        <source>Find in Page</source>
        <translation>In der Seite suchen</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Drucken...</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Weitersuchen</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Rückwärts suchen</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1 - Tavrin Inventory Help</source>
        <translation>%1 - Hilfe zu Tavrin Inventory</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Suche läuft...</translation>
    </message>
    <message>
        <source>Pages found: %1</source>
        <translation>Gefundene Seiten: %1</translation>
    </message>
    <message>
        <source>No page has all of these words.</source>
        <translation>Keine Seite enthält alle diese Wörter.</translation>
    </message>
    <message>
        <source>Not found.</source>
        <translation>Nicht gefunden.</translation>
    </message>
</context>
<context>
    <name>frmItemDetails</name>
    <message>
        <source>Item Details</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Instructions - enter the item&apos;s details. Only the name is required, however entering other details allows you to use more program features. Press F1 for help.</source>
        <translation>Hinweis - Geben Sie die Daten des Artikels ein. Nur die Bezeichnung ist erforderlich; weitere Angaben erschließen weitere Funktionen. Mit F1 öffnen Sie die Hilfe.</translation>
    </message>
    <message>
        <source>Item Number:</source>
        <translation>Artikelnummer:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Bezeichnung:</translation>
    </message>
    <message>
        <source>Long Description:</source>
        <translation>Beschreibung:</translation>
    </message>
    <message>
        <source>Barcode:</source>
        <translation>Barcode:</translation>
    </message>
    <message>
        <source>No In Stock:</source>
        <translation>Auf Lager:</translation>
    </message>
    <message>
        <source>Reorder Level:</source>
        <translation>Meldebestand:</translation>
    </message>
    <message>
        <source>Min Stock Level:</source>
        <translation>Mindestbestand:</translation>
    </message>
    <message>
        <source>Warranty Returns:</source>
        <translation>Garantierückgaben:</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Kategorie:</translation>
    </message>
    <message>
        <source>Sub Category:</source>
        <translation>Unterkategorie:</translation>
    </message>
    <message>
        <source>Vendor:</source>
        <translation>Lieferant:</translation>
    </message>
    <message>
        <source>Tax Rate:</source>
        <translation>Steuersatz:</translation>
    </message>
    <message>
        <source>Warehouse:</source>
        <translation>Lager:</translation>
    </message>
    <message>
        <source>Storage Location:</source>
        <translation>Lagerplatz:</translation>
    </message>
    <message>
        <source>Sale Price:</source>
        <translation>Verkaufspreis:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <source>All Sub-Categories</source>
        <translation>Alle Unterkategorien</translation>
    </message>
    <message>
        <source>The Item Number is already in use. Continue anyway?</source>
        <translation>Die Artikelnummer wird bereits verwendet. Trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>The Barcode is already in use. Continue anyway?</source>
        <translation>Der Barcode wird bereits verwendet. Trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>The Name is already in use. Continue anyway?</source>
        <translation>Die Bezeichnung wird bereits verwendet. Trotzdem fortfahren?</translation>
    </message>
    <message>
        <source>Item %1 saved</source>
        <translation>Artikel %1 gespeichert</translation>
    </message>
</context>
<context>
    <name>frmItemGroup</name>
    <message>
        <source>Item Group Details</source>
        <translation>Artikelgruppe</translation>
    </message>
    <message>
        <source>&amp;Add Item</source>
        <translation>Artikel &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Items in Group:</source>
        <translation>Artikel in der Gruppe:</translation>
    </message>
    <message>
        <source>Instructions - enter the group&apos;s name, add items to the group and then click close to finish.</source>
        <translation>Hinweis - Geben Sie den Namen der Gruppe ein, fügen Sie Artikel hinzu und klicken Sie dann auf OK.</translation>
    </message>
    <message>
        <source>Item Group Name:</source>
        <translation>Name der Artikelgruppe:</translation>
    </message>
    <message>
        <source>Items:</source>
        <translation>Artikel:</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>No item has been selected. Please select an item to remove and try again.</source>
        <translation>Es ist kein Artikel ausgewählt. Bitte wählen Sie den Artikel aus, der entfernt werden soll, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The group is empty. Choose an item and press &quot;Add Item&quot;.</source>
        <translation>Die Gruppe ist leer. Wählen Sie einen Artikel und klicken Sie auf „Artikel hinzufügen“.</translation>
    </message>
    <message>
        <source>Reading the items...</source>
        <translation>Artikel werden gelesen...</translation>
    </message>
</context>
<context>
    <name>frmItemQuantity</name>
    <message>
        <source>Item Quantity</source>
        <translation>Artikelmenge</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>New Quantity:</source>
        <translation>Neue Menge:</translation>
    </message>
    <message>
        <source>Price:</source>
        <translation>Preis:</translation>
    </message>
</context>
<context>
    <name>frmLocations</name>
    <message>
        <source>Configure Item Locations</source>
        <translation>Lagerplätze konfigurieren</translation>
    </message>
    <message>
        <source>Instructions - configuring Item Locations helps you to organize your inventory so it can easily be found. </source>
        <translation>Hinweis - Lagerplätze helfen Ihnen, Ihren Bestand zu ordnen, damit jeder Artikel leicht zu finden ist. </translation>
    </message>
    <message>
        <source>Warehouses:</source>
        <translation>Lager:</translation>
    </message>
    <message>
        <source>Item Bins/Locations:</source>
        <translation>Lagerfächer/Lagerplätze:</translation>
    </message>
    <message>
        <source>&amp;Add Location</source>
        <translation>&amp;Lagerplatz hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Edit Location</source>
        <translation>Lagerplatz bea&amp;rbeiten</translation>
    </message>
    <message>
        <source>&amp;Remove Location</source>
        <translation>Lagerplatz en&amp;tfernen</translation>
    </message>
    <message>
        <source>No Warehouse has been selected to add the Location to. Please select a Warehouse to continue.</source>
        <translation>Es ist kein Lager für den Lagerplatz ausgewählt. Bitte wählen Sie ein Lager aus, um fortzufahren.</translation>
    </message>
</context>
<context>
    <name>frmMultiplePricing</name>
    <message>
        <source>Configure Multiple Item Pricing</source>
        <translation>Artikelpreise konfigurieren</translation>
    </message>
    <message>
        <source>Instructions - configure the available Pricing Lists. Each item can multiple pricing.</source>
        <translation>Hinweis - Legen Sie die verfügbaren Preislisten fest. Jeder Artikel kann mehrere Preise haben.</translation>
    </message>
    <message>
        <source>Price Lists:</source>
        <translation>Preislisten:</translation>
    </message>
    <message>
        <source>Deleting the prices...</source>
        <translation>Preise werden gelöscht...</translation>
    </message>
</context>
<context>
    <name>frmPaperSetup</name>
    <message>
        <source>Page Setup</source>
        <translation>Seite einrichten</translation>
    </message>
    <message>
        <source>&amp;Portrait</source>
        <translation>&amp;Hochformat</translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <translation>&amp;Querformat</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Pape&amp;r:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Ausrichtung:</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>Ränder</translation>
    </message>
    <message>
        <source>L&amp;eft:</source>
        <translation>&amp;Links:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Oben:</translation>
    </message>
    <message>
        <source>R&amp;ight:</source>
        <translation>&amp;Rechts:</translation>
    </message>
    <message>
        <source>&amp;Bottom:</source>
        <translation>&amp;Unten:</translation>
    </message>
    <message>
        <source> in</source>
        <translation> Zoll</translation>
    </message>
    <message>
        <source> mm</source>
        <translation> mm</translation>
    </message>
</context>
<context>
    <name>frmReceiveStock</name>
    <message>
        <source>Receive Stock</source>
        <translation>Wareneingang</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Update Stock Level</source>
        <translation>Bestand aktualisieren</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Instructions - to receive stock select the item, enter the quantity received and press Update Stock Level. When you have finished press Close.</source>
        <translation>Hinweis - Um einen Wareneingang zu buchen, wählen Sie den Artikel aus, geben Sie die erhaltene Menge ein und klicken Sie auf Bestand aktualisieren. Klicken Sie zum Schluss auf Schließen.</translation>
    </message>
    <message>
        <source>Bar Code:</source>
        <translation>Barcode:</translation>
    </message>
    <message>
        <source>Quantity received:</source>
        <translation>Erhaltene Menge:</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>In Stock</source>
        <translation>Auf Lager</translation>
    </message>
    <message>
        <source>Item not found.</source>
        <translation>Artikel nicht gefunden.</translation>
    </message>
    <message>
        <source>No valid number has been entered to update. Please enter a valid number and try again.</source>
        <translation>Es ist keine gültige Menge angegeben. Bitte geben Sie eine gültige Zahl ein und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>%1 x %2 received, now %3</source>
        <translation>%1 x %2 eingegangen, jetzt %3</translation>
    </message>
    <message>
        <source>Nothing of %1 was received: Enter was not pressed after its quantity.</source>
        <translation>%1 wurde nicht eingebucht: Nach der Menge wurde nicht die Eingabetaste gedrückt.</translation>
    </message>
    <message>
        <source>There are no items to receive stock of.</source>
        <translation>Es gibt keine Artikel für einen Wareneingang.</translation>
    </message>
    <message>
        <source>Reading the items...</source>
        <translation>Artikel werden gelesen...</translation>
    </message>
</context>
<context>
    <name>frmReorderReportFilter</name>
    <message>
        <source>Filtered Reorder Report</source>
        <translation>Gefilterter Bestellvorschlag</translation>
    </message>
    <message>
        <source>No Filter</source>
        <translation>Kein Filter</translation>
    </message>
    <message>
        <source>Vendor:</source>
        <translation>Lieferant:</translation>
    </message>
    <message>
        <source>Item:</source>
        <translation>Artikel:</translation>
    </message>
    <message>
        <source>Item Location:</source>
        <translation>Lagerplatz:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Instructions - select how you would like the Reorder Report filtered and then click OK to display.</source>
        <translation>Hinweis - Wählen Sie, wie der Bestellvorschlag gefiltert werden soll, und klicken Sie dann auf OK, um ihn anzuzeigen.</translation>
    </message>
    <message>
        <source>Sort by:</source>
        <translation>Sortieren nach:</translation>
    </message>
    <message>
        <source>Reading the items...</source>
        <translation>Artikel werden gelesen...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Bezeichnung</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
</context>
<context>
    <name>frmResCustSearch</name>
    <message>
        <source>Customer Search</source>
        <translation>Kundensuche</translation>
    </message>
    <message>
        <source>&amp;Start Search</source>
        <translation>S&amp;uche starten</translation>
    </message>
    <message>
        <source>S&amp;elect</source>
        <translation>Aus&amp;wählen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Search Results:</source>
        <translation>Suchergebnisse:</translation>
    </message>
    <message>
        <source>First Name:</source>
        <translation>Vorname:</translation>
    </message>
    <message>
        <source>Last Name:</source>
        <translation>Nachname:</translation>
    </message>
    <message>
        <source>No matches found. Please try again or press Close to enter new customer details.</source>
        <translation>Keine Treffer. Bitte versuchen Sie es erneut oder klicken Sie auf Schließen, um einen neuen Kunden einzugeben.</translation>
    </message>
    <message>
        <source>Press &quot;Start Search&quot; to list the customers of these names.</source>
        <translation>Klicken Sie auf „Suche starten“, um die Kunden dieses Namens aufzulisten.</translation>
    </message>
    <message>
        <source>No customer matches.</source>
        <translation>Kein Kunde gefunden.</translation>
    </message>
    <message>
        <source>Searching the customers...</source>
        <translation>Kunden werden durchsucht...</translation>
    </message>
</context>
<context>
    <name>frmSetNextInvoiceNo</name>
    <message>
        <source>Set Next Invoice Number</source>
        <translation>Nächste Rechnungsnummer festlegen</translation>
    </message>
    <message>
        <source>Next Invoice Number:</source>
        <translation>Nächste Rechnungsnummer:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Please enter a valid invoice number.</source>
        <translation>Bitte geben Sie eine gültige Rechnungsnummer ein.</translation>
    </message>
</context>
<context>
    <name>frmSplash</name>
    <message>
        <source>Tavrin Inventory</source>
        <translation>Tavrin Inventory</translation>
    </message>
    <message>
        <source>Stock and invoices, side by side</source>
        <translation>Lager und Rechnungen, Seite an Seite</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
</context>
<context>
    <name>frmSystemInfo</name>
    <message>
        <source> (%1 bytes)</source>
        <translation> (%1 Bytes)</translation>
    </message>
    <message>
        <source>%1 items, %2 customers, %3 invoices</source>
        <translation>%1 Artikel, %2 Kunden, %3 Rechnungen</translation>
    </message>
    <message>
        <source>%1 x %2, scaled by %3, %4, style %5</source>
        <translation>%1 x %2, Skalierung %3, %4, Stil %5</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programm</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source> (built with %1)</source>
        <translation> (erstellt mit %1)</translation>
    </message>
    <message>
        <source>Database engine</source>
        <translation>Datenbank</translation>
    </message>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Language and region</source>
        <translation>Sprache und Region</translation>
    </message>
    <message>
        <source>Data file</source>
        <translation>Datendatei</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Program&apos;s folder</source>
        <translation>Programmordner</translation>
    </message>
    <message>
        <source>Help file</source>
        <translation>Hilfedatei</translation>
    </message>
    <message>
        <source>System Information</source>
        <translation>Systeminformationen</translation>
    </message>
    <message>
        <source>System information</source>
        <translation>Systeminformationen</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copies all of it, for a letter to the support</source>
        <translation>Kopiert alles, für einen Brief an die Unterstützung</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Instructions - click Copy and paste this into your question to the support.</source>
        <translation>Hinweis - Klicken Sie auf Kopieren und fügen Sie dies in Ihre Anfrage an die Unterstützung ein.</translation>
    </message>
</context>
<context>
    <name>frmTaxRate</name>
    <message>
        <source>Configure Tax Rates</source>
        <translation>Steuersätze konfigurieren</translation>
    </message>
    <message>
        <source>Instructions - configure the available Tax Rates. Each item can have any Tax Rate associated with it.</source>
        <translation>Hinweis - Legen Sie die verfügbaren Steuersätze fest. Jedem Artikel kann ein beliebiger Steuersatz zugeordnet werden.</translation>
    </message>
    <message>
        <source>Tax Rates:</source>
        <translation>Steuersätze:</translation>
    </message>
    <message>
        <source>Enable Secondary Tax</source>
        <translation>Zweite Steuer aktivieren</translation>
    </message>
    <message>
        <source>2nd Sales Tax Name (i.e. PST, VAT, GST etc):</source>
        <translation>Name der 2. Steuer (z. B. MwSt., USt.):</translation>
    </message>
    <message>
        <source>2nd Sales Tax Percentage:</source>
        <translation>Prozentsatz der 2. Steuer:</translation>
    </message>
</context>
<context>
    <name>frmTip</name>
    <message>
        <source>Tip of the Day</source>
        <translation>Tipp des Tages</translation>
    </message>
    <message>
        <source>&amp;Show Tips at Startup</source>
        <translation>&amp;Tipps beim Start anzeigen</translation>
    </message>
    <message>
        <source>&amp;Next Tip</source>
        <translation>&amp;Nächster Tipp</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Did you know...</source>
        <translation>Wussten Sie schon...</translation>
    </message>
    <message>
        <source>That the </source>
        <translation>Die Datei </translation>
    </message>
    <message>
        <source> file was not found? </source>
        <translation> wurde nicht gefunden. </translation>
    </message>
    <message>
        <source>Create a text file named </source>
        <translation>Erstellen Sie im Editor eine Textdatei namens </translation>
    </message>
    <message>
        <source> using NotePad with 1 tip per line. </source>
        <translation> mit einem Tipp pro Zeile. </translation>
    </message>
    <message>
        <source>Then place it in the same directory as the application. </source>
        <translation>Legen Sie sie dann in den Ordner des Programms. </translation>
    </message>
</context>
<context>
    <name>frmVendor</name>
    <message>
        <source>Vendor Details</source>
        <translation>Lieferant</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notizen:</translation>
    </message>
    <message>
        <source>Contact Name:</source>
        <translation>Ansprechpartner:</translation>
    </message>
    <message>
        <source>Business Name:</source>
        <translation>Firma:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Bundesland:</translation>
    </message>
    <message>
        <source>Country:</source>
        <translation>Land:</translation>
    </message>
    <message>
        <source>Zip/Post Code:</source>
        <translation>PLZ:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Telefon:</translation>
    </message>
    <message>
        <source>Fax:</source>
        <translation>Fax:</translation>
    </message>
    <message>
        <source>Email:</source>
        <translation>E-Mail:</translation>
    </message>
    <message>
        <source>Vendor %1 saved</source>
        <translation>Lieferant %1 gespeichert</translation>
    </message>
</context>
<context>
    <name>frmWizConfig_Barcode</name>
    <message>
        <source>Enable Barcodes</source>
        <translation>Barcodes aktivieren</translation>
    </message>
    <message>
        <source>Would you like to enable barcode scanning? This can help you save time later when adding items.</source>
        <translation>Möchten Sie das Scannen von Barcodes aktivieren? Das spart später Zeit beim Hinzufügen von Artikeln.</translation>
    </message>
    <message>
        <source>Enable Barcode Scanning</source>
        <translation>Scannen von Barcodes aktivieren</translation>
    </message>
</context>
<context>
    <name>frmWizConfig_Business</name>
    <message>
        <source>Business contact details</source>
        <translation>Kontaktdaten des Unternehmens</translation>
    </message>
    <message>
        <source>Enter your business contact details, this information will be used on your invoices.</source>
        <translation>Geben Sie die Kontaktdaten Ihres Unternehmens ein. Sie erscheinen auf Ihren Rechnungen.</translation>
    </message>
    <message>
        <source>Business Name:</source>
        <translation>Firma:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ort:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Bundesland:</translation>
    </message>
    <message>
        <source>Country:</source>
        <translation>Land:</translation>
    </message>
    <message>
        <source>Zip/Post Code:</source>
        <translation>PLZ:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Telefon:</translation>
    </message>
    <message>
        <source>Fax:</source>
        <translation>Fax:</translation>
    </message>
</context>
<context>
    <name>frmWizConfig_Cats</name>
    <message>
        <source>Enable Item Categories</source>
        <translation>Artikelkategorien aktivieren</translation>
    </message>
    <message>
        <source>Would you like to enable item Categories and Sub-categories? Categories can help you to organize your inventory items.</source>
        <translation>Möchten Sie Kategorien und Unterkategorien für Artikel aktivieren? Kategorien helfen Ihnen, Ihren Bestand zu ordnen.</translation>
    </message>
    <message>
        <source>Enable Item Categories and Sub-categories</source>
        <translation>Kategorien und Unterkategorien aktivieren</translation>
    </message>
</context>
<context>
    <name>frmWizConfig_Complete</name>
    <message>
        <source>Click Finish to complete your configuration.</source>
        <translation>Klicken Sie auf Fertigstellen, um die Konfiguration abzuschließen.</translation>
    </message>
</context>
<context>
    <name>frmWizConfig_Logo</name>
    <message>
        <source>Your company logo</source>
        <translation>Ihr Firmenlogo</translation>
    </message>
    <message>
        <source>You can optionally select a logo to be displayed on your invoices. Click Browse to select your logo file.</source>
        <translation>Sie können ein Logo für Ihre Rechnungen auswählen. Klicken Sie auf Durchsuchen, um die Logodatei auszuwählen.</translation>
    </message>
    <message>
        <source>B&amp;rowse</source>
        <translation>&amp;Durchsuchen</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Logo filename:</source>
        <translation>Logodatei:</translation>
    </message>
    <message>
        <source>Logo preview:</source>
        <translation>Logovorschau:</translation>
    </message>
    <message>
        <source>Unable to load file </source>
        <translation>Die Datei kann nicht geladen werden: </translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>BMP Image (*.bmp)</source>
        <translation>BMP-Bild (*.bmp)</translation>
    </message>
    <message>
        <source>JPG Image (*.jpg)</source>
        <translation>JPG-Bild (*.jpg)</translation>
    </message>
    <message>
        <source>GIF Image (*.gif)</source>
        <translation>GIF-Bild (*.gif)</translation>
    </message>
</context>
<context>
    <name>frmWizConfig_PickingList</name>
    <message>
        <source>Enable Picking Lists</source>
        <translation>Kommissionierlisten aktivieren</translation>
    </message>
    <message>
        <source>Would you like to enable the creation of Picking Lists? Picking Lists help you to physically locate items for orders.</source>
        <translation>Möchten Sie Kommissionierlisten aktivieren? Mit ihnen finden Sie die Artikel einer Bestellung im Lager.</translation>
    </message>
    <message>
        <source>Enable Picking List</source>
        <translation>Kommissionierliste aktivieren</translation>
    </message>
</context>
<context>
    <name>frmWizConfig_Tax</name>
    <message>
        <source>Tax information</source>
        <translation>Steuerangaben</translation>
    </message>
    <message>
        <source>Enter the tax name and percentage that can be added to items sold (you can setup multiple tax rates later).</source>
        <translation>Geben Sie Namen und Prozentsatz der Steuer an, die auf verkaufte Artikel erhoben wird (weitere Steuersätze können Sie später einrichten).</translation>
    </message>
    <message>
        <source>Hide tax information on invoices.</source>
        <translation>Steuerangaben auf Rechnungen ausblenden.</translation>
    </message>
    <message>
        <source>Enable Secondary Tax</source>
        <translation>Zweite Steuer aktivieren</translation>
    </message>
    <message>
        <source>2nd Sales Tax</source>
        <translation>Zweite Steuer</translation>
    </message>
    <message>
        <source>2nd Sales Tax Name (i.e. PST etc):</source>
        <translation>Name der 2. Steuer (z. B. USt.):</translation>
    </message>
    <message>
        <source>Tax Name:</source>
        <translation>Name der Steuer:</translation>
    </message>
    <message>
        <source>Percentage:</source>
        <translation>Prozentsatz:</translation>
    </message>
</context>
<context>
    <name>frmWizConfig_Welcome</name>
    <message>
        <source>Configuration Wizard</source>
        <translation>Konfigurationsassistent</translation>
    </message>
    <message>
        <source>Using this wizard you can configure your inventory details.</source>
        <translation>Mit diesem Assistenten richten Sie Ihre Bestandsverwaltung ein.</translation>
    </message>
</context>
<context>
    <name>frmWizImport_Complete</name>
    <message>
        <source>Data has been imported. Click Finish to close the wizard.</source>
        <translation>Die Daten wurden importiert. Klicken Sie auf Fertigstellen, um den Assistenten zu schließen.</translation>
    </message>
</context>
<context>
    <name>frmWizImport_File</name>
    <message>
        <source>Choose the file to import</source>
        <translation>Datei für den Import auswählen</translation>
    </message>
    <message>
        <source>Enter the CSV file to import or click browse to locate it.</source>
        <translation>Geben Sie die CSV-Datei ein, die importiert werden soll, oder klicken Sie auf Durchsuchen.</translation>
    </message>
    <message>
        <source>&amp;Browse</source>
        <translation>Du&amp;rchsuchen</translation>
    </message>
    <message>
        <source>CSV file to import:</source>
        <translation>CSV-Datei:</translation>
    </message>
    <message>
        <source>CSV (*.csv)</source>
        <translation>CSV (*.csv)</translation>
    </message>
    <message>
        <source>Unable to read file, please check you have permissions and try again.</source>
        <translation>Die Datei kann nicht gelesen werden. Bitte prüfen Sie Ihre Zugriffsrechte und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>No file has been entered. Please enter a file to continue.</source>
        <translation>Es wurde keine Datei angegeben. Bitte geben Sie eine Datei an, um fortzufahren.</translation>
    </message>
    <message>
        <source>Cannot open file. Please select a file to continue.</source>
        <translation>Die Datei kann nicht geöffnet werden. Bitte wählen Sie eine Datei aus, um fortzufahren.</translation>
    </message>
</context>
<context>
    <name>frmWizImport_Preview</name>
    <message>
        <source>(none)</source>
        <translation>(keines)</translation>
    </message>
    <message>
        <source>Choose the fields to import</source>
        <translation>Felder für den Import auswählen</translation>
    </message>
    <message>
        <source>Choose the fields you want to import.</source>
        <translation>Wählen Sie die Felder aus, die Sie importieren möchten.</translation>
    </message>
    <message>
        <source>First line has field names</source>
        <translation>Erste Zeile enthält Feldnamen</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Vorschau:</translation>
    </message>
    <message>
        <source>Importing records</source>
        <translation>Datensätze werden importiert</translation>
    </message>
    <message>
        <source>String separator:</source>
        <translation>Textbegrenzer:</translation>
    </message>
    <message>
        <source>Import Fields:</source>
        <translation>Felder:</translation>
    </message>
    <message>
        <source>(ignore)</source>
        <translation>(nicht importieren)</translation>
    </message>
    <message>
        <source>%1 records.</source>
        <translation>%1 Datensätze.</translation>
    </message>
    <message>
        <source>Unable to to import CSV file.</source>
        <translation>Die CSV-Datei kann nicht importiert werden.</translation>
    </message>
    <message>
        <source>Error occured when importing record %1</source>
        <translation>Fehler beim Import von Datensatz %1</translation>
    </message>
    <message>
        <source>Importing the records...</source>
        <translation>Datensätze werden importiert...</translation>
    </message>
</context>
<context>
    <name>frmWizImport_Welcome</name>
    <message>
        <source>Inventory Import Wizard</source>
        <translation>Assistent für den Artikelimport</translation>
    </message>
    <message>
        <source>Using this wizard you can import inventory information.</source>
        <translation>Mit diesem Assistenten können Sie Artikeldaten importieren.</translation>
    </message>
</context>
<context>
    <name>frmWizMailList_Complete</name>
    <message>
        <source>Click Finish to complete your configuration.</source>
        <translation>Klicken Sie auf Fertigstellen, um die Konfiguration abzuschließen.</translation>
    </message>
    <message>
        <source>Unable to write to file </source>
        <translation>Die Datei kann nicht geschrieben werden: </translation>
    </message>
    <message>
        <source>Writing the file...</source>
        <translation>Datei wird geschrieben...</translation>
    </message>
</context>
<context>
    <name>frmWizMailList_File</name>
    <message>
        <source>Enter the Mailing List filename</source>
        <translation>Dateiname des E-Mail-Verteilers</translation>
    </message>
    <message>
        <source>Enter the filename you would like to populate with your email list.</source>
        <translation>Geben Sie den Namen der Datei an, in die Ihre E-Mail-Adressen geschrieben werden sollen.</translation>
    </message>
    <message>
        <source>B&amp;rowse</source>
        <translation>&amp;Durchsuchen</translation>
    </message>
    <message>
        <source>Mailing List Filename:</source>
        <translation>Verteilerdatei:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>Text documents (*.txt)</source>
        <translation>Textdokumente (*.txt)</translation>
    </message>
    <message>
        <source>No mailing list filename has been entered. Please enter a filename to continue.</source>
        <translation>Es ist kein Dateiname für den Verteiler angegeben. Bitte geben Sie einen Dateinamen ein, um fortzufahren.</translation>
    </message>
</context>
<context>
    <name>frmWizMailList_Welcome</name>
    <message>
        <source>Email Mailing List Wizard</source>
        <translation>Assistent für E-Mail-Verteiler</translation>
    </message>
    <message>
        <source>Using this wizard you can create a mailing list of your customers.</source>
        <translation>Mit diesem Assistenten erstellen Sie einen E-Mail-Verteiler Ihrer Kunden.</translation>
    </message>
</context>
<context>
    <name>frmWizOConfig_Complete</name>
    <message>
        <source>Would you like to create a booking web page now?</source>
        <translation>Möchten Sie die Bestellseite jetzt erstellen?</translation>
    </message>
    <message>
        <source>Click Finish to complete your configuration.</source>
        <translation>Klicken Sie auf Fertigstellen, um die Konfiguration abzuschließen.</translation>
    </message>
</context>
<context>
    <name>frmWizOConfig_Email</name>
    <message>
        <source>Enter your email booking address</source>
        <translation>E-Mail-Adresse für Bestellungen</translation>
    </message>
    <message>
        <source>Enter the email address that should recieve the bookings made from the website.</source>
        <translation>Geben Sie die E-Mail-Adresse ein, an die Bestellungen von der Website gesendet werden sollen.</translation>
    </message>
    <message>
        <source>Booking email address:</source>
        <translation>E-Mail für Bestellungen:</translation>
    </message>
    <message>
        <source>No email address has been entered. Please enter an email address to continue.</source>
        <translation>Es ist keine E-Mail-Adresse angegeben. Bitte geben Sie eine E-Mail-Adresse ein, um fortzufahren.</translation>
    </message>
</context>
<context>
    <name>frmWizOConfig_Provider</name>
    <message>
        <source>Choose your email provider</source>
        <translation>E-Mail-Anbieter wählen</translation>
    </message>
    <message>
        <source>Select the email provider to use to send your email confirmations. If you are not sure then leave the default setting.</source>
        <translation>Wählen Sie den E-Mail-Anbieter, der Ihre E-Mail-Bestätigungen sendet. Wenn Sie nicht sicher sind, lassen Sie die Standardeinstellung.</translation>
    </message>
    <message>
        <source>Email provider:</source>
        <translation>E-Mail-Anbieter:</translation>
    </message>
    <message>
        <source>Custom provider:</source>
        <translation>Anderer Anbieter:</translation>
    </message>
    <message>
        <source>Response-o-Matic (default)</source>
        <translation>Response-o-Matic (Standard)</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Anderer...</translation>
    </message>
    <message>
        <source>No custom provider has been entered. Continue anyway?</source>
        <translation>Es ist kein anderer Anbieter angegeben. Trotzdem fortfahren?</translation>
    </message>
</context>
<context>
    <name>frmWizOConfig_Welcome</name>
    <message>
        <source>Web Booking Configuration Wizard</source>
        <translation>Assistent für Webbestellungen</translation>
    </message>
    <message>
        <source>Using this wizard you can configure your website to accept online bookings.</source>
        <translation>Mit diesem Assistenten richten Sie Ihre Website für Onlinebestellungen ein.</translation>
    </message>
</context>
</TS>
