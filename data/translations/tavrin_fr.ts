<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>Chart</name>
    <message>
        <source>No data</source>
        <translation>Aucune donnée</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Libellé</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Save As...</source>
        <translation>&amp;Enregistrer sous...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimer...</translation>
    </message>
    <message>
        <source>Save Chart As</source>
        <translation>Enregistrer le graphique sous</translation>
    </message>
    <message>
        <source>PNG picture (*.png);;SVG drawing (*.svg)</source>
        <translation>Image PNG (*.png);;Dessin SVG (*.svg)</translation>
    </message>
    <message>
        <source>chart</source>
        <translation>graphique</translation>
    </message>
    <message>
        <source>The chart could not be saved as %1.</source>
        <translation>Le graphique n&apos;a pas pu être enregistré sous %1.</translation>
    </message>
    <message>
        <source>No printer is installed. The chart can be saved as a picture without one.</source>
        <translation>Aucune imprimante n&apos;est installée. Le graphique peut être enregistré comme image sans imprimante.</translation>
    </message>
    <message>
        <source>The chart could not be printed.</source>
        <translation>Le graphique n&apos;a pas pu être imprimé.</translation>
    </message>
    <message>
        <source>Series %1</source>
        <translation>Série %1</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1, %2: %3</source>
        <translation>%1, %2&#xa0;: %3</translation>
    </message>
    <message>
        <source>3D bar chart</source>
        <translation>Histogramme 3D</translation>
    </message>
    <message>
        <source>2D bar chart</source>
        <translation>Histogramme 2D</translation>
    </message>
    <message>
        <source>3D line chart</source>
        <translation>Graphique en courbes 3D</translation>
    </message>
    <message>
        <source>2D line chart</source>
        <translation>Graphique en courbes 2D</translation>
    </message>
    <message>
        <source>3D area chart</source>
        <translation>Graphique en aires 3D</translation>
    </message>
    <message>
        <source>2D area chart</source>
        <translation>Graphique en aires 2D</translation>
    </message>
    <message>
        <source>3D step chart</source>
        <translation>Graphique en escalier 3D</translation>
    </message>
    <message>
        <source>2D step chart</source>
        <translation>Graphique en escalier 2D</translation>
    </message>
    <message>
        <source>%1 without data</source>
        <translation>%1 sans données</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, %2 to %3</source>
        <translation>%1, %2 à %3</translation>
    </message>
</context>
<context>
    <name>CsvExports</name>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>CSV (*.csv)</source>
        <translation>CSV (*.csv)</translation>
    </message>
    <message>
        <source>Text documents (*.txt)</source>
        <translation>Documents texte (*.txt)</translation>
    </message>
    <message>
        <source>Unable to write to file, please check you have permissions and try again.</source>
        <translation>Impossible d&apos;écrire dans le fichier. Vérifiez que vous en avez le droit et réessayez.</translation>
    </message>
    <message>
        <source>Writing the file...</source>
        <translation>Écriture du fichier...</translation>
    </message>
</context>
<context>
    <name>CsvReader</name>
    <message>
        <source>The first line has no end. Lines must end with CR LF.</source>
        <translation>La première ligne n’a pas de fin. Les lignes doivent se terminer par CR LF.</translation>
    </message>
</context>
<context>
    <name>CustomerCommands</name>
    <message>
        <source>This customer has existing invoices and cannot be deleted. To delete this customer first delete all their invoices.</source>
        <translation>Ce client a des factures et ne peut pas être supprimé. Pour le supprimer, supprimez d&apos;abord toutes ses factures.</translation>
    </message>
    <message>
        <source>Cannot delete customer.</source>
        <translation>Impossible de supprimer le client.</translation>
    </message>
    <message>
        <source>Delete customer?</source>
        <translation>Supprimer le client&#xa0;?</translation>
    </message>
    <message>
        <source>Customer %1 deleted</source>
        <translation>Client %1 supprimé</translation>
    </message>
</context>
<context>
    <name>CustomerMatches</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Postcode</source>
        <translation>Code postal</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
</context>
<context>
    <name>CustomersPanel</name>
    <message>
        <source>View/Edit Customer</source>
        <translation>Afficher/modifier le client</translation>
    </message>
    <message>
        <source>Add Customer</source>
        <translation>Ajouter un client</translation>
    </message>
    <message>
        <source>Delete Customer</source>
        <translation>Supprimer le client</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Clients</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Zip/Postcode</source>
        <translation>Code postal</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Instructions - you are currently viewing your customer list. This includes all customers you have invoiced or previously added. To sort by a column click it&apos;s title. For more details press F1 for help.</source>
        <translation>Instructions - vous consultez la liste de vos clients. Elle comprend tous les clients que vous avez facturés ou ajoutés. Pour trier par une colonne, cliquez sur son titre. Pour en savoir plus, appuyez sur F1.</translation>
    </message>
    <message>
        <source>Reading the customers...</source>
        <translation>Lecture des clients...</translation>
    </message>
</context>
<context>
    <name>DatabaseBackup</name>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>MDB (*.mdb)</source>
        <translation>MDB (*.mdb)</translation>
    </message>
    <message>
        <source>Unable to write to file </source>
        <translation>Impossible d&apos;écrire dans le fichier </translation>
    </message>
    <message>
        <source>Successfully backed up database file.</source>
        <translation>La base de données a été sauvegardée.</translation>
    </message>
    <message>
        <source>Copying the database...</source>
        <translation>Copie de la base de données...</translation>
    </message>
</context>
<context>
    <name>DatePicker</name>
    <message>
        <source>Tick to give a date</source>
        <translation>Cochez pour indiquer une date</translation>
    </message>
</context>
<context>
    <name>Dialogs</name>
    <message>
        <source>%1
The path does not exist. Check the path and try again.</source>
        <translation>%1
Le chemin n&apos;existe pas. Vérifiez le chemin et réessayez.</translation>
    </message>
    <message>
        <source>The help pages are not available.</source>
        <translation>Les pages d&apos;aide ne sont pas disponibles.</translation>
    </message>
</context>
<context>
    <name>EmailLink</name>
    <message>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <source>Write an email</source>
        <translation>Écrire un e-mail</translation>
    </message>
    <message>
        <source>Write an email to this address</source>
        <translation>Écrire un e-mail à cette adresse</translation>
    </message>
</context>
<context>
    <name>FileWait</name>
    <message>
        <source>Waiting for another program that has the database open...</source>
        <translation>Attente d&apos;un autre programme qui a ouvert la base de données...</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Words to look for, in any order</source>
        <translation>Mots à chercher, dans n&apos;importe quel ordre</translation>
    </message>
    <message>
        <source>Filter:</source>
        <translation>Filtre&#xa0;:</translation>
    </message>
    <message>
        <source>Close the filter (Esc)</source>
        <translation>Fermer le filtre (Échap)</translation>
    </message>
    <message>
        <source>Close the filter</source>
        <translation>Fermer le filtre</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>FinishPage</name>
    <message>
        <source>Finished</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>&amp;Terminer</translation>
    </message>
</context>
<context>
    <name>FlexGrid</name>
    <message>
        <source>Invalid Row value</source>
        <translation>Valeur de Row non valide</translation>
    </message>
    <message>
        <source>Invalid Col value</source>
        <translation>Valeur de Col non valide</translation>
    </message>
    <message>
        <source>No row has all of these words. Press Esc to show all rows.</source>
        <translation>Aucune ligne ne contient tous ces mots. Appuyez sur Échap pour afficher toutes les lignes.</translation>
    </message>
</context>
<context>
    <name>HelpDesk</name>
    <message>
        <source>The help file %1 is missing or damaged.</source>
        <translation>Le fichier d&apos;aide %1 manque ou est endommagé.</translation>
    </message>
</context>
<context>
    <name>ImportFields</name>
    <message>
        <source>Item Name</source>
        <translation>Nom de l’article</translation>
    </message>
    <message>
        <source>Item Ref. Number</source>
        <translation>Référence de l’article</translation>
    </message>
    <message>
        <source>Item Description</source>
        <translation>Description de l’article</translation>
    </message>
    <message>
        <source>Item Barcode</source>
        <translation>Code-barres de l’article</translation>
    </message>
    <message>
        <source>Item Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Item Sub-Category</source>
        <translation>Sous-catégorie</translation>
    </message>
    <message>
        <source>Item Vendor</source>
        <translation>Fournisseur</translation>
    </message>
    <message>
        <source>Item Tax Rate</source>
        <translation>Taux de taxe</translation>
    </message>
    <message>
        <source>Number in Stock</source>
        <translation>Quantité en stock</translation>
    </message>
    <message>
        <source>Reorder Level</source>
        <translation>Seuil de réapprovisionnement</translation>
    </message>
    <message>
        <source>Minimum Stock Level</source>
        <translation>Stock minimum</translation>
    </message>
    <message>
        <source>Warranty Returns</source>
        <translation>Retours sous garantie</translation>
    </message>
</context>
<context>
    <name>ImportReading</name>
    <message>
        <source>Field%1</source>
        <translation>Champ%1</translation>
    </message>
    <message>
        <source>Reading the file...</source>
        <translation>Lecture du fichier...</translation>
    </message>
</context>
<context>
    <name>InventoryList</name>
    <message>
        <source>Price List:</source>
        <translation>Tarif&#xa0;:</translation>
    </message>
    <message>
        <source>New Item</source>
        <translation>Nouvel article</translation>
    </message>
    <message>
        <source>View/Edit Item</source>
        <translation>Afficher/modifier l&apos;article</translation>
    </message>
    <message>
        <source>Delete Item</source>
        <translation>Supprimer l&apos;article</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Stock</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Désignation</translation>
    </message>
    <message>
        <source>Sale Price</source>
        <translation>Prix de vente</translation>
    </message>
    <message>
        <source>Tax Rate</source>
        <translation>Taux de taxe</translation>
    </message>
    <message>
        <source>In Stock</source>
        <translation>En stock</translation>
    </message>
    <message>
        <source>Instructions - you are currently viewing your inventory. This includes all inventory items. To sort by a column click it&apos;s title. For more details press F1 for help.</source>
        <translation>Instructions - vous consultez votre stock. Il comprend tous vos articles. Pour trier par une colonne, cliquez sur son titre. Pour en savoir plus, appuyez sur F1.</translation>
    </message>
    <message>
        <source>%1 items.</source>
        <translation>%1 articles.</translation>
    </message>
    <message>
        <source>This item is used on one or more invoices and cannot be deleted. To delete this item first delete all invoices it is included in.</source>
        <translation>Cet article figure sur une ou plusieurs factures et ne peut pas être supprimé. Pour le supprimer, supprimez d&apos;abord toutes les factures où il figure.</translation>
    </message>
    <message>
        <source>Cannot delete item.</source>
        <translation>Impossible de supprimer l&apos;article.</translation>
    </message>
    <message>
        <source>Delete item?</source>
        <translation>Supprimer l&apos;article&#xa0;?</translation>
    </message>
    <message>
        <source>Item %1 deleted</source>
        <translation>Article %1 supprimé</translation>
    </message>
    <message>
        <source>At or below the reorder level</source>
        <translation>Au seuil de commande ou en dessous</translation>
    </message>
    <message>
        <source>Reading the items...</source>
        <translation>Lecture des articles...</translation>
    </message>
</context>
<context>
    <name>InvoiceDocuments</name>
    <message>
        <source>Preparing the document...</source>
        <translation>Préparation du document...</translation>
    </message>
</context>
<context>
    <name>InvoiceHistory</name>
    <message>
        <source>View/Edit Invoice</source>
        <translation>Afficher/modifier la facture</translation>
    </message>
    <message>
        <source>New Invoice</source>
        <translation>Nouvelle facture</translation>
    </message>
    <message>
        <source>Delete Invoice</source>
        <translation>Supprimer la facture</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Factures</translation>
    </message>
    <message>
        <source>Show invoices:</source>
        <translation>Afficher les factures&#xa0;:</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Business Name</source>
        <translation>Entreprise</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Invoice Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Invoice History</source>
        <translation>Historique des factures</translation>
    </message>
    <message>
        <source>Instructions - you are currently viewing your Invoice History. This includes all past invoices that have been created. To sort by a column click it&apos;s title. For more details press F1 for help.</source>
        <translation>Instructions - vous consultez l&apos;historique de vos factures. Il comprend toutes les factures créées. Pour trier par une colonne, cliquez sur son titre. Pour en savoir plus, appuyez sur F1.</translation>
    </message>
    <message>
        <source>All Invoices</source>
        <translation>Toutes les factures</translation>
    </message>
    <message>
        <source>Unpaid Invoices</source>
        <translation>Factures impayées</translation>
    </message>
    <message>
        <source>No invoice has been selected. Select an invoice from the list and try again.</source>
        <translation>Aucune facture n&apos;est sélectionnée. Sélectionnez une facture dans la liste et réessayez.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this invoice?</source>
        <translation>Voulez-vous vraiment supprimer cette facture&#xa0;?</translation>
    </message>
    <message>
        <source>Invoice %1 deleted</source>
        <translation>Facture %1 supprimée</translation>
    </message>
    <message>
        <source>Reading the invoices...</source>
        <translation>Lecture des factures...</translation>
    </message>
</context>
<context>
    <name>InvoicePage</name>
    <message>
        <source>Clear customer details?</source>
        <translation>Effacer les coordonnées du client&#xa0;?</translation>
    </message>
    <message>
        <source>Item not found.</source>
        <translation>Article introuvable.</translation>
    </message>
    <message>
        <source>Not all items have enough stock to be added to the invoice.</source>
        <translation>Le stock de certains articles ne suffit pas pour les ajouter à la facture.</translation>
    </message>
    <message>
        <source>Delete item from invoice?</source>
        <translation>Supprimer la ligne de la facture&#xa0;?</translation>
    </message>
    <message>
        <source>Cancel invoice?</source>
        <translation>Annuler la facture&#xa0;?</translation>
    </message>
    <message>
        <source>Print Invoice?</source>
        <translation>Imprimer la facture&#xa0;?</translation>
    </message>
    <message>
        <source>Invoice number %1 was given twice: another invoice went out under it meanwhile.</source>
        <translation>Le numéro de facture %1 a été attribué deux fois&#xa0;: une autre facture l&apos;a pris entre-temps.</translation>
    </message>
    <message>
        <source>Edit Invoice</source>
        <translation>Modifier la facture</translation>
    </message>
    <message>
        <source>New Invoice</source>
        <translation>Nouvelle facture</translation>
    </message>
    <message>
        <source>Bar Code:</source>
        <translation>Code-barres&#xa0;:</translation>
    </message>
    <message>
        <source>This invoice no longer exists: it has been deleted. What you enter here belongs to no invoice.</source>
        <translation>Cette facture n&apos;existe plus&#xa0;: elle a été supprimée. Ce que vous saisissez ici n&apos;appartient à aucune facture.</translation>
    </message>
    <message>
        <source>Instructions -  Enter your customer&apos;s details and/or click Customer Search to locate an existing customer. Add your invoice items and then click Complete Invoice.</source>
        <translation>Instructions - saisissez les coordonnées du client ou cliquez sur Rechercher un client pour trouver un client existant. Ajoutez les lignes de la facture, puis cliquez sur Terminer la facture.</translation>
    </message>
    <message>
        <source>Enter your customer&apos;s details:</source>
        <translation>Saisissez les coordonnées du client&#xa0;:</translation>
    </message>
    <message>
        <source>Zip/Post Code:</source>
        <translation>Code postal&#xa0;:</translation>
    </message>
    <message>
        <source>Customer &amp;Search</source>
        <translation>Rechercher &amp;un client</translation>
    </message>
    <message>
        <source>&amp;Reset Customer</source>
        <translation>Réinitialiser le c&amp;lient</translation>
    </message>
    <message>
        <source>Warranty Invoice</source>
        <translation>Facture de garantie</translation>
    </message>
    <message>
        <source>Add From Bar Code</source>
        <translation>Ajouter par code-barres</translation>
    </message>
    <message>
        <source>Add Order Item</source>
        <translation>Ajouter une ligne</translation>
    </message>
    <message>
        <source>Edit Order Item</source>
        <translation>Modifier la ligne</translation>
    </message>
    <message>
        <source>Delete Order Item</source>
        <translation>Supprimer la ligne</translation>
    </message>
    <message>
        <source>Add Group Items</source>
        <translation>Ajouter un groupe</translation>
    </message>
    <message>
        <source>Paid in full</source>
        <translation>Payée intégralement</translation>
    </message>
    <message>
        <source>Secondary Tax:</source>
        <translation>Seconde taxe&#xa0;:</translation>
    </message>
    <message>
        <source>Complete Invoice</source>
        <translation>Terminer la facture</translation>
    </message>
    <message>
        <source>Cancel Invoice</source>
        <translation>Annuler la facture</translation>
    </message>
    <message>
        <source>Picking List</source>
        <translation>Bon de préparation</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>First Name:</source>
        <translation>Prénom&#xa0;:</translation>
    </message>
    <message>
        <source>Last Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Business Name:</source>
        <translation>Entreprise&#xa0;:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse&#xa0;:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ville&#xa0;:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Région&#xa0;:</translation>
    </message>
    <message>
        <source>Country:</source>
        <translation>Pays&#xa0;:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Téléphone&#xa0;:</translation>
    </message>
    <message>
        <source>Fax:</source>
        <translation>Fax&#xa0;:</translation>
    </message>
    <message>
        <source>Email:</source>
        <translation>E-mail&#xa0;:</translation>
    </message>
    <message>
        <source>Discount:</source>
        <translation>Remise&#xa0;:</translation>
    </message>
    <message>
        <source>Price List:</source>
        <translation>Tarif&#xa0;:</translation>
    </message>
    <message>
        <source>Invoice No:</source>
        <translation>N° de facture&#xa0;:</translation>
    </message>
    <message>
        <source>Invoice Date:</source>
        <translation>Date de facture&#xa0;:</translation>
    </message>
    <message>
        <source>Shipped Date:</source>
        <translation>Date d&apos;envoi&#xa0;:</translation>
    </message>
    <message>
        <source>Qty</source>
        <translation>Qté</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Désignation</translation>
    </message>
    <message>
        <source>Sale Price</source>
        <translation>Prix de vente</translation>
    </message>
    <message>
        <source>Tax Rate</source>
        <translation>Taux de taxe</translation>
    </message>
    <message>
        <source>Sub-Total</source>
        <translation>Sous-total</translation>
    </message>
    <message>
        <source>Items Ordered:</source>
        <translation>Articles commandés&#xa0;:</translation>
    </message>
    <message>
        <source>Payment Method:</source>
        <translation>Mode de paiement&#xa0;:</translation>
    </message>
    <message>
        <source>Amount Payed:</source>
        <translation>Montant payé&#xa0;:</translation>
    </message>
    <message>
        <source>Invoice Notes:</source>
        <translation>Notes de la facture&#xa0;:</translation>
    </message>
    <message>
        <source>Total:</source>
        <translation>Total&#xa0;:</translation>
    </message>
    <message>
        <source>Customer Payments:</source>
        <translation>Paiements du client&#xa0;:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Chèque</translation>
    </message>
    <message>
        <source>Cash</source>
        <translation>Espèces</translation>
    </message>
    <message>
        <source>Credit Card</source>
        <translation>Carte de crédit</translation>
    </message>
    <message>
        <source>Bank Transfer</source>
        <translation>Virement bancaire</translation>
    </message>
    <message>
        <source>Charge to Account</source>
        <translation>Porter au compte</translation>
    </message>
    <message>
        <source>Invoice %1 cancelled</source>
        <translation>Facture %1 annulée</translation>
    </message>
    <message>
        <source>Invoice %1 completed</source>
        <translation>Facture %1 terminée</translation>
    </message>
    <message>
        <source>Invoice %1 closed</source>
        <translation>Facture %1 fermée</translation>
    </message>
    <message>
        <source>There is not enough in stock to add %1.</source>
        <translation>Le stock ne suffit pas pour ajouter %1.</translation>
    </message>
    <message>
        <source>%1 was not added: the tax rate of its item no longer exists.</source>
        <translation>%1 n’a pas été ajouté&#xa0;: le taux de taxe de l’article n’existe plus.</translation>
    </message>
    <message>
        <source>Lines: %1   Pieces: %2</source>
        <translation>Lignes&#xa0;: %1   Pièces&#xa0;: %2</translation>
    </message>
    <message>
        <source>Lines: %1   Pieces: %2   Last code: %3</source>
        <translation>Lignes&#xa0;: %1   Pièces&#xa0;: %2   Dernier code&#xa0;: %3</translation>
    </message>
    <message>
        <source>Nothing is ordered yet. Scan a bar code or press &quot;%1&quot;.</source>
        <translation>Rien n&apos;est encore commandé. Scannez un code-barres ou cliquez sur «&#xa0;%1&#xa0;».</translation>
    </message>
</context>
<context>
    <name>InvoiceReport</name>
    <message>
        <source>Phone: </source>
        <translation>Téléphone&#xa0;: </translation>
    </message>
    <message>
        <source>Warranty Invoice</source>
        <translation>Facture de garantie</translation>
    </message>
    <message>
        <source>Invoice / Receipt for</source>
        <translation>Facture / reçu pour</translation>
    </message>
    <message>
        <source>Invoice Number:</source>
        <translation>Numéro de facture&#xa0;:</translation>
    </message>
    <message>
        <source>Your order of</source>
        <translation>Votre commande du</translation>
    </message>
    <message>
        <source>Ref.</source>
        <translation>Réf.</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Article</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Taxe</translation>
    </message>
    <message>
        <source>Our Price</source>
        <translation>Notre prix</translation>
    </message>
    <message>
        <source>Total Price</source>
        <translation>Prix total</translation>
    </message>
    <message>
        <source>Tax Total</source>
        <translation>Total des taxes</translation>
    </message>
    <message>
        <source>Order Total (including tax)</source>
        <translation>Total de la commande (taxes comprises)</translation>
    </message>
    <message>
        <source>2nd Tax Total</source>
        <translation>Total 2e taxe</translation>
    </message>
    <message>
        <source>Invoice</source>
        <translation>Facture</translation>
    </message>
</context>
<context>
    <name>ItemGroups</name>
    <message>
        <source>View/Edit Item Group</source>
        <translation>Afficher/modifier le groupe d&apos;articles</translation>
    </message>
    <message>
        <source>New Item Group</source>
        <translation>Nouveau groupe d&apos;articles</translation>
    </message>
    <message>
        <source>Delete Item Group</source>
        <translation>Supprimer le groupe d&apos;articles</translation>
    </message>
    <message>
        <source>Item Groups</source>
        <translation>Groupes d&apos;articles</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Instructions - you are currently viewing your item groups. To sort by a column click it&apos;s title. For more details press F1 for help.</source>
        <translation>Instructions - vous consultez vos groupes d&apos;articles. Pour trier par une colonne, cliquez sur son titre. Pour en savoir plus, appuyez sur F1.</translation>
    </message>
    <message>
        <source>No item group has been selected. Select an item group from the list and try again.</source>
        <translation>Aucun groupe d&apos;articles n&apos;est sélectionné. Sélectionnez un groupe d&apos;articles dans la liste et réessayez.</translation>
    </message>
    <message>
        <source>This Item Group has existing items and cannot be deleted. To delete this Item Group first delete all items they supply.</source>
        <translation>Ce groupe d&apos;articles contient des articles et ne peut pas être supprimé. Pour le supprimer, retirez d&apos;abord tous ses articles.</translation>
    </message>
    <message>
        <source>Cannot delete Item Group.</source>
        <translation>Impossible de supprimer le groupe d&apos;articles.</translation>
    </message>
    <message>
        <source>Delete Item Group?</source>
        <translation>Supprimer le groupe d&apos;articles&#xa0;?</translation>
    </message>
    <message>
        <source>Item Group %1 deleted</source>
        <translation>Groupe d&apos;articles %1 supprimé</translation>
    </message>
</context>
<context>
    <name>KeyGroupForm</name>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>There is nothing to show. Press &quot;%1&quot; to begin.</source>
        <translation>Il n&apos;y a rien à afficher. Cliquez sur «&#xa0;%1&#xa0;» pour commencer.</translation>
    </message>
</context>
<context>
    <name>KeyListForm</name>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Ajouter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>There is nothing to show. Press &quot;Add&quot; to begin.</source>
        <translation>Il n&apos;y a rien à afficher. Cliquez sur «&#xa0;Ajouter&#xa0;» pour commencer.</translation>
    </message>
</context>
<context>
    <name>ListPanel</name>
    <message>
        <source>There is nothing to show. Press &quot;%1&quot; to begin.</source>
        <translation>Il n&apos;y a rien à afficher. Cliquez sur «&#xa0;%1&#xa0;» pour commencer.</translation>
    </message>
</context>
<context>
    <name>MainMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>Import In&amp;ventory...</source>
        <translation>Importer le stoc&amp;k...</translation>
    </message>
    <message>
        <source>Export &amp;Invoices...</source>
        <translation>Exporter les &amp;factures...</translation>
    </message>
    <message>
        <source>Export Inv&amp;entory...</source>
        <translation>Exporter le &amp;stock...</translation>
    </message>
    <message>
        <source>Export &amp;Customers...</source>
        <translation>Exporter les &amp;clients...</translation>
    </message>
    <message>
        <source>Export &amp;Today&apos;s Invoices...</source>
        <translation>Exporter les factures du &amp;jour...</translation>
    </message>
    <message>
        <source>&amp;Backup Database...</source>
        <translation>Sauve&amp;garder la base de données...</translation>
    </message>
    <message>
        <source>Page &amp;Setup...</source>
        <translation>&amp;Mise en page...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimer...</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Co&amp;uper</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;oller</translation>
    </message>
    <message>
        <source>Cle&amp;ar</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Web Orders</source>
        <translation>Commandes &amp;Web</translation>
    </message>
    <message>
        <source>&amp;Configure Web Orders...</source>
        <translation>&amp;Configurer les commandes Web...</translation>
    </message>
    <message>
        <source>&amp;Create Web Orders Page...</source>
        <translation>Créer la &amp;page de commande Web...</translation>
    </message>
    <message>
        <source>Inv&amp;oices</source>
        <translation>Fac&amp;tures</translation>
    </message>
    <message>
        <source>Invoice &amp;History</source>
        <translation>&amp;Historique des factures</translation>
    </message>
    <message>
        <source>&amp;New Invoice</source>
        <translation>&amp;Nouvelle facture</translation>
    </message>
    <message>
        <source>&amp;Find Invoice...</source>
        <translation>&amp;Rechercher une facture...</translation>
    </message>
    <message>
        <source>&amp;Set Next Invoice No...</source>
        <translation>&amp;Définir le prochain numéro de facture...</translation>
    </message>
    <message>
        <source>&amp;Inventory</source>
        <translation>&amp;Stock</translation>
    </message>
    <message>
        <source>&amp;View Inventory</source>
        <translation>&amp;Afficher le stock</translation>
    </message>
    <message>
        <source>View Item &amp;Groups</source>
        <translation>Afficher les &amp;groupes d&apos;articles</translation>
    </message>
    <message>
        <source>&amp;Add Item...</source>
        <translation>Ajouter un ar&amp;ticle...</translation>
    </message>
    <message>
        <source>&amp;Receive Stock...</source>
        <translation>&amp;Réception de marchandises...</translation>
    </message>
    <message>
        <source>&amp;Customers</source>
        <translation>&amp;Clients</translation>
    </message>
    <message>
        <source>&amp;View Customers</source>
        <translation>&amp;Afficher les clients</translation>
    </message>
    <message>
        <source>&amp;Add Customer...</source>
        <translation>A&amp;jouter un client...</translation>
    </message>
    <message>
        <source>&amp;Find Customer...</source>
        <translation>&amp;Rechercher un client...</translation>
    </message>
    <message>
        <source>Email Mailing List &amp;Wizard...</source>
        <translation>Assistant &amp;liste de diffusion...</translation>
    </message>
    <message>
        <source>&amp;Reports</source>
        <translation>&amp;Rapports</translation>
    </message>
    <message>
        <source>&amp;Quick Statistics</source>
        <translation>&amp;Statistiques rapides</translation>
    </message>
    <message>
        <source>&amp;Reorder Report</source>
        <translation>&amp;Rapport de réapprovisionnement</translation>
    </message>
    <message>
        <source>&amp;Filtered Reorder Report...</source>
        <translation>Rapport de réapprovisionnement &amp;filtré...</translation>
    </message>
    <message>
        <source>&amp;Stock Level Report</source>
        <translation>É&amp;tat des stocks</translation>
    </message>
    <message>
        <source>&amp;Custom Reports...</source>
        <translation>Rapports &amp;personnalisés...</translation>
    </message>
    <message>
        <source>&amp;Vendors</source>
        <translation>F&amp;ournisseurs</translation>
    </message>
    <message>
        <source>&amp;View Vendors</source>
        <translation>&amp;Afficher les fournisseurs</translation>
    </message>
    <message>
        <source>&amp;Add Vendor...</source>
        <translation>A&amp;jouter un fournisseur...</translation>
    </message>
    <message>
        <source>Confi&amp;gure</source>
        <translation>Confi&amp;guration</translation>
    </message>
    <message>
        <source>&amp;Configuration Wizard...</source>
        <translation>&amp;Assistant de configuration...</translation>
    </message>
    <message>
        <source>&amp;Regional Settings...</source>
        <translation>Paramètres &amp;régionaux...</translation>
    </message>
    <message>
        <source>&amp;Tax Rates...</source>
        <translation>&amp;Taux de taxe...</translation>
    </message>
    <message>
        <source>Item &amp;Locations and Warehouses...</source>
        <translation>&amp;Emplacements et entrepôts...</translation>
    </message>
    <message>
        <source>Item C&amp;ategories...</source>
        <translation>&amp;Catégories d&apos;articles...</translation>
    </message>
    <message>
        <source>&amp;Invoice Style...</source>
        <translation>&amp;Style de facture...</translation>
    </message>
    <message>
        <source>Multiple Item &amp;Pricing...</source>
        <translation>Tarifs &amp;multiples...</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>&amp;Contents...</source>
        <translation>&amp;Sommaire...</translation>
    </message>
    <message>
        <source>Tip of the &amp;Day...</source>
        <translation>&amp;Astuce du jour...</translation>
    </message>
    <message>
        <source>&amp;Index...</source>
        <translation>&amp;Index...</translation>
    </message>
    <message>
        <source>&amp;Search...</source>
        <translation>&amp;Rechercher...</translation>
    </message>
    <message>
        <source>&amp;Online Support</source>
        <translation>Assistance en &amp;ligne</translation>
    </message>
    <message>
        <source>Send &amp;Feedback</source>
        <translation>&amp;Envoyer des commentaires</translation>
    </message>
    <message>
        <source>&amp;About...</source>
        <translation>À &amp;propos...</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Unable to open database </source>
        <translation>Impossible d&apos;ouvrir la base de données </translation>
    </message>
    <message>
        <source>Tavrin Inventory</source>
        <translation>Tavrin Inventory</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barre d&apos;outils</translation>
    </message>
    <message>
        <source>We&apos;ve noticed that this is the first time you have launched Tavrin Inventory. You may find it useful to follow the getting started tutorial. Would you like to view it now?</source>
        <translation>C&apos;est la première fois que vous lancez Tavrin Inventory. Le didacticiel de prise en main peut vous être utile. Voulez-vous l&apos;afficher maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>Would you like to run the &apos;Configuration Wizard&apos; now?</source>
        <translation>Voulez-vous lancer l&apos;assistant de configuration maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>The database file %1 is damaged. Close the program and restore a backup of the file: what is entered from now on may be lost.</source>
        <translation>Le fichier de base de données %1 est endommagé. Fermez le programme et restaurez une sauvegarde du fichier&#xa0;: ce qui est saisi à partir de maintenant peut être perdu.</translation>
    </message>
    <message>
        <source>Post Code</source>
        <translation>Code postal</translation>
    </message>
    <message>
        <source>Bringing the database file up to date...</source>
        <translation>Mise à jour du fichier de la base de données...</translation>
    </message>
</context>
<context>
    <name>NameForm</name>
    <message>
        <source>Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Record not found.</source>
        <translation>Enregistrement introuvable.</translation>
    </message>
</context>
<context>
    <name>NumberBox</name>
    <message>
        <source>This is not a number. Write it like %1.</source>
        <translation>Ce n&apos;est pas un nombre. Écrivez-le comme %1.</translation>
    </message>
</context>
<context>
    <name>PickingList</name>
    <message>
        <source>Invoice No:</source>
        <translation>N° de facture&#xa0;:</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Quantité</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Désignation</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Emplacement&#xa0;:</translation>
    </message>
    <message>
        <source>Warehouse:</source>
        <translation>Entrepôt&#xa0;:</translation>
    </message>
    <message>
        <source>Picking List</source>
        <translation>Bon de préparation</translation>
    </message>
</context>
<context>
    <name>PreviewWindow</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimer...</translation>
    </message>
    <message>
        <source>Page Set&amp;up...</source>
        <translation>&amp;Mise en page...</translation>
    </message>
    <message>
        <source>&amp;Save as PDF...</source>
        <translation>&amp;Enregistrer en PDF...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>First Page</source>
        <translation>Première page</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Last Page</source>
        <translation>Dernière page</translation>
    </message>
    <message>
        <source>Go to Page</source>
        <translation>Aller à la page</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
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
        <translation>Largeur de page</translation>
    </message>
    <message>
        <source>Fit Page</source>
        <translation>Page entière</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom a&amp;rrière</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>Zoom a&amp;vant</translation>
    </message>
    <message>
        <source>100 %</source>
        <translation>100 %</translation>
    </message>
    <message>
        <source> of %1 </source>
        <translation> sur %1 </translation>
    </message>
    <message>
        <source> of ... </source>
        <translation> sur ... </translation>
    </message>
    <message>
        <source>The document was handed to the printer.</source>
        <translation>Le document a été transmis à l&apos;imprimante.</translation>
    </message>
    <message>
        <source>The printer did not take the document.</source>
        <translation>L&apos;imprimante n&apos;a pas accepté le document.</translation>
    </message>
    <message>
        <source>No printer is installed. Do you want to save the document as a PDF instead?</source>
        <translation>Aucune imprimante n&apos;est installée. Voulez-vous plutôt enregistrer le document au format PDF&#xa0;?</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Enregistrer en PDF</translation>
    </message>
    <message>
        <source>PDF documents (*.pdf)</source>
        <translation>Documents PDF (*.pdf)</translation>
    </message>
    <message>
        <source>Unable to write to file %1</source>
        <translation>Impossible d&apos;écrire dans le fichier %1</translation>
    </message>
    <message>
        <source>Saved as %1</source>
        <translation>Enregistré sous %1</translation>
    </message>
    <message>
        <source>Counting the pages...</source>
        <translation>Comptage des pages...</translation>
    </message>
    <message>
        <source>Printing...</source>
        <translation>Impression en cours...</translation>
    </message>
    <message>
        <source>Writing the PDF...</source>
        <translation>Écriture du PDF...</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 existe déjà.
Voulez-vous remplacer ce fichier ?</translation>
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
        <translation>&amp;Annuler</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
</context>
<context>
    <name>RecordList</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>&amp;Filtre</translation>
    </message>
    <message>
        <source>Reading the list...</source>
        <translation>Lecture de la liste...</translation>
    </message>
    <message>
        <source>S&amp;ort By</source>
        <translation>&amp;Trier par</translation>
    </message>
</context>
<context>
    <name>ReportLayout</name>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>en</source>
        <extracomment>The code of the language that this is a translation to: a PDF tells it to screen readers.</extracomment>
        <translation>fr</translation>
    </message>
</context>
<context>
    <name>ReportsPanel</name>
    <message>
        <source>Reports</source>
        <translation>Rapports</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>&lt;&lt; Expand</source>
        <translation>&lt;&lt; Agrandir</translation>
    </message>
    <message>
        <source>Invoices this month</source>
        <translation>Factures du mois</translation>
    </message>
    <message>
        <source>Invoices per month</source>
        <translation>Factures par mois</translation>
    </message>
    <message>
        <source>Compare Item Sales!</source>
        <translation>Comparer les ventes</translation>
    </message>
    <message>
        <source>3D Bar</source>
        <translation>Barres 3D</translation>
    </message>
    <message>
        <source>2D Bar</source>
        <translation>Barres 2D</translation>
    </message>
    <message>
        <source>3D Line</source>
        <translation>Courbes 3D</translation>
    </message>
    <message>
        <source>2D Line</source>
        <translation>Courbes 2D</translation>
    </message>
    <message>
        <source>3D Area</source>
        <translation>Aires 3D</translation>
    </message>
    <message>
        <source>2D Area</source>
        <translation>Aires 2D</translation>
    </message>
    <message>
        <source>3D Step</source>
        <translation>Escalier 3D</translation>
    </message>
    <message>
        <source>2D Step</source>
        <translation>Escalier 2D</translation>
    </message>
    <message>
        <source>View Graph:</source>
        <translation>Graphique&#xa0;:</translation>
    </message>
    <message>
        <source>Graph Style:</source>
        <translation>Style&#xa0;:</translation>
    </message>
    <message>
        <source>Red Product:</source>
        <translation>Produit rouge&#xa0;:</translation>
    </message>
    <message>
        <source>Green Product:</source>
        <translation>Produit vert&#xa0;:</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Factures</translation>
    </message>
    <message>
        <source>Shrink &gt;&gt;</source>
        <translation>Réduire &gt;&gt;</translation>
    </message>
    <message>
        <source>Computing the statistics...</source>
        <translation>Calcul des statistiques...</translation>
    </message>
    <message>
        <source>Computing the graph...</source>
        <translation>Calcul du graphique...</translation>
    </message>
</context>
<context>
    <name>ScanWatch</name>
    <message>
        <source>Answer the question first, then scan again.</source>
        <translation>Répondez d&apos;abord à la question, puis scannez à nouveau.</translation>
    </message>
    <message>
        <source>Close the message first, then scan again.</source>
        <translation>Fermez d&apos;abord le message, puis scannez à nouveau.</translation>
    </message>
    <message>
        <source>The code was typed. Press Enter to go on.</source>
        <translation>Le code a été saisi. Appuyez sur Entrée pour continuer.</translation>
    </message>
    <message>
        <source>Close this form first, then scan again.</source>
        <translation>Fermez d&apos;abord ce formulaire, puis scannez à nouveau.</translation>
    </message>
    <message>
        <source>Open an invoice first, then scan again.</source>
        <translation>Ouvrez d&apos;abord une facture, puis scannez à nouveau.</translation>
    </message>
</context>
<context>
    <name>StatisticsFrame</name>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Total invoices today:</source>
        <translation>Factures aujourd&apos;hui&#xa0;:</translation>
    </message>
    <message>
        <source>Most invoices on:</source>
        <translation>Plus de factures le&#xa0;:</translation>
    </message>
    <message>
        <source>Least invoices on:</source>
        <translation>Moins de factures le&#xa0;:</translation>
    </message>
    <message>
        <source>Most popular month:</source>
        <translation>Meilleur mois&#xa0;:</translation>
    </message>
    <message>
        <source>Least popular month:</source>
        <translation>Mois le plus faible&#xa0;:</translation>
    </message>
    <message>
        <source>Most repeating customer:</source>
        <translation>Client le plus fidèle&#xa0;:</translation>
    </message>
    <message>
        <source>Invoices this month:</source>
        <translation>Factures du mois&#xa0;:</translation>
    </message>
    <message>
        <source>Invoices this month YTD:</source>
        <translation>Même mois, an dernier&#xa0;:</translation>
    </message>
    <message>
        <source>Total invoices:</source>
        <translation>Total des factures&#xa0;:</translation>
    </message>
    <message>
        <source>Monday:</source>
        <translation>Lundi&#xa0;:</translation>
    </message>
    <message>
        <source>Tuesday:</source>
        <translation>Mardi&#xa0;:</translation>
    </message>
    <message>
        <source>Wednesday:</source>
        <translation>Mercredi&#xa0;:</translation>
    </message>
    <message>
        <source>Thursday:</source>
        <translation>Jeudi&#xa0;:</translation>
    </message>
    <message>
        <source>Friday:</source>
        <translation>Vendredi&#xa0;:</translation>
    </message>
    <message>
        <source>Saturday:</source>
        <translation>Samedi&#xa0;:</translation>
    </message>
    <message>
        <source>Sunday:</source>
        <translation>Dimanche&#xa0;:</translation>
    </message>
    <message>
        <source>Invoices this week</source>
        <translation>Factures de cette semaine</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Saved as %1</source>
        <translation>Enregistré sous %1</translation>
    </message>
</context>
<context>
    <name>StockReports</name>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Désignation</translation>
    </message>
    <message>
        <source>No In Stock</source>
        <translation>En stock</translation>
    </message>
    <message>
        <source>Min Stock Level</source>
        <translation>Stock minimum</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Fournisseur</translation>
    </message>
    <message>
        <source>Reorder Report</source>
        <translation>Rapport de réapprovisionnement</translation>
    </message>
    <message>
        <source>Filtered Reorder Report</source>
        <translation>Rapport de réapprovisionnement filtré</translation>
    </message>
    <message>
        <source>Stock Level Report</source>
        <translation>État des stocks</translation>
    </message>
    <message>
        <source>Preparing the report...</source>
        <translation>Préparation du rapport...</translation>
    </message>
</context>
<context>
    <name>ToolbarTexts</name>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Web Orders</source>
        <translation>Commandes Web</translation>
    </message>
    <message>
        <source>Customer...</source>
        <translation>Client...</translation>
    </message>
    <message>
        <source>Invoice...</source>
        <translation>Facture...</translation>
    </message>
    <message>
        <source>New Invoice</source>
        <translation>Nouvelle facture</translation>
    </message>
    <message>
        <source>Invoices</source>
        <translation>Factures</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Stock</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Clients</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Rapports</translation>
    </message>
</context>
<context>
    <name>VendorsPanel</name>
    <message>
        <source>View/Edit Vendor</source>
        <translation>Afficher/modifier le fournisseur</translation>
    </message>
    <message>
        <source>New Vendor</source>
        <translation>Nouveau fournisseur</translation>
    </message>
    <message>
        <source>Delete Vendor</source>
        <translation>Supprimer le fournisseur</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>Fournisseurs</translation>
    </message>
    <message>
        <source>Business Name</source>
        <translation>Entreprise</translation>
    </message>
    <message>
        <source>Contact Name</source>
        <translation>Contact</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Instructions - you are currently viewing your vendors. To sort by a column click it&apos;s title. For more details press F1 for help.</source>
        <translation>Instructions - vous consultez vos fournisseurs. Pour trier par une colonne, cliquez sur son titre. Pour en savoir plus, appuyez sur F1.</translation>
    </message>
    <message>
        <source>No vendor has been selected. Select a vendor from the list and try again.</source>
        <translation>Aucun fournisseur n&apos;est sélectionné. Sélectionnez un fournisseur dans la liste et réessayez.</translation>
    </message>
    <message>
        <source>This vendor has existing items and cannot be deleted. To delete this vendor first delete all items they supply.</source>
        <translation>Ce fournisseur a des articles et ne peut pas être supprimé. Pour le supprimer, supprimez d&apos;abord tous les articles qu&apos;il fournit.</translation>
    </message>
    <message>
        <source>Cannot delete vendor.</source>
        <translation>Impossible de supprimer le fournisseur.</translation>
    </message>
    <message>
        <source>Delete vendor?</source>
        <translation>Supprimer le fournisseur&#xa0;?</translation>
    </message>
    <message>
        <source>Vendor %1 deleted</source>
        <translation>Fournisseur %1 supprimé</translation>
    </message>
</context>
<context>
    <name>WebOrdersPage</name>
    <message>
        <source>Create Web Orders Page</source>
        <translation>Créer la page de commande Web</translation>
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
        <translation>Afficher cette page d&apos;accueil au démarrage.</translation>
    </message>
    <message>
        <source>Welcome to the %1</source>
        <translation>Bienvenue&#xa0;: %1</translation>
    </message>
    <message>
        <source>To continue, click Next.</source>
        <translation>Pour continuer, cliquez sur Suivant.</translation>
    </message>
</context>
<context>
    <name>WizardPage</name>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>frmAbout</name>
    <message>
        <source>About</source>
        <translation>À propos</translation>
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
        <translation>Le système de gestion de stock souple et facile à utiliser.</translation>
    </message>
    <message>
        <source>Web site</source>
        <translation>Site Web</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;System Info...</source>
        <translation>Infos &amp;système...</translation>
    </message>
    <message>
        <source>System Information Is Unavailable At This Time</source>
        <translation>Les informations système ne sont pas disponibles pour le moment</translation>
    </message>
</context>
<context>
    <name>frmAddCategory</name>
    <message>
        <source>No Category has been selected to edit. Please select a Category and try again.</source>
        <translation>Aucune catégorie à modifier n&apos;est sélectionnée. Veuillez sélectionner une catégorie et réessayer.</translation>
    </message>
    <message>
        <source>Please select a Category to remove.</source>
        <translation>Veuillez sélectionner la catégorie à supprimer.</translation>
    </message>
    <message>
        <source>This Category is in use by one or more Sub-Categories and so cannot be deleted. To delete this Sub-Category first remove the Sub-Categories and then try again.</source>
        <translation>Cette catégorie est utilisée par une ou plusieurs sous-catégories et ne peut pas être supprimée. Supprimez d&apos;abord les sous-catégories, puis réessayez.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this Category?</source>
        <translation>Voulez-vous vraiment supprimer cette catégorie&#xa0;?</translation>
    </message>
    <message>
        <source>Category Details</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>Instructions - enter the Category name and then click OK.</source>
        <translation>Instructions - saisissez le nom de la catégorie, puis cliquez sur OK.</translation>
    </message>
    <message>
        <source>Please enter a Category name to continue.</source>
        <translation>Veuillez saisir le nom de la catégorie pour continuer.</translation>
    </message>
</context>
<context>
    <name>frmAddGroupItems</name>
    <message>
        <source>Add Group Items</source>
        <translation>Ajouter un groupe</translation>
    </message>
    <message>
        <source>Add Items to Invoice</source>
        <translation>Ajouter les articles à la facture</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Item Groups:</source>
        <translation>Groupes d&apos;articles&#xa0;:</translation>
    </message>
    <message>
        <source>Instructions - select the item group to add to the invoice and then click &apos;Add Items to Invoice&apos;.</source>
        <translation>Instructions - sélectionnez le groupe d&apos;articles à ajouter à la facture, puis cliquez sur «&#xa0;Ajouter les articles à la facture&#xa0;».</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>No Item Group has been selected. Please select an Item Group to add then try again.</source>
        <translation>Aucun groupe d&apos;articles n&apos;est sélectionné. Veuillez sélectionner le groupe à ajouter, puis réessayez.</translation>
    </message>
    <message>
        <source>There are no item groups.</source>
        <translation>Il n&apos;y a aucun groupe d&apos;articles.</translation>
    </message>
</context>
<context>
    <name>frmAddLocation</name>
    <message>
        <source>No Location has been selected to edit. Please select a Location and try again.</source>
        <translation>Aucun emplacement à modifier n&apos;est sélectionné. Veuillez sélectionner un emplacement et réessayer.</translation>
    </message>
    <message>
        <source>Please select a Location to remove.</source>
        <translation>Veuillez sélectionner l&apos;emplacement à supprimer.</translation>
    </message>
    <message>
        <source>This Location is in use by one or more items and so cannot be deleted. To delete this Location first remove the items and then try again.</source>
        <translation>Cet emplacement est utilisé par un ou plusieurs articles et ne peut pas être supprimé. Retirez d&apos;abord les articles, puis réessayez.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this Location?</source>
        <translation>Voulez-vous vraiment supprimer cet emplacement&#xa0;?</translation>
    </message>
    <message>
        <source>Location Details</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Instructions - enter the Location name and then click OK.</source>
        <translation>Instructions - saisissez le nom de l&apos;emplacement, puis cliquez sur OK.</translation>
    </message>
    <message>
        <source>Please enter a Location name to continue.</source>
        <translation>Veuillez saisir le nom de l&apos;emplacement pour continuer.</translation>
    </message>
</context>
<context>
    <name>frmAddOrderItem</name>
    <message>
        <source>Add Order Item</source>
        <translation>Ajouter une ligne</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Désignation</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>No In Stock</source>
        <translation>En stock</translation>
    </message>
    <message>
        <source>Sale Price</source>
        <translation>Prix de vente</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Rechercher</translation>
    </message>
    <message>
        <source>Item Matches:</source>
        <translation>Articles trouvés&#xa0;:</translation>
    </message>
    <message>
        <source>Add Item to Invoice</source>
        <translation>Ajouter l&apos;article à la facture</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Item Matches</source>
        <translation>Articles trouvés</translation>
    </message>
    <message>
        <source>Instructions - select the item to add to the invoice and then click &apos;Add Item to Invoice&apos;. To search for an item select the Category, Sub-Category, Item Name, Item Description and then click &apos;Search&apos;.</source>
        <translation>Instructions - sélectionnez l&apos;article à ajouter à la facture, puis cliquez sur «&#xa0;Ajouter l&apos;article à la facture&#xa0;». Pour chercher un article, indiquez la catégorie, la sous-catégorie, la désignation ou la description, puis cliquez sur «&#xa0;Rechercher&#xa0;».</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Catégorie&#xa0;:</translation>
    </message>
    <message>
        <source>Sub Category:</source>
        <translation>Sous-catégorie&#xa0;:</translation>
    </message>
    <message>
        <source>Price List:</source>
        <translation>Tarif&#xa0;:</translation>
    </message>
    <message>
        <source>Item Name:</source>
        <translation>Désignation&#xa0;:</translation>
    </message>
    <message>
        <source>Item Description:</source>
        <translation>Description&#xa0;:</translation>
    </message>
    <message>
        <source>Item Number:</source>
        <translation>Numéro d&apos;article&#xa0;:</translation>
    </message>
    <message>
        <source>Quantity to Add:</source>
        <translation>Quantité à ajouter&#xa0;:</translation>
    </message>
    <message>
        <source>Price:</source>
        <translation>Prix&#xa0;:</translation>
    </message>
    <message>
        <source>All Categories</source>
        <translation>Toutes les catégories</translation>
    </message>
    <message>
        <source>No Category</source>
        <translation>Aucune catégorie</translation>
    </message>
    <message>
        <source>All Sub-Categories</source>
        <translation>Toutes les sous-catégories</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Recherche...</translation>
    </message>
    <message>
        <source>%1 Item Matches:</source>
        <translation>%1 articles trouvés&#xa0;:</translation>
    </message>
    <message>
        <source>This item does not have enough items in stock. To add this item first increase the total number in stock.</source>
        <translation>Le stock de cet article n&apos;est pas suffisant. Pour l&apos;ajouter, augmentez d&apos;abord la quantité en stock.</translation>
    </message>
    <message>
        <source>No item matches.</source>
        <translation>Aucun article trouvé.</translation>
    </message>
    <message>
        <source>Searching the items...</source>
        <translation>Recherche des articles...</translation>
    </message>
</context>
<context>
    <name>frmAddPriceList</name>
    <message>
        <source>%1 (Default)</source>
        <translation>%1 (par défaut)</translation>
    </message>
    <message>
        <source>No Price List has been selected to edit. Please select a Price List and try again.</source>
        <translation>Aucun tarif à modifier n&apos;est sélectionné. Veuillez sélectionner un tarif et réessayer.</translation>
    </message>
    <message>
        <source>Please select a Price List to remove.</source>
        <translation>Veuillez sélectionner le tarif à supprimer.</translation>
    </message>
    <message>
        <source>This is the default Price List and so cannot be deleted. However it can be renamed, to rename press the Edit button.</source>
        <translation>C&apos;est le tarif par défaut, il ne peut pas être supprimé. Il peut cependant être renommé&#xa0;: cliquez sur Modifier.</translation>
    </message>
    <message>
        <source>All pricing for this Price List will be lost. Are you sure you want to delete this Price List?</source>
        <translation>Tous les prix de ce tarif seront perdus. Voulez-vous vraiment supprimer ce tarif&#xa0;?</translation>
    </message>
    <message>
        <source>Price List Details</source>
        <translation>Tarif</translation>
    </message>
    <message>
        <source>Instructions - enter the Price List name and then click OK.</source>
        <translation>Instructions - saisissez le nom du tarif, puis cliquez sur OK.</translation>
    </message>
    <message>
        <source>Please enter a Price List name to continue.</source>
        <translation>Veuillez saisir le nom du tarif pour continuer.</translation>
    </message>
    <message>
        <source>Adding prices</source>
        <translation>Ajout des prix</translation>
    </message>
    <message>
        <source>Adding prices: %p%</source>
        <translation>Ajout des prix : %p%</translation>
    </message>
</context>
<context>
    <name>frmAddSubCategory</name>
    <message>
        <source>No Sub-Category has been selected to edit. Please select a Sub-Category and try again.</source>
        <translation>Aucune sous-catégorie à modifier n&apos;est sélectionnée. Veuillez sélectionner une sous-catégorie et réessayer.</translation>
    </message>
    <message>
        <source>Please select a Sub-Category to remove.</source>
        <translation>Veuillez sélectionner la sous-catégorie à supprimer.</translation>
    </message>
    <message>
        <source>This Sub-Category is in use by one or more items and so cannot be deleted. To delete this Sub-Category first remove the items and then try again.</source>
        <translation>Cette sous-catégorie est utilisée par un ou plusieurs articles et ne peut pas être supprimée. Retirez d&apos;abord les articles, puis réessayez.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this Sub-Category?</source>
        <translation>Voulez-vous vraiment supprimer cette sous-catégorie&#xa0;?</translation>
    </message>
    <message>
        <source>Sub-Category Details</source>
        <translation>Sous-catégorie</translation>
    </message>
    <message>
        <source>Instructions - enter the Sub-Category name and then click OK.</source>
        <translation>Instructions - saisissez le nom de la sous-catégorie, puis cliquez sur OK.</translation>
    </message>
    <message>
        <source>Please enter a Sub-Category name to continue.</source>
        <translation>Veuillez saisir le nom de la sous-catégorie pour continuer.</translation>
    </message>
</context>
<context>
    <name>frmAddTaxRate</name>
    <message>
        <source>No Tax Rate has been selected to edit. Please select a Tax Rate and try again.</source>
        <translation>Aucun taux de taxe à modifier n&apos;est sélectionné. Veuillez sélectionner un taux de taxe et réessayer.</translation>
    </message>
    <message>
        <source>Please select a Tax Rate to remove.</source>
        <translation>Veuillez sélectionner le taux de taxe à supprimer.</translation>
    </message>
    <message>
        <source>This Tax Rate is in use by one or more items and so cannot be deleted. To delete this Tax Rate first remove the items and then try again.</source>
        <translation>Ce taux de taxe est utilisé par un ou plusieurs articles et ne peut pas être supprimé. Retirez d&apos;abord les articles, puis réessayez.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this Tax Rate?</source>
        <translation>Voulez-vous vraiment supprimer ce taux de taxe&#xa0;?</translation>
    </message>
    <message>
        <source>Tax Rate Details</source>
        <translation>Taux de taxe</translation>
    </message>
    <message>
        <source>Instructions - enter the Tax Rate name, tax percentage and then click OK.</source>
        <translation>Instructions - saisissez le nom et le pourcentage du taux de taxe, puis cliquez sur OK.</translation>
    </message>
    <message>
        <source>Please enter a Tax Rate name to continue.</source>
        <translation>Veuillez saisir le nom du taux de taxe pour continuer.</translation>
    </message>
    <message>
        <source>Percentage:</source>
        <translation>Pourcentage&#xa0;:</translation>
    </message>
</context>
<context>
    <name>frmAddWarehouse</name>
    <message>
        <source>No Warehouse has been selected to edit. Please select a Warehouse and try again.</source>
        <translation>Aucun entrepôt à modifier n&apos;est sélectionné. Veuillez sélectionner un entrepôt et réessayer.</translation>
    </message>
    <message>
        <source>Please select a Warehouse to remove.</source>
        <translation>Veuillez sélectionner l&apos;entrepôt à supprimer.</translation>
    </message>
    <message>
        <source>The default warehouse cannot be deleted. To change this warehouse click Edit.</source>
        <translation>L&apos;entrepôt par défaut ne peut pas être supprimé. Pour le modifier, cliquez sur Modifier.</translation>
    </message>
    <message>
        <source>This Warehouse is in use by one or more locations and so cannot be deleted. To delete this Warehouse first remove the locations and then try again.</source>
        <translation>Cet entrepôt est utilisé par un ou plusieurs emplacements et ne peut pas être supprimé. Supprimez d&apos;abord les emplacements, puis réessayez.</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this Warehouse?</source>
        <translation>Voulez-vous vraiment supprimer cet entrepôt&#xa0;?</translation>
    </message>
    <message>
        <source>Warehouse Details</source>
        <translation>Entrepôt</translation>
    </message>
    <message>
        <source>Instructions - enter the Warehouse name and then click OK.</source>
        <translation>Instructions - saisissez le nom de l&apos;entrepôt, puis cliquez sur OK.</translation>
    </message>
    <message>
        <source>Please enter a Warehouse name to continue.</source>
        <translation>Veuillez saisir le nom de l&apos;entrepôt pour continuer.</translation>
    </message>
</context>
<context>
    <name>frmCategories</name>
    <message>
        <source>Configure Categories</source>
        <translation>Configurer les catégories</translation>
    </message>
    <message>
        <source>Instructions - configure the Categories and Sub-Categories items can be in.</source>
        <translation>Instructions - configurez les catégories et sous-catégories des articles.</translation>
    </message>
    <message>
        <source>Categories:</source>
        <translation>Catégories&#xa0;:</translation>
    </message>
    <message>
        <source>Sub-Categories:</source>
        <translation>Sous-catégories&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Add Sub-Category</source>
        <translation>Ajouter &amp;une sous-catégorie</translation>
    </message>
    <message>
        <source>&amp;Edit Sub-Category</source>
        <translation>Modifier la sous-catég&amp;orie</translation>
    </message>
    <message>
        <source>&amp;Remove Sub-Category</source>
        <translation>Supprimer &amp;la sous-catégorie</translation>
    </message>
    <message>
        <source>No Category has been selected to add the Sub-Category to. Please select a Category to continue.</source>
        <translation>Aucune catégorie n&apos;est sélectionnée pour la sous-catégorie. Veuillez sélectionner une catégorie pour continuer.</translation>
    </message>
</context>
<context>
    <name>frmConfigInvoice</name>
    <message>
        <source>Invoice Style</source>
        <translation>Style de facture</translation>
    </message>
    <message>
        <source>Instructions - choose your invoice style and then click OK.</source>
        <translation>Instructions - choisissez le style de vos factures, puis cliquez sur OK.</translation>
    </message>
    <message>
        <source>Font Size:</source>
        <translation>Taille de police&#xa0;:</translation>
    </message>
    <message>
        <source>Hide &apos;Our Price&apos; column.</source>
        <translation>Masquer la colonne «&#xa0;Notre prix&#xa0;».</translation>
    </message>
    <message>
        <source>Hide tax information on invoices.</source>
        <translation>Masquer les taxes sur les factures.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
</context>
<context>
    <name>frmCustomer</name>
    <message>
        <source>Customer Details</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>First Name:</source>
        <translation>Prénom&#xa0;:</translation>
    </message>
    <message>
        <source>Last Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Business Name:</source>
        <translation>Entreprise&#xa0;:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse&#xa0;:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ville&#xa0;:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Région&#xa0;:</translation>
    </message>
    <message>
        <source>Country:</source>
        <translation>Pays&#xa0;:</translation>
    </message>
    <message>
        <source>Zip/Post Code:</source>
        <translation>Code postal&#xa0;:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Téléphone&#xa0;:</translation>
    </message>
    <message>
        <source>Fax:</source>
        <translation>Fax&#xa0;:</translation>
    </message>
    <message>
        <source>Email:</source>
        <translation>E-mail&#xa0;:</translation>
    </message>
    <message>
        <source>Discount:</source>
        <translation>Remise&#xa0;:</translation>
    </message>
    <message>
        <source>Customer %1 saved</source>
        <translation>Client %1 enregistré</translation>
    </message>
</context>
<context>
    <name>frmFindCustomer</name>
    <message>
        <source>Find Customer</source>
        <translation>Rechercher un client</translation>
    </message>
    <message>
        <source>First Name:</source>
        <translation>Prénom&#xa0;:</translation>
    </message>
    <message>
        <source>Last Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Business Name:</source>
        <translation>Entreprise&#xa0;:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse&#xa0;:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ville&#xa0;:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Région&#xa0;:</translation>
    </message>
    <message>
        <source>Country:</source>
        <translation>Pays&#xa0;:</translation>
    </message>
    <message>
        <source>Post Code:</source>
        <translation>Code postal&#xa0;:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Téléphone&#xa0;:</translation>
    </message>
    <message>
        <source>Email:</source>
        <translation>E-mail&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Start Search</source>
        <translation>&amp;Lancer la recherche</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Add Customer</source>
        <translation>Ajouter un client</translation>
    </message>
    <message>
        <source>View/Edit Customer</source>
        <translation>Afficher/modifier le client</translation>
    </message>
    <message>
        <source>Delete Customer</source>
        <translation>Supprimer le client</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Total customer matches:</source>
        <translation>Clients trouvés&#xa0;:</translation>
    </message>
    <message>
        <source>No criteria to search by has been entered. Please enter some details and try again.</source>
        <translation>Aucun critère de recherche n&apos;a été saisi. Veuillez en saisir un et réessayer.</translation>
    </message>
    <message>
        <source>No customer matches.</source>
        <translation>Aucun client trouvé.</translation>
    </message>
    <message>
        <source>Searching the customers...</source>
        <translation>Recherche des clients...</translation>
    </message>
</context>
<context>
    <name>frmFindInvoice</name>
    <message>
        <source>Find Invoice</source>
        <translation>Rechercher une facture</translation>
    </message>
    <message>
        <source>&amp;Start Search</source>
        <translation>&amp;Lancer la recherche</translation>
    </message>
    <message>
        <source>View/Edit Invoice</source>
        <translation>Afficher/modifier la facture</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Matches</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>From Date:</source>
        <translation>Du&#xa0;:</translation>
    </message>
    <message>
        <source>To Date:</source>
        <translation>Au&#xa0;:</translation>
    </message>
    <message>
        <source>Total matches:</source>
        <translation>Total des résultats&#xa0;:</translation>
    </message>
    <message>
        <source>Contact Name</source>
        <translation>Contact</translation>
    </message>
    <message>
        <source>Business Name</source>
        <translation>Entreprise</translation>
    </message>
    <message>
        <source>Invoice Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>No criteria to search by has been entered. Please enter some details and try again.</source>
        <translation>Aucun critère de recherche n&apos;a été saisi. Veuillez en saisir un et réessayer.</translation>
    </message>
    <message>
        <source>No reservation has been selected. Select a reservation to to view or edit and try again.</source>
        <translation>Aucune facture n&apos;est sélectionnée. Sélectionnez une facture à afficher ou à modifier et réessayez.</translation>
    </message>
    <message>
        <source>Press &quot;Start Search&quot; to list the invoices of these days.</source>
        <translation>Cliquez sur «&#xa0;Lancer la recherche&#xa0;» pour afficher les factures de ces jours.</translation>
    </message>
    <message>
        <source>No invoice is of these days.</source>
        <translation>Aucune facture à ces dates.</translation>
    </message>
    <message>
        <source>Searching the invoices...</source>
        <translation>Recherche des factures...</translation>
    </message>
</context>
<context>
    <name>frmHelp</name>
    <message>
        <source>Tavrin Inventory Help</source>
        <translation>Aide de Tavrin Inventory</translation>
    </message>
    <message>
        <source>Ways to a page</source>
        <translation>Chemins vers une page</translation>
    </message>
    <message>
        <source>Help page</source>
        <translation>Page d&apos;aide</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>Somm&amp;aire</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>&amp;Index</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>&amp;Recherche</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Sommaire</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>Look for</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>Type the first letters of a word</source>
        <translation>Les premières lettres d&apos;un mot</translation>
    </message>
    <message>
        <source>Words to search for</source>
        <translation>Mots à rechercher</translation>
    </message>
    <message>
        <source>Type words, then press Enter</source>
        <translation>Tapez des mots, puis Entrée</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Pages trouvées</translation>
    </message>
    <message>
        <source>&amp;Find in page:</source>
        <translation>&amp;Chercher dans la page :</translation>
    </message>
    <message>
        <source>Find in page</source>
        <translation>Chercher dans la page</translation>
    </message>
    <message>
        <source>&amp;Next</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>&amp;Previous</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>Toolbar</source>
        <translation>Barre d&apos;outils</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Précédente</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Suivante</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Find in Page</source>
        <translation>Chercher dans la page</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimer...</translation>
    </message>
    <message>
        <source>Find Next</source>
        <translation>Chercher le suivant</translation>
    </message>
    <message>
        <source>Find Previous</source>
        <translation>Chercher le précédent</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>%1 - Tavrin Inventory Help</source>
        <translation>%1 - Aide de Tavrin Inventory</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Recherche en cours...</translation>
    </message>
    <message>
        <source>Pages found: %1</source>
        <translation>Pages trouvées : %1</translation>
    </message>
    <message>
        <source>No page has all of these words.</source>
        <translation>Aucune page ne contient tous ces mots.</translation>
    </message>
    <message>
        <source>Not found.</source>
        <translation>Introuvable.</translation>
    </message>
</context>
<context>
    <name>frmItemDetails</name>
    <message>
        <source>Item Details</source>
        <translation>Article</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Instructions - enter the item&apos;s details. Only the name is required, however entering other details allows you to use more program features. Press F1 for help.</source>
        <translation>Instructions - saisissez les données de l&apos;article. Seule la désignation est obligatoire, mais les autres données donnent accès à plus de fonctions. Appuyez sur F1 pour l&apos;aide.</translation>
    </message>
    <message>
        <source>Item Number:</source>
        <translation>Numéro d&apos;article&#xa0;:</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Désignation&#xa0;:</translation>
    </message>
    <message>
        <source>Long Description:</source>
        <translation>Description&#xa0;:</translation>
    </message>
    <message>
        <source>Barcode:</source>
        <translation>Code-barres&#xa0;:</translation>
    </message>
    <message>
        <source>No In Stock:</source>
        <translation>En stock&#xa0;:</translation>
    </message>
    <message>
        <source>Reorder Level:</source>
        <translation>Seuil de commande&#xa0;:</translation>
    </message>
    <message>
        <source>Min Stock Level:</source>
        <translation>Stock minimum&#xa0;:</translation>
    </message>
    <message>
        <source>Warranty Returns:</source>
        <translation>Retours garantie&#xa0;:</translation>
    </message>
    <message>
        <source>Category:</source>
        <translation>Catégorie&#xa0;:</translation>
    </message>
    <message>
        <source>Sub Category:</source>
        <translation>Sous-catégorie&#xa0;:</translation>
    </message>
    <message>
        <source>Vendor:</source>
        <translation>Fournisseur&#xa0;:</translation>
    </message>
    <message>
        <source>Tax Rate:</source>
        <translation>Taux de taxe&#xa0;:</translation>
    </message>
    <message>
        <source>Warehouse:</source>
        <translation>Entrepôt&#xa0;:</translation>
    </message>
    <message>
        <source>Storage Location:</source>
        <translation>Emplacement&#xa0;:</translation>
    </message>
    <message>
        <source>Sale Price:</source>
        <translation>Prix de vente&#xa0;:</translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <source>All Sub-Categories</source>
        <translation>Toutes les sous-catégories</translation>
    </message>
    <message>
        <source>The Item Number is already in use. Continue anyway?</source>
        <translation>Ce numéro d&apos;article est déjà utilisé. Continuer quand même&#xa0;?</translation>
    </message>
    <message>
        <source>The Barcode is already in use. Continue anyway?</source>
        <translation>Ce code-barres est déjà utilisé. Continuer quand même&#xa0;?</translation>
    </message>
    <message>
        <source>The Name is already in use. Continue anyway?</source>
        <translation>Cette désignation est déjà utilisée. Continuer quand même&#xa0;?</translation>
    </message>
    <message>
        <source>Item %1 saved</source>
        <translation>Article %1 enregistré</translation>
    </message>
</context>
<context>
    <name>frmItemGroup</name>
    <message>
        <source>Item Group Details</source>
        <translation>Groupe d&apos;articles</translation>
    </message>
    <message>
        <source>&amp;Add Item</source>
        <translation>A&amp;jouter un article</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Items in Group:</source>
        <translation>Articles du groupe&#xa0;:</translation>
    </message>
    <message>
        <source>Instructions - enter the group&apos;s name, add items to the group and then click close to finish.</source>
        <translation>Instructions - saisissez le nom du groupe, ajoutez-y des articles, puis cliquez sur OK.</translation>
    </message>
    <message>
        <source>Item Group Name:</source>
        <translation>Nom du groupe&#xa0;:</translation>
    </message>
    <message>
        <source>Items:</source>
        <translation>Articles&#xa0;:</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Désignation</translation>
    </message>
    <message>
        <source>No item has been selected. Please select an item to remove and try again.</source>
        <translation>Aucun article n&apos;est sélectionné. Veuillez sélectionner l&apos;article à retirer et réessayer.</translation>
    </message>
    <message>
        <source>The group is empty. Choose an item and press &quot;Add Item&quot;.</source>
        <translation>Le groupe est vide. Choisissez un article et cliquez sur «&#xa0;Ajouter un article&#xa0;».</translation>
    </message>
    <message>
        <source>Reading the items...</source>
        <translation>Lecture des articles...</translation>
    </message>
</context>
<context>
    <name>frmItemQuantity</name>
    <message>
        <source>Item Quantity</source>
        <translation>Quantité d&apos;articles</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>New Quantity:</source>
        <translation>Nouvelle quantité&#xa0;:</translation>
    </message>
    <message>
        <source>Price:</source>
        <translation>Prix&#xa0;:</translation>
    </message>
</context>
<context>
    <name>frmLocations</name>
    <message>
        <source>Configure Item Locations</source>
        <translation>Configurer les emplacements</translation>
    </message>
    <message>
        <source>Instructions - configuring Item Locations helps you to organize your inventory so it can easily be found. </source>
        <translation>Instructions - les emplacements vous aident à organiser votre stock pour le retrouver facilement. </translation>
    </message>
    <message>
        <source>Warehouses:</source>
        <translation>Entrepôts&#xa0;:</translation>
    </message>
    <message>
        <source>Item Bins/Locations:</source>
        <translation>Casiers/emplacements&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Add Location</source>
        <translation>Ajouter &amp;un emplacement</translation>
    </message>
    <message>
        <source>&amp;Edit Location</source>
        <translation>Modifier l&apos;em&amp;placement</translation>
    </message>
    <message>
        <source>&amp;Remove Location</source>
        <translation>Supprimer &amp;l&apos;emplacement</translation>
    </message>
    <message>
        <source>No Warehouse has been selected to add the Location to. Please select a Warehouse to continue.</source>
        <translation>Aucun entrepôt n&apos;est sélectionné pour l&apos;emplacement. Veuillez sélectionner un entrepôt pour continuer.</translation>
    </message>
</context>
<context>
    <name>frmMultiplePricing</name>
    <message>
        <source>Configure Multiple Item Pricing</source>
        <translation>Configurer les tarifs multiples</translation>
    </message>
    <message>
        <source>Instructions - configure the available Pricing Lists. Each item can multiple pricing.</source>
        <translation>Instructions - configurez les tarifs disponibles. Chaque article peut avoir plusieurs prix.</translation>
    </message>
    <message>
        <source>Price Lists:</source>
        <translation>Tarifs&#xa0;:</translation>
    </message>
    <message>
        <source>Deleting the prices...</source>
        <translation>Suppression des prix...</translation>
    </message>
</context>
<context>
    <name>frmPaperSetup</name>
    <message>
        <source>Page Setup</source>
        <translation>Mise en page</translation>
    </message>
    <message>
        <source>&amp;Portrait</source>
        <translation>&amp;Portrait</translation>
    </message>
    <message>
        <source>&amp;Landscape</source>
        <translation>Pa&amp;ysage</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Pape&amp;r:</source>
        <translation>Pap&amp;ier&#xa0;:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientation&#xa0;:</translation>
    </message>
    <message>
        <source>Margins</source>
        <translation>Marges</translation>
    </message>
    <message>
        <source>L&amp;eft:</source>
        <translation>&amp;Gauche&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Haut&#xa0;:</translation>
    </message>
    <message>
        <source>R&amp;ight:</source>
        <translation>&amp;Droite&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Bottom:</source>
        <translation>&amp;Bas&#xa0;:</translation>
    </message>
    <message>
        <source> in</source>
        <translation> po</translation>
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
        <translation>Réception de marchandises</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Update Stock Level</source>
        <translation>Mettre à jour le stock</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Stock</translation>
    </message>
    <message>
        <source>Instructions - to receive stock select the item, enter the quantity received and press Update Stock Level. When you have finished press Close.</source>
        <translation>Instructions - pour réceptionner des marchandises, sélectionnez l&apos;article, saisissez la quantité reçue et cliquez sur Mettre à jour le stock. Quand vous avez terminé, cliquez sur Fermer.</translation>
    </message>
    <message>
        <source>Bar Code:</source>
        <translation>Code-barres&#xa0;:</translation>
    </message>
    <message>
        <source>Quantity received:</source>
        <translation>Quantité reçue&#xa0;:</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Désignation</translation>
    </message>
    <message>
        <source>In Stock</source>
        <translation>En stock</translation>
    </message>
    <message>
        <source>Item not found.</source>
        <translation>Article introuvable.</translation>
    </message>
    <message>
        <source>No valid number has been entered to update. Please enter a valid number and try again.</source>
        <translation>Aucun nombre valide n&apos;a été saisi. Veuillez saisir un nombre valide et réessayer.</translation>
    </message>
    <message>
        <source>%1 x %2 received, now %3</source>
        <translation>%1 x %2 reçus, maintenant %3</translation>
    </message>
    <message>
        <source>Nothing of %1 was received: Enter was not pressed after its quantity.</source>
        <translation>Rien n&apos;a été reçu de %1&#xa0;: la touche Entrée n&apos;a pas été pressée après la quantité.</translation>
    </message>
    <message>
        <source>There are no items to receive stock of.</source>
        <translation>Il n&apos;y a aucun article à réceptionner.</translation>
    </message>
    <message>
        <source>Reading the items...</source>
        <translation>Lecture des articles...</translation>
    </message>
</context>
<context>
    <name>frmReorderReportFilter</name>
    <message>
        <source>Filtered Reorder Report</source>
        <translation>Rapport de réapprovisionnement filtré</translation>
    </message>
    <message>
        <source>No Filter</source>
        <translation>Aucun filtre</translation>
    </message>
    <message>
        <source>Vendor:</source>
        <translation>Fournisseur&#xa0;:</translation>
    </message>
    <message>
        <source>Item:</source>
        <translation>Article&#xa0;:</translation>
    </message>
    <message>
        <source>Item Location:</source>
        <translation>Emplacement&#xa0;:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Instructions - select how you would like the Reorder Report filtered and then click OK to display.</source>
        <translation>Instructions - choisissez comment filtrer le rapport de réapprovisionnement, puis cliquez sur OK pour l&apos;afficher.</translation>
    </message>
    <message>
        <source>Sort by:</source>
        <translation>Trier par&#xa0;:</translation>
    </message>
    <message>
        <source>Reading the items...</source>
        <translation>Lecture des articles...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Désignation</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
</context>
<context>
    <name>frmResCustSearch</name>
    <message>
        <source>Customer Search</source>
        <translation>Recherche de clients</translation>
    </message>
    <message>
        <source>&amp;Start Search</source>
        <translation>&amp;Lancer la recherche</translation>
    </message>
    <message>
        <source>S&amp;elect</source>
        <translation>&amp;Sélectionner</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Search Results:</source>
        <translation>Résultats de la recherche&#xa0;:</translation>
    </message>
    <message>
        <source>First Name:</source>
        <translation>Prénom&#xa0;:</translation>
    </message>
    <message>
        <source>Last Name:</source>
        <translation>Nom&#xa0;:</translation>
    </message>
    <message>
        <source>No matches found. Please try again or press Close to enter new customer details.</source>
        <translation>Aucun résultat. Veuillez réessayer ou cliquez sur Fermer pour saisir un nouveau client.</translation>
    </message>
    <message>
        <source>Press &quot;Start Search&quot; to list the customers of these names.</source>
        <translation>Cliquez sur «&#xa0;Lancer la recherche&#xa0;» pour afficher les clients de ce nom.</translation>
    </message>
    <message>
        <source>No customer matches.</source>
        <translation>Aucun client trouvé.</translation>
    </message>
    <message>
        <source>Searching the customers...</source>
        <translation>Recherche des clients...</translation>
    </message>
</context>
<context>
    <name>frmSetNextInvoiceNo</name>
    <message>
        <source>Set Next Invoice Number</source>
        <translation>Définir le prochain numéro de facture</translation>
    </message>
    <message>
        <source>Next Invoice Number:</source>
        <translation>Prochain numéro de facture&#xa0;:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Please enter a valid invoice number.</source>
        <translation>Veuillez saisir un numéro de facture valide.</translation>
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
        <translation>Stock et factures, côte à côte</translation>
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
        <translation> (%1 octets)</translation>
    </message>
    <message>
        <source>%1 items, %2 customers, %3 invoices</source>
        <translation>%1 articles, %2 clients, %3 factures</translation>
    </message>
    <message>
        <source>%1 x %2, scaled by %3, %4, style %5</source>
        <translation>%1 x %2, échelle %3, %4, style %5</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Qt</source>
        <translation>Qt</translation>
    </message>
    <message>
        <source> (built with %1)</source>
        <translation> (compilé avec %1)</translation>
    </message>
    <message>
        <source>Database engine</source>
        <translation>Moteur de base de données</translation>
    </message>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Écran</translation>
    </message>
    <message>
        <source>Language and region</source>
        <translation>Langue et région</translation>
    </message>
    <message>
        <source>Data file</source>
        <translation>Fichier de données</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Program&apos;s folder</source>
        <translation>Dossier du programme</translation>
    </message>
    <message>
        <source>Help file</source>
        <translation>Fichier d&apos;aide</translation>
    </message>
    <message>
        <source>System Information</source>
        <translation>Informations système</translation>
    </message>
    <message>
        <source>System information</source>
        <translation>Informations système</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>C&amp;opier</translation>
    </message>
    <message>
        <source>Copies all of it, for a letter to the support</source>
        <translation>Copie tout, pour une lettre à l&apos;assistance</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Instructions - click Copy and paste this into your question to the support.</source>
        <translation>Instructions - cliquez sur Copier et collez ceci dans votre question à l&apos;assistance.</translation>
    </message>
</context>
<context>
    <name>frmTaxRate</name>
    <message>
        <source>Configure Tax Rates</source>
        <translation>Configurer les taux de taxe</translation>
    </message>
    <message>
        <source>Instructions - configure the available Tax Rates. Each item can have any Tax Rate associated with it.</source>
        <translation>Instructions - configurez les taux de taxe disponibles. Tout taux de taxe peut être associé à chaque article.</translation>
    </message>
    <message>
        <source>Tax Rates:</source>
        <translation>Taux de taxe&#xa0;:</translation>
    </message>
    <message>
        <source>Enable Secondary Tax</source>
        <translation>Activer la seconde taxe</translation>
    </message>
    <message>
        <source>2nd Sales Tax Name (i.e. PST, VAT, GST etc):</source>
        <translation>Nom de la 2e taxe (p. ex. TVA, TVQ)&#xa0;:</translation>
    </message>
    <message>
        <source>2nd Sales Tax Percentage:</source>
        <translation>Pourcentage de la 2e taxe&#xa0;:</translation>
    </message>
</context>
<context>
    <name>frmTip</name>
    <message>
        <source>Tip of the Day</source>
        <translation>Astuce du jour</translation>
    </message>
    <message>
        <source>&amp;Show Tips at Startup</source>
        <translation>Afficher les astuces au &amp;démarrage</translation>
    </message>
    <message>
        <source>&amp;Next Tip</source>
        <translation>Astuce &amp;suivante</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Did you know...</source>
        <translation>Le saviez-vous...</translation>
    </message>
    <message>
        <source>That the </source>
        <translation>Le fichier </translation>
    </message>
    <message>
        <source> file was not found? </source>
        <translation> est introuvable. </translation>
    </message>
    <message>
        <source>Create a text file named </source>
        <translation>Créez avec le Bloc-notes un fichier texte nommé </translation>
    </message>
    <message>
        <source> using NotePad with 1 tip per line. </source>
        <translation> avec une astuce par ligne. </translation>
    </message>
    <message>
        <source>Then place it in the same directory as the application. </source>
        <translation>Placez-le ensuite dans le dossier de l&apos;application. </translation>
    </message>
</context>
<context>
    <name>frmVendor</name>
    <message>
        <source>Vendor Details</source>
        <translation>Fournisseur</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Notes:</source>
        <translation>Notes&#xa0;:</translation>
    </message>
    <message>
        <source>Contact Name:</source>
        <translation>Contact&#xa0;:</translation>
    </message>
    <message>
        <source>Business Name:</source>
        <translation>Entreprise&#xa0;:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse&#xa0;:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ville&#xa0;:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Région&#xa0;:</translation>
    </message>
    <message>
        <source>Country:</source>
        <translation>Pays&#xa0;:</translation>
    </message>
    <message>
        <source>Zip/Post Code:</source>
        <translation>Code postal&#xa0;:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Téléphone&#xa0;:</translation>
    </message>
    <message>
        <source>Fax:</source>
        <translation>Fax&#xa0;:</translation>
    </message>
    <message>
        <source>Email:</source>
        <translation>E-mail&#xa0;:</translation>
    </message>
    <message>
        <source>Vendor %1 saved</source>
        <translation>Fournisseur %1 enregistré</translation>
    </message>
</context>
<context>
    <name>frmWizConfig_Barcode</name>
    <message>
        <source>Enable Barcodes</source>
        <translation>Activer les codes-barres</translation>
    </message>
    <message>
        <source>Would you like to enable barcode scanning? This can help you save time later when adding items.</source>
        <translation>Voulez-vous activer la lecture de codes-barres&#xa0;? Vous gagnerez du temps lors de l&apos;ajout d&apos;articles.</translation>
    </message>
    <message>
        <source>Enable Barcode Scanning</source>
        <translation>Activer la lecture de codes-barres</translation>
    </message>
</context>
<context>
    <name>frmWizConfig_Business</name>
    <message>
        <source>Business contact details</source>
        <translation>Coordonnées de l&apos;entreprise</translation>
    </message>
    <message>
        <source>Enter your business contact details, this information will be used on your invoices.</source>
        <translation>Saisissez les coordonnées de votre entreprise. Elles figureront sur vos factures.</translation>
    </message>
    <message>
        <source>Business Name:</source>
        <translation>Entreprise&#xa0;:</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse&#xa0;:</translation>
    </message>
    <message>
        <source>City:</source>
        <translation>Ville&#xa0;:</translation>
    </message>
    <message>
        <source>State:</source>
        <translation>Région&#xa0;:</translation>
    </message>
    <message>
        <source>Country:</source>
        <translation>Pays&#xa0;:</translation>
    </message>
    <message>
        <source>Zip/Post Code:</source>
        <translation>Code postal&#xa0;:</translation>
    </message>
    <message>
        <source>Phone:</source>
        <translation>Téléphone&#xa0;:</translation>
    </message>
    <message>
        <source>Fax:</source>
        <translation>Fax&#xa0;:</translation>
    </message>
</context>
<context>
    <name>frmWizConfig_Cats</name>
    <message>
        <source>Enable Item Categories</source>
        <translation>Activer les catégories d&apos;articles</translation>
    </message>
    <message>
        <source>Would you like to enable item Categories and Sub-categories? Categories can help you to organize your inventory items.</source>
        <translation>Voulez-vous activer les catégories et sous-catégories d&apos;articles&#xa0;? Les catégories vous aident à organiser votre stock.</translation>
    </message>
    <message>
        <source>Enable Item Categories and Sub-categories</source>
        <translation>Activer les catégories et sous-catégories</translation>
    </message>
</context>
<context>
    <name>frmWizConfig_Complete</name>
    <message>
        <source>Click Finish to complete your configuration.</source>
        <translation>Cliquez sur Terminer pour achever la configuration.</translation>
    </message>
</context>
<context>
    <name>frmWizConfig_Logo</name>
    <message>
        <source>Your company logo</source>
        <translation>Le logo de votre entreprise</translation>
    </message>
    <message>
        <source>You can optionally select a logo to be displayed on your invoices. Click Browse to select your logo file.</source>
        <translation>Vous pouvez choisir un logo à afficher sur vos factures. Cliquez sur Parcourir pour sélectionner le fichier du logo.</translation>
    </message>
    <message>
        <source>B&amp;rowse</source>
        <translation>Pa&amp;rcourir</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Logo filename:</source>
        <translation>Fichier du logo&#xa0;:</translation>
    </message>
    <message>
        <source>Logo preview:</source>
        <translation>Aperçu du logo&#xa0;:</translation>
    </message>
    <message>
        <source>Unable to load file </source>
        <translation>Impossible de charger le fichier </translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>BMP Image (*.bmp)</source>
        <translation>Image BMP (*.bmp)</translation>
    </message>
    <message>
        <source>JPG Image (*.jpg)</source>
        <translation>Image JPG (*.jpg)</translation>
    </message>
    <message>
        <source>GIF Image (*.gif)</source>
        <translation>Image GIF (*.gif)</translation>
    </message>
</context>
<context>
    <name>frmWizConfig_PickingList</name>
    <message>
        <source>Enable Picking Lists</source>
        <translation>Activer les bons de préparation</translation>
    </message>
    <message>
        <source>Would you like to enable the creation of Picking Lists? Picking Lists help you to physically locate items for orders.</source>
        <translation>Voulez-vous activer les bons de préparation&#xa0;? Ils vous aident à retrouver les articles d&apos;une commande dans l&apos;entrepôt.</translation>
    </message>
    <message>
        <source>Enable Picking List</source>
        <translation>Activer le bon de préparation</translation>
    </message>
</context>
<context>
    <name>frmWizConfig_Tax</name>
    <message>
        <source>Tax information</source>
        <translation>Informations fiscales</translation>
    </message>
    <message>
        <source>Enter the tax name and percentage that can be added to items sold (you can setup multiple tax rates later).</source>
        <translation>Saisissez le nom et le pourcentage de la taxe applicable aux articles vendus (vous pourrez définir d&apos;autres taux plus tard).</translation>
    </message>
    <message>
        <source>Hide tax information on invoices.</source>
        <translation>Masquer les taxes sur les factures.</translation>
    </message>
    <message>
        <source>Enable Secondary Tax</source>
        <translation>Activer la seconde taxe</translation>
    </message>
    <message>
        <source>2nd Sales Tax</source>
        <translation>Seconde taxe</translation>
    </message>
    <message>
        <source>2nd Sales Tax Name (i.e. PST etc):</source>
        <translation>Nom de la 2e taxe (p. ex. TVQ)&#xa0;:</translation>
    </message>
    <message>
        <source>Tax Name:</source>
        <translation>Nom de la taxe&#xa0;:</translation>
    </message>
    <message>
        <source>Percentage:</source>
        <translation>Pourcentage&#xa0;:</translation>
    </message>
</context>
<context>
    <name>frmWizConfig_Welcome</name>
    <message>
        <source>Configuration Wizard</source>
        <translation>Assistant de configuration</translation>
    </message>
    <message>
        <source>Using this wizard you can configure your inventory details.</source>
        <translation>Cet assistant vous permet de configurer votre gestion de stock.</translation>
    </message>
</context>
<context>
    <name>frmWizImport_Complete</name>
    <message>
        <source>Data has been imported. Click Finish to close the wizard.</source>
        <translation>Les données ont été importées. Cliquez sur Terminer pour fermer l’assistant.</translation>
    </message>
</context>
<context>
    <name>frmWizImport_File</name>
    <message>
        <source>Choose the file to import</source>
        <translation>Choix du fichier à importer</translation>
    </message>
    <message>
        <source>Enter the CSV file to import or click browse to locate it.</source>
        <translation>Entrez le fichier CSV à importer ou cliquez sur Parcourir pour le trouver.</translation>
    </message>
    <message>
        <source>&amp;Browse</source>
        <translation>Pa&amp;rcourir</translation>
    </message>
    <message>
        <source>CSV file to import:</source>
        <translation>Fichier CSV à importer&#xa0;:</translation>
    </message>
    <message>
        <source>CSV (*.csv)</source>
        <translation>CSV (*.csv)</translation>
    </message>
    <message>
        <source>Unable to read file, please check you have permissions and try again.</source>
        <translation>Impossible de lire le fichier. Vérifiez vos droits d’accès et réessayez.</translation>
    </message>
    <message>
        <source>No file has been entered. Please enter a file to continue.</source>
        <translation>Aucun fichier n’a été indiqué. Indiquez un fichier pour continuer.</translation>
    </message>
    <message>
        <source>Cannot open file. Please select a file to continue.</source>
        <translation>Impossible d’ouvrir le fichier. Choisissez un fichier pour continuer.</translation>
    </message>
</context>
<context>
    <name>frmWizImport_Preview</name>
    <message>
        <source>(none)</source>
        <translation>(aucun)</translation>
    </message>
    <message>
        <source>Choose the fields to import</source>
        <translation>Choix des champs à importer</translation>
    </message>
    <message>
        <source>Choose the fields you want to import.</source>
        <translation>Choisissez les champs que vous voulez importer.</translation>
    </message>
    <message>
        <source>First line has field names</source>
        <translation>La première ligne contient les noms des champs</translation>
    </message>
    <message>
        <source>Preview:</source>
        <translation>Aperçu&#xa0;:</translation>
    </message>
    <message>
        <source>Importing records</source>
        <translation>Importation des enregistrements</translation>
    </message>
    <message>
        <source>String separator:</source>
        <translation>Séparateur de texte&#xa0;:</translation>
    </message>
    <message>
        <source>Import Fields:</source>
        <translation>Champs à importer&#xa0;:</translation>
    </message>
    <message>
        <source>(ignore)</source>
        <translation>(ignorer)</translation>
    </message>
    <message>
        <source>%1 records.</source>
        <translation>%1 enregistrements.</translation>
    </message>
    <message>
        <source>Unable to to import CSV file.</source>
        <translation>Impossible d’importer le fichier CSV.</translation>
    </message>
    <message>
        <source>Error occured when importing record %1</source>
        <translation>Erreur lors de l’importation de l’enregistrement %1</translation>
    </message>
    <message>
        <source>Importing the records...</source>
        <translation>Importation des enregistrements...</translation>
    </message>
</context>
<context>
    <name>frmWizImport_Welcome</name>
    <message>
        <source>Inventory Import Wizard</source>
        <translation>Assistant d’importation de l’inventaire</translation>
    </message>
    <message>
        <source>Using this wizard you can import inventory information.</source>
        <translation>Avec cet assistant, vous pouvez importer des données d’inventaire.</translation>
    </message>
</context>
<context>
    <name>frmWizMailList_Complete</name>
    <message>
        <source>Click Finish to complete your configuration.</source>
        <translation>Cliquez sur Terminer pour achever la configuration.</translation>
    </message>
    <message>
        <source>Unable to write to file </source>
        <translation>Impossible d&apos;écrire dans le fichier </translation>
    </message>
    <message>
        <source>Writing the file...</source>
        <translation>Écriture du fichier...</translation>
    </message>
</context>
<context>
    <name>frmWizMailList_File</name>
    <message>
        <source>Enter the Mailing List filename</source>
        <translation>Nom du fichier de la liste de diffusion</translation>
    </message>
    <message>
        <source>Enter the filename you would like to populate with your email list.</source>
        <translation>Saisissez le nom du fichier dans lequel écrire votre liste d&apos;adresses e-mail.</translation>
    </message>
    <message>
        <source>B&amp;rowse</source>
        <translation>Pa&amp;rcourir</translation>
    </message>
    <message>
        <source>Mailing List Filename:</source>
        <translation>Fichier de la liste&#xa0;:</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Text documents (*.txt)</source>
        <translation>Documents texte (*.txt)</translation>
    </message>
    <message>
        <source>No mailing list filename has been entered. Please enter a filename to continue.</source>
        <translation>Aucun nom de fichier n&apos;a été saisi pour la liste. Veuillez saisir un nom de fichier pour continuer.</translation>
    </message>
</context>
<context>
    <name>frmWizMailList_Welcome</name>
    <message>
        <source>Email Mailing List Wizard</source>
        <translation>Assistant liste de diffusion</translation>
    </message>
    <message>
        <source>Using this wizard you can create a mailing list of your customers.</source>
        <translation>Cet assistant vous permet de créer une liste de diffusion de vos clients.</translation>
    </message>
</context>
<context>
    <name>frmWizOConfig_Complete</name>
    <message>
        <source>Would you like to create a booking web page now?</source>
        <translation>Voulez-vous créer la page de commande maintenant&#xa0;?</translation>
    </message>
    <message>
        <source>Click Finish to complete your configuration.</source>
        <translation>Cliquez sur Terminer pour achever la configuration.</translation>
    </message>
</context>
<context>
    <name>frmWizOConfig_Email</name>
    <message>
        <source>Enter your email booking address</source>
        <translation>Adresse e-mail pour les commandes</translation>
    </message>
    <message>
        <source>Enter the email address that should recieve the bookings made from the website.</source>
        <translation>Saisissez l&apos;adresse e-mail qui doit recevoir les commandes passées sur le site Web.</translation>
    </message>
    <message>
        <source>Booking email address:</source>
        <translation>E-mail des commandes&#xa0;:</translation>
    </message>
    <message>
        <source>No email address has been entered. Please enter an email address to continue.</source>
        <translation>Aucune adresse e-mail n&apos;a été saisie. Veuillez saisir une adresse e-mail pour continuer.</translation>
    </message>
</context>
<context>
    <name>frmWizOConfig_Provider</name>
    <message>
        <source>Choose your email provider</source>
        <translation>Choisissez votre fournisseur d&apos;e-mail</translation>
    </message>
    <message>
        <source>Select the email provider to use to send your email confirmations. If you are not sure then leave the default setting.</source>
        <translation>Sélectionnez le fournisseur qui envoie vos confirmations par e-mail. En cas de doute, conservez le réglage par défaut.</translation>
    </message>
    <message>
        <source>Email provider:</source>
        <translation>Fournisseur d&apos;e-mail&#xa0;:</translation>
    </message>
    <message>
        <source>Custom provider:</source>
        <translation>Autre fournisseur&#xa0;:</translation>
    </message>
    <message>
        <source>Response-o-Matic (default)</source>
        <translation>Response-o-Matic (par défaut)</translation>
    </message>
    <message>
        <source>Custom...</source>
        <translation>Autre...</translation>
    </message>
    <message>
        <source>No custom provider has been entered. Continue anyway?</source>
        <translation>Aucun autre fournisseur n&apos;a été saisi. Continuer quand même&#xa0;?</translation>
    </message>
</context>
<context>
    <name>frmWizOConfig_Welcome</name>
    <message>
        <source>Web Booking Configuration Wizard</source>
        <translation>Assistant de commandes Web</translation>
    </message>
    <message>
        <source>Using this wizard you can configure your website to accept online bookings.</source>
        <translation>Cet assistant vous permet de configurer votre site Web pour accepter des commandes en ligne.</translation>
    </message>
</context>
</TS>
