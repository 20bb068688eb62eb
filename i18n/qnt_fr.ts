<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>BreaksDialog</name>
    <message>
        <source>Breaks</source>
        <translation>Ruptures</translation>
    </message>
    <message>
        <source>A break adds a summary to the report where the value of its field changes.</source>
        <translation>Une rupture ajoute une synthèse au rapport à chaque changement de valeur de son champ.</translation>
    </message>
    <message>
        <source>Key Fields:</source>
        <translation>Champs clés&#xa0;:</translation>
    </message>
    <message>
        <source>Enter or a double click defines a break, Space activates or suspends it</source>
        <translation>Entrée ou un double-clic définit une rupture, Espace l&apos;active ou la désactive</translation>
    </message>
    <message>
        <source>&amp;Define...</source>
        <translation>&amp;Définir...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>ConfigureBreakDialog</name>
    <message>
        <source>Define Break</source>
        <translation>Définir une rupture</translation>
    </message>
    <message>
        <source>Field:</source>
        <translation>Champ&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom&#xa0;:</translation>
    </message>
    <message>
        <source>Acti&amp;ve</source>
        <translation>Acti&amp;ve</translation>
    </message>
    <message>
        <source>Put A &amp;Blank Row After Break</source>
        <translation>Insérer une &amp;ligne vide après la rupture</translation>
    </message>
    <message>
        <source>Break &amp;Frequency:</source>
        <translation>Fré&amp;quence&#xa0;:</translation>
    </message>
    <message>
        <source>F&amp;irst Break:</source>
        <translation>&amp;Première rupture&#xa0;:</translation>
    </message>
    <message>
        <source>At Break, Compute</source>
        <translation>À la rupture, calculer</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>This break shows nothing: its field is neither in the rows nor in the columns of the report.</source>
        <translation>Cette rupture n&apos;affiche rien&#xa0;: son champ ne figure ni dans les lignes ni dans les colonnes du rapport.</translation>
    </message>
    <message>
        <source>This break shows nothing: it is not active.</source>
        <translation>Cette rupture n&apos;affiche rien&#xa0;: elle n&apos;est pas active.</translation>
    </message>
    <message>
        <source>This break shows nothing: choose how often it comes.</source>
        <translation>Cette rupture n&apos;affiche rien&#xa0;: choisissez sa fréquence.</translation>
    </message>
    <message>
        <source>This break shows nothing: choose what to compute for at least one data field.</source>
        <translation>Cette rupture n&apos;affiche rien&#xa0;: choisissez un calcul pour au moins un champ de données.</translation>
    </message>
</context>
<context>
    <name>ConfigureDisplayDialog</name>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Data Fields</source>
        <translation>Champs de données</translation>
    </message>
    <message>
        <source>A&amp;vailable fields</source>
        <translation>&amp;Champs disponibles</translation>
    </message>
    <message>
        <source>Show (Ordered)</source>
        <translation>Affichés (ordonnés)</translation>
    </message>
    <message>
        <source>Available fields</source>
        <translation>Champs disponibles</translation>
    </message>
    <message>
        <source>&amp;Show &gt;</source>
        <translation>&amp;Afficher &gt;</translation>
    </message>
    <message>
        <source>Show the selected fields as data</source>
        <translation>Afficher les champs sélectionnés comme données</translation>
    </message>
    <message>
        <source>&lt; &amp;Hide</source>
        <translation>&lt; &amp;Masquer</translation>
    </message>
    <message>
        <source>Take the selected fields out of the report</source>
        <translation>Retirer les champs sélectionnés du rapport</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>M&amp;onter</translation>
    </message>
    <message>
        <source>Move the selected fields up</source>
        <translation>Déplacer les champs sélectionnés vers le haut</translation>
    </message>
    <message>
        <source>Dow&amp;n</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>Move the selected fields down</source>
        <translation>Déplacer les champs sélectionnés vers le bas</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre&#xa0;:</translation>
    </message>
    <message>
        <source>Show S&amp;ystem Title</source>
        <translation>Afficher le titre s&amp;ystème</translation>
    </message>
    <message>
        <source>Show Du&amp;plicate Labels</source>
        <translation>Afficher les étiquettes en dou&amp;ble</translation>
    </message>
    <message>
        <source>Show &amp;Empty Rows and Columns</source>
        <translation>Afficher les &amp;lignes et colonnes vides</translation>
    </message>
    <message>
        <source>&amp;Date Format:</source>
        <translation>&amp;Format de date&#xa0;:</translation>
    </message>
    <message>
        <source>%d day, %m month, %b month name, %Y year, %y year in two digits, %H hour, %M minute, %S second</source>
        <translation>%d jour, %m mois, %b nom du mois, %Y année, %y année sur deux chiffres, %H heure, %M minute, %S seconde</translation>
    </message>
    <message>
        <source>P&amp;recision:</source>
        <translation>&amp;Précision&#xa0;:</translation>
    </message>
    <message>
        <source>Decimal Places</source>
        <translation>décimales</translation>
    </message>
    <message>
        <source>Period &amp;File:</source>
        <translation>Fichi&amp;er de périodes&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Parco&amp;urir...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Appli&amp;quer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
</context>
<context>
    <name>ConfigureLayoutDialog</name>
    <message>
        <source>Reordering columns:</source>
        <translation>Réorganiser les colonnes&#xa0;:</translation>
    </message>
    <message>
        <source>Drag buttons up and down within the area below to rearrange column order</source>
        <translation>Faites glisser les boutons vers le haut ou le bas dans la zone ci-dessous pour modifier l&apos;ordre des colonnes</translation>
    </message>
    <message>
        <source>Make a &amp;Column</source>
        <translation>Mettre en &amp;colonne</translation>
    </message>
    <message>
        <source>Creating tabs:</source>
        <translation>Créer des onglets&#xa0;:</translation>
    </message>
    <message>
        <source>Drag and drop buttons into this area to create tabs in the report</source>
        <translation>Faites glisser des boutons dans cette zone pour créer des onglets dans le rapport</translation>
    </message>
    <message>
        <source>Make &amp;Tabs</source>
        <translation>Mettre en &amp;onglets</translation>
    </message>
    <message>
        <source>Spreading data horizontally:</source>
        <translation>Répartir les données horizontalement&#xa0;:</translation>
    </message>
    <message>
        <source>Drag and drop buttons into this area to spread data horizontally.</source>
        <translation>Faites glisser des boutons dans cette zone pour répartir les données horizontalement.</translation>
    </message>
    <message>
        <source>&amp;Spread Horizontally</source>
        <translation>&amp;Répartir horizontalement</translation>
    </message>
</context>
<context>
    <name>ExprEdtrViewBase</name>
    <message>
        <source>Expression Editor</source>
        <translation>Éditeur d&apos;expressions</translation>
    </message>
    <message>
        <source>Field &amp;Name:</source>
        <translation>Nom du &amp;champ&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>&amp;Formule&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Inverse Formula (applied only when field is edited):</source>
        <translation>Formule &amp;inverse (appliquée seulement si le champ est modifié)&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Appli&amp;quer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
</context>
<context>
    <name>ExpressionsDialog</name>
    <message>
        <source>Expressions</source>
        <translation>Expressions</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>&amp;Actions</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Appli&amp;quer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
</context>
<context>
    <name>FieldDialog</name>
    <message>
        <source>Configure Fields</source>
        <translation>Configurer les champs</translation>
    </message>
    <message>
        <source>Field, Classifications and Data Type</source>
        <translation>Champ, classification et type de données</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Appli&amp;quer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>Data, can be edited</source>
        <translation>Données, modifiables</translation>
    </message>
    <message>
        <source>Data, read only</source>
        <translation>Données, lecture seule</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Chaîne</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>Booléen</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Expression</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Période</translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 existe déjà.
Voulez-vous remplacer ce fichier&#xa0;?</translation>
    </message>
</context>
<context>
    <name>FillCellsDialog</name>
    <message>
        <source>Fill Cells</source>
        <translation>Remplir les cellules</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Valeur&#xa0;:</translation>
    </message>
    <message>
        <source>A value as it is typed into a cell; for numbers also a formula</source>
        <translation>Une valeur telle qu&apos;elle est saisie dans une cellule&#xa0;; pour les nombres, aussi une formule</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>&amp;Row</source>
        <translation>&amp;Ligne</translation>
    </message>
    <message>
        <source>Number of the row</source>
        <translation>Numéro de la ligne</translation>
    </message>
    <message>
        <source>C&amp;olumn</source>
        <translation>&amp;Colonne</translation>
    </message>
    <message>
        <source>Number of the column</source>
        <translation>Numéro de la colonne</translation>
    </message>
    <message>
        <source>&amp;Entire table</source>
        <translation>&amp;Tableau entier</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Appli&amp;quer</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>FormulaCheck</name>
    <message>
        <source>A name with an apostrophe and blanks or operators in it cannot be used in formulas: view files keep no double quotes around it.</source>
        <translation>Un nom contenant une apostrophe ainsi que des espaces ou des opérateurs ne peut pas être utilisé dans les formules&#xa0;: les fichiers de vue ne conservent pas les guillemets doubles qui l’entourent.</translation>
    </message>
</context>
<context>
    <name>FunctionsDialog</name>
    <message>
        <source>Expression Functions</source>
        <translation>Fonctions d&apos;expression</translation>
    </message>
    <message>
        <source>F&amp;ilter:</source>
        <translation>F&amp;iltre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Functions</source>
        <translation>F&amp;onctions</translation>
    </message>
    <message>
        <source>(drag and drop into field or highlight expressions)</source>
        <translation>(à glisser dans une expression de champ ou de mise en évidence)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
</context>
<context>
    <name>HighlightEdtrViewBase</name>
    <message>
        <source>Highlight Editor</source>
        <translation>Éditeur de mise en évidence</translation>
    </message>
    <message>
        <source>Field Name:</source>
        <translation>Nom du champ&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Highlight Formula:</source>
        <translation>&amp;Formule de mise en évidence&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Set from source</source>
        <translation>Reprendre d&apos;un &amp;champ</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Appli&amp;quer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
</context>
<context>
    <name>HighlightingDialog</name>
    <message>
        <source>Highlighting</source>
        <translation>Mise en évidence</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>&amp;Actions</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Appli&amp;quer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>A&amp;nnuler</translation>
    </message>
</context>
<context>
    <name>PrintOptionsDialog</name>
    <message>
        <source>Print Options</source>
        <translation>Options d&apos;impression</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titre&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Footer:</source>
        <translation>Pied de pa&amp;ge&#xa0;:</translation>
    </message>
    <message>
        <source>Repeat &amp;Row Headings</source>
        <translation>&amp;Répéter les en-têtes de lignes</translation>
    </message>
    <message>
        <source>Repeat &amp;Column Headings</source>
        <translation>Répéter les &amp;en-têtes de colonnes</translation>
    </message>
    <message>
        <source>Print All &amp;Z Dimensions on Separate Pages</source>
        <translation>Imprimer toutes les dimensions &amp;Z sur des pages séparées</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>Printer T&amp;ype:</source>
        <translation>Type d&apos;i&amp;mprimante&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>&amp;Imprimante&#xa0;:</translation>
    </message>
    <message>
        <source>Print Co&amp;mmand:</source>
        <translation>&amp;Commande d&apos;impression&#xa0;:</translation>
    </message>
    <message>
        <source>Runs in place of the printer; %s stands for the print file</source>
        <translation>S&apos;exécute à la place de l&apos;imprimante&#xa0;; %s représente le fichier d&apos;impression</translation>
    </message>
    <message>
        <source>Print to fi&amp;le</source>
        <translation>Imprimer &amp;vers un fichier</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nom du fichier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Parco&amp;urir...</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Mise à l&apos;échelle</translation>
    </message>
    <message>
        <source>Fit &amp;Width to</source>
        <translation>Aju&amp;ster la largeur à</translation>
    </message>
    <message>
        <source>Pages across</source>
        <translation>Pages en largeur</translation>
    </message>
    <message>
        <source>Page(s)</source>
        <translation>page(s)</translation>
    </message>
    <message>
        <source>Fit &amp;Height to</source>
        <translation>Ajuster la hauteur &amp;à</translation>
    </message>
    <message>
        <source>Pages down</source>
        <translation>Pages en hauteur</translation>
    </message>
    <message>
        <source>Fit on &amp;One Page</source>
        <translation>A&amp;juster à une page</translation>
    </message>
    <message>
        <source>&amp;Use Font Size</source>
        <translation>Taille de police fi&amp;xe</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Taille de police</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>points</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>&amp;Papier&#xa0;:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Orientation&#xa0;:</translation>
    </message>
    <message>
        <source>Portra&amp;it</source>
        <translation>P&amp;ortrait</translation>
    </message>
    <message>
        <source>Land&amp;scape</source>
        <translation>Pa&amp;ysage</translation>
    </message>
    <message>
        <source>Show &amp;Grid</source>
        <translation>A&amp;fficher le quadrillage</translation>
    </message>
    <message>
        <source>ASCII</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>Page &amp;Width (chars)</source>
        <translation>&amp;Largeur de page (car.)</translation>
    </message>
    <message>
        <source>Page Width (chars)</source>
        <translation>Largeur de page (car.)</translation>
    </message>
    <message>
        <source>Page &amp;Height (chars)</source>
        <translation>&amp;Hauteur de page (car.)</translation>
    </message>
    <message>
        <source>Page Height (chars)</source>
        <translation>Hauteur de page (car.)</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>C&amp;omplete Document</source>
        <translation>&amp;Document complet</translation>
    </message>
    <message>
        <source>Border&amp;s</source>
        <translation>&amp;Bordures</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Appli&amp;quer</translation>
    </message>
    <message>
        <source>Apply an&amp;d Print</source>
        <translation>&amp;Appliquer et imprimer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>PostScript</source>
        <translation>PostScript</translation>
    </message>
</context>
<context>
    <name>VrelMainWindow</name>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Imprimer...</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>Export &amp;As...</source>
        <translation>Exporter &amp;sous...</translation>
    </message>
    <message>
        <source>&amp;Open View...</source>
        <translation>&amp;Ouvrir une vue...</translation>
    </message>
    <message>
        <source>&amp;Save View</source>
        <translation>E&amp;nregistrer la vue</translation>
    </message>
    <message>
        <source>Save &amp;View As...</source>
        <translation>Enregistrer la &amp;vue sous...</translation>
    </message>
    <message>
        <source>&amp;Import Expressions...</source>
        <translation>Importer des e&amp;xpressions...</translation>
    </message>
    <message>
        <source>Import &amp;Highlighting...</source>
        <translation>Importer la &amp;mise en évidence...</translation>
    </message>
    <message>
        <source>&amp;Delete View...</source>
        <translation>Su&amp;pprimer une vue...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>&amp;All Inverse Formulas</source>
        <translation>&amp;Toutes les formules inverses</translation>
    </message>
    <message>
        <source>&amp;Fill Cells...</source>
        <translation>&amp;Remplir les cellules...</translation>
    </message>
    <message>
        <source>&amp;Recalculate</source>
        <translation>Re&amp;calculer</translation>
    </message>
    <message>
        <source>&amp;Swap Data Row/Column</source>
        <translation>&amp;Permuter lignes/colonnes de données</translation>
    </message>
    <message>
        <source>&amp;Display...</source>
        <translation>&amp;Affichage...</translation>
    </message>
    <message>
        <source>Lay&amp;out...</source>
        <translation>&amp;Disposition...</translation>
    </message>
    <message>
        <source>&amp;Breaks...</source>
        <translation>&amp;Ruptures...</translation>
    </message>
    <message>
        <source>&amp;Expressions...</source>
        <translation>&amp;Expressions...</translation>
    </message>
    <message>
        <source>&amp;Highlighting...</source>
        <translation>&amp;Mise en évidence...</translation>
    </message>
    <message>
        <source>&amp;List Functions...</source>
        <translation>&amp;Liste des fonctions...</translation>
    </message>
    <message>
        <source>&amp;Fields...</source>
        <translation>&amp;Champs...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Configure</source>
        <translation>&amp;Configuration</translation>
    </message>
</context>
<context>
    <name>vrel</name>
    <message>
        <source>The location of the model cannot be saved because the file &quot;%1&quot; is read-only.  Please make sure it has Write attributes.</source>
        <translation>L&apos;emplacement du modèle ne peut pas être enregistré, car le fichier «&#xa0;%1&#xa0;» est en lecture seule. Veuillez vérifier qu&apos;il est accessible en écriture.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written.</source>
        <translation>Impossible d&apos;écrire le fichier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Applying inverse formulas...</source>
        <translation>Application des formules inverses...</translation>
    </message>
    <message>
        <source>Pasting...</source>
        <translation>Collage en cours...</translation>
    </message>
    <message>
        <source>Recalculating formulas...</source>
        <translation>Recalcul des formules...</translation>
    </message>
    <message>
        <source>Computing colours...</source>
        <translation>Calcul des couleurs...</translation>
    </message>
    <message>
        <source>Region for pasting does match copied data region.</source>
        <translation>La zone de collage ne correspond pas à la zone copiée.</translation>
    </message>
    <message>
        <source>Column range is outside of table size.</source>
        <translation>La plage de colonnes dépasse les limites du tableau.</translation>
    </message>
    <message>
        <source>Row range is outside of table size.</source>
        <translation>La plage de lignes dépasse les limites du tableau.</translation>
    </message>
    <message>
        <source>Selected cell in paste area is read only and has not been changed.</source>
        <translation>La cellule sélectionnée dans la zone de collage est en lecture seule et n&apos;a pas été modifiée.</translation>
    </message>
    <message>
        <source>At least one cell in paste area is read only and has not been changed.</source>
        <translation>Au moins une cellule de la zone de collage est en lecture seule et n&apos;a pas été modifiée.</translation>
    </message>
    <message>
        <source>One or more cells in paste area are read only and have not been changed.</source>
        <translation>Une ou plusieurs cellules de la zone de collage sont en lecture seule et n&apos;ont pas été modifiées.</translation>
    </message>
    <message>
        <source>QNT Error</source>
        <translation>Erreur QNT</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot;.</source>
        <translation>Impossible d&apos;ouvrir le fichier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Errors in period file &quot;%1&quot;.</source>
        <translation>Erreurs dans le fichier de périodes&#xa0;: «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Default View Title</source>
        <translation>Titre de vue par défaut</translation>
    </message>
    <message>
        <source>Exporting...</source>
        <translation>Exportation en cours...</translation>
    </message>
    <message>
        <source>Error: Could not open file &quot;%1&quot;.</source>
        <translation>Erreur&#xa0;: impossible d&apos;ouvrir le fichier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>XML (*.xml)</source>
        <translation>XML (*.xml)</translation>
    </message>
    <message>
        <source>HTML (*.htm; *.html)</source>
        <translation>HTML (*.htm; *.html)</translation>
    </message>
    <message>
        <source>CSV (Comma delimited) (*.csv)</source>
        <translation>CSV (séparateur&#xa0;: virgule) (*.csv)</translation>
    </message>
    <message>
        <source>Printing...</source>
        <translation>Impression en cours...</translation>
    </message>
    <message>
        <source>Unable to print to &quot;%1&quot;.</source>
        <translation>Impossible d&apos;imprimer dans «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Closing file &quot;%1&quot; fails.</source>
        <translation>Impossible de fermer le fichier «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Error: Invalid output file path &quot;%1&quot;.</source>
        <translation>Erreur&#xa0;: chemin du fichier de sortie «&#xa0;%1&#xa0;» non valide.</translation>
    </message>
    <message>
        <source>Error: Cannot find input file &quot;%1&quot;.</source>
        <translation>Erreur&#xa0;: fichier d&apos;entrée «&#xa0;%1&#xa0;» introuvable.</translation>
    </message>
    <message>
        <source>Error: Data does not match fields</source>
        <translation>Erreur&#xa0;: les données ne correspondent pas aux champs</translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;</source>
        <translation>Impossible d&apos;ouvrir «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>Open View</source>
        <translation>Ouvrir une vue</translation>
    </message>
    <message>
        <source>Do you want to save changes to &quot;%1&quot;?</source>
        <translation>Voulez-vous enregistrer les modifications apportées à «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>PostScript (*.ps)</source>
        <translation>PostScript (*.ps)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texte (*.txt)</translation>
    </message>
    <message>
        <source>HTML (*.html)</source>
        <translation>HTML (*.html)</translation>
    </message>
    <message>
        <source>Matching views (%1);;All views (*.view)</source>
        <translation>Vues compatibles (%1);;Toutes les vues (*.view)</translation>
    </message>
    <message>
        <source>File name &quot;%1&quot; contains a character that is not allowed.</source>
        <translation>Le nom de fichier «&#xa0;%1&#xa0;» contient un caractère non autorisé.</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot; for loading expressions.</source>
        <translation>Impossible d&apos;ouvrir le fichier «&#xa0;%1&#xa0;» pour charger des expressions.</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; does not match data</source>
        <translation>Le fichier de vue «&#xa0;%1&#xa0;» ne correspond pas aux données</translation>
    </message>
    <message>
        <source>Save View As</source>
        <translation>Enregistrer la vue sous</translation>
    </message>
    <message>
        <source>Delete View</source>
        <translation>Supprimer une vue</translation>
    </message>
    <message>
        <source>Delete view &quot;%1&quot;?</source>
        <translation>Supprimer la vue «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Cannot delete &quot;%1&quot;.</source>
        <translation>Impossible de supprimer «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot; for saving.</source>
        <translation>Impossible d&apos;ouvrir le fichier «&#xa0;%1&#xa0;» pour l&apos;enregistrement.</translation>
    </message>
    <message>
        <source>Data Editor</source>
        <translation>Éditeur de données</translation>
    </message>
    <message>
        <source>Warning: Some data with non-unique keys was removed.</source>
        <translation>Avertissement&#xa0;: certaines données dont les clés ne sont pas uniques ont été supprimées.</translation>
    </message>
    <message>
        <source>Not enough keys to properly display data
extracted by report
&quot;%s&quot;.</source>
        <translation>Clés insuffisantes pour afficher correctement
les données extraites par le rapport
«&#xa0;%s&#xa0;».</translation>
    </message>
    <message>
        <source>Page %1.%2</source>
        <translation>Page %1.%2</translation>
    </message>
    <message>
        <source>Error attempting to print. Print cancelled.</source>
        <translation>Erreur lors de l&apos;impression. Impression annulée.</translation>
    </message>
    <message>
        <source>Export As</source>
        <translation>Exporter sous</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Imprimer vers un fichier</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Recherche en cours...</translation>
    </message>
    <message>
        <source>Data Editor: Delete View</source>
        <translation>Éditeur de données&#xa0;: supprimer une vue</translation>
    </message>
    <message>
        <source>Please specify file name for saving.</source>
        <translation>Veuillez indiquer un nom de fichier pour l&apos;enregistrement.</translation>
    </message>
    <message>
        <source>Invalid Row or Column to fill.</source>
        <translation>Ligne ou colonne à remplir non valide.</translation>
    </message>
    <message>
        <source>Invalid Row or Column.</source>
        <translation>Ligne ou colonne non valide.</translation>
    </message>
    <message>
        <source>Cannot perform change - field is read-only.</source>
        <translation>Modification impossible - le champ est en lecture seule.</translation>
    </message>
    <message>
        <source>Filling cells...</source>
        <translation>Remplissage des cellules...</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>Every Change</source>
        <translation>À chaque changement</translation>
    </message>
    <message>
        <source>Every 2nd Change</source>
        <translation>Tous les 2 changements</translation>
    </message>
    <message>
        <source>Every 3rd Change</source>
        <translation>Tous les 3 changements</translation>
    </message>
    <message>
        <source>Every 4th Change</source>
        <translation>Tous les 4 changements</translation>
    </message>
    <message>
        <source>Every 5th Change</source>
        <translation>Tous les 5 changements</translation>
    </message>
    <message>
        <source>Every 6th Change</source>
        <translation>Tous les 6 changements</translation>
    </message>
    <message>
        <source>Every 7th Change</source>
        <translation>Tous les 7 changements</translation>
    </message>
    <message>
        <source>Every 8th Change</source>
        <translation>Tous les 8 changements</translation>
    </message>
    <message>
        <source>Every 9th Change</source>
        <translation>Tous les 9 changements</translation>
    </message>
    <message>
        <source>Every 10th Change</source>
        <translation>Tous les 10 changements</translation>
    </message>
    <message>
        <source>Every 12th Change</source>
        <translation>Tous les 12 changements</translation>
    </message>
    <message>
        <source>Every 24th Change</source>
        <translation>Tous les 24 changements</translation>
    </message>
    <message>
        <source>Every 28th Change</source>
        <translation>Tous les 28 changements</translation>
    </message>
    <message>
        <source>At End</source>
        <translation>À la fin</translation>
    </message>
    <message>
        <source>Same as Frequency</source>
        <translation>Selon la fréquence</translation>
    </message>
    <message>
        <source>At 1st Change</source>
        <translation>Au 1er changement</translation>
    </message>
    <message>
        <source>At 2nd Change</source>
        <translation>Au 2e changement</translation>
    </message>
    <message>
        <source>At 3rd Change</source>
        <translation>Au 3e changement</translation>
    </message>
    <message>
        <source>At 4th Change</source>
        <translation>Au 4e changement</translation>
    </message>
    <message>
        <source>At 5th Change</source>
        <translation>Au 5e changement</translation>
    </message>
    <message>
        <source>At 6th Change</source>
        <translation>Au 6e changement</translation>
    </message>
    <message>
        <source>At 7th Change</source>
        <translation>Au 7e changement</translation>
    </message>
    <message>
        <source>At 8th Change</source>
        <translation>Au 8e changement</translation>
    </message>
    <message>
        <source>At 9th Change</source>
        <translation>Au 9e changement</translation>
    </message>
    <message>
        <source>At 10th Change</source>
        <translation>Au 10e changement</translation>
    </message>
    <message>
        <source>At 11th Change</source>
        <translation>Au 11e changement</translation>
    </message>
    <message>
        <source>Every %1 Changes</source>
        <translation>Tous les %1 changements</translation>
    </message>
    <message>
        <source>At Change %1</source>
        <translation>Au %1e changement</translation>
    </message>
    <message>
        <source>At End (%1)</source>
        <translation>À la fin (%1)</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Nil</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Somme</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>Avg</source>
        <translation>Moy</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Premier</translation>
    </message>
    <message>
        <source>1st</source>
        <translation>1er</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Dernier</translation>
    </message>
    <message>
        <source>Copying...</source>
        <translation>Copie en cours...</translation>
    </message>
    <message>
        <source>The selection is too large to be copied.</source>
        <translation>La sélection est trop grande pour être copiée.</translation>
    </message>
    <message>
        <source>The change could not be sent to the host application: its message file cannot be written.</source>
        <translation>La modification n&apos;a pas pu être envoyée à l&apos;application hôte&#xa0;: impossible d&apos;écrire son fichier de messages.</translation>
    </message>
    <message>
        <source>The values of &quot;%1&quot; cannot be changed.</source>
        <translation>Les valeurs de «&#xa0;%1&#xa0;» ne peuvent pas être modifiées.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date.</source>
        <translation>«&#xa0;%1&#xa0;» n&apos;est pas une date.</translation>
    </message>
    <message>
        <source>Some of the pasted texts are no values and have not been set; the first is &quot;%1&quot;.</source>
        <translation>Certains des textes collés ne sont pas des valeurs valides et ont été ignorés&#xa0;; le premier est «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Import Expressions</source>
        <translation>Importer des expressions</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; has no expressions.</source>
        <translation>Le fichier de vue «&#xa0;%1&#xa0;» ne contient aucune expression.</translation>
    </message>
    <message>
        <source>There is not enough memory for the imported expressions.</source>
        <translation>Mémoire insuffisante pour les expressions importées.</translation>
    </message>
    <message>
        <source>Import Highlighting</source>
        <translation>Importer la mise en évidence</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; has none of the fields of this report.</source>
        <translation>Le fichier de vue «&#xa0;%1&#xa0;» ne contient aucun des champs de ce rapport.</translation>
    </message>
</context>
<context>
    <name>vrel::BreaksDialogImpl</name>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Active</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Fréquence</translation>
    </message>
    <message>
        <source>First Break</source>
        <translation>Première rupture</translation>
    </message>
    <message>
        <source>Computes</source>
        <translation>Calcul</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>&amp;Actions</translation>
    </message>
    <message>
        <source>Suspend All Breaks</source>
        <translation>Désactiver toutes les ruptures</translation>
    </message>
    <message>
        <source>Activate All Breaks</source>
        <translation>Activer toutes les ruptures</translation>
    </message>
    <message>
        <source>active</source>
        <translation>active</translation>
    </message>
    <message>
        <source>suspended</source>
        <translation>désactivée</translation>
    </message>
</context>
<context>
    <name>vrel::ColumnPopupMenu</name>
    <message>
        <source>Show Data</source>
        <translation>Afficher les données</translation>
    </message>
    <message>
        <source>Hide Data</source>
        <translation>Masquer les données</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureBreakDialog</name>
    <message>
        <source>Data Field</source>
        <translation>Champ de données</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Calcul</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureDesk</name>
    <message>
        <source>Period File</source>
        <translation>Fichier de périodes</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureDisplayDialogImpl</name>
    <message>
        <source>&lt;default&gt;</source>
        <translation>&lt;par défaut&gt;</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>Exemple&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureLayoutDialog</name>
    <message>
        <source>Layout</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>Use the buttons below to reorder the tabular data in the report. You will see the effects of reordering in the report in the main window</source>
        <translation>Utilisez les boutons ci-dessous pour réorganiser les données tabulaires du rapport. Le résultat s&apos;affiche dans le rapport de la fenêtre principale</translation>
    </message>
    <message>
        <source>By keyboard: Ctrl+Up and Ctrl+Down move a field within its area, Ctrl+Left and Ctrl+Right move it to the area beside it.</source>
        <translation>Au clavier&#xa0;: Ctrl+Haut et Ctrl+Bas déplacent un champ dans sa zone, Ctrl+Gauche et Ctrl+Droite le déplacent dans la zone voisine.</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Déplacer vers le &amp;haut</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Déplacer vers le &amp;bas</translation>
    </message>
</context>
<context>
    <name>vrel::CopyPasteLineEdit</name>
    <message>
        <source>Cell value</source>
        <translation>Valeur de la cellule</translation>
    </message>
</context>
<context>
    <name>vrel::DataTable</name>
    <message>
        <source>(Copy)</source>
        <translation>(Copier)</translation>
    </message>
    <message>
        <source>(Paste)</source>
        <translation>(Coller)</translation>
    </message>
</context>
<context>
    <name>vrel::EditDesk</name>
    <message>
        <source>Cannot compute value</source>
        <translation>Impossible de calculer la valeur</translation>
    </message>
    <message>
        <source>Cells that cannot be empty and stay as they were: %1 of %2.</source>
        <translation>Cellules ne pouvant pas être vides et restées inchangées&#xa0;: %1 sur %2.</translation>
    </message>
    <message>
        <source>Cells that do not take &quot;%1&quot; and stay as they were: %2 of %3.</source>
        <translation>Cellules n&apos;acceptant pas «&#xa0;%1&#xa0;» et restées inchangées&#xa0;: %2 sur %3.</translation>
    </message>
</context>
<context>
    <name>vrel::ExprEdtrView</name>
    <message>
        <source>Cannot apply the inverse formula</source>
        <translation>Impossible d&apos;appliquer la formule inverse</translation>
    </message>
    <message>
        <source>Please enter a formula.</source>
        <translation>Veuillez saisir une formule.</translation>
    </message>
    <message>
        <source>Cannot apply the formula</source>
        <translation>Impossible d&apos;appliquer la formule</translation>
    </message>
    <message>
        <source>Please enter a field name.</source>
        <translation>Veuillez saisir un nom de champ.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a field: formulas could not refer to it. A name must not hold colons or quotes, begin with &quot;#&quot; or be longer than 127 bytes.</source>
        <translation>«&#xa0;%1&#xa0;» ne peut pas servir de nom de champ&#xa0;: les formules ne pourraient pas y faire référence. Un nom ne doit ni contenir de deux-points ou de guillemets, ni commencer par «&#xa0;#&#xa0;», ni dépasser 127 octets.</translation>
    </message>
</context>
<context>
    <name>vrel::ExpressionErrorDialog</name>
    <message>
        <source>Expression Error</source>
        <translation>Erreur d&apos;expression</translation>
    </message>
    <message>
        <source>Syntax error in expression:</source>
        <translation>Erreur de syntaxe dans l&apos;expression&#xa0;:</translation>
    </message>
    <message>
        <source>Evaluation error in expression:</source>
        <translation>Erreur d&apos;évaluation dans l&apos;expression&#xa0;:</translation>
    </message>
</context>
<context>
    <name>vrel::ExpressionsDialogImpl</name>
    <message>
        <source>&amp;New</source>
        <translation>N&amp;ouvelle</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Modifier...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Data Editor: missing selection</source>
        <translation>Éditeur de données&#xa0;: sélection manquante</translation>
    </message>
    <message>
        <source>Please select an expression to edit.</source>
        <translation>Veuillez sélectionner une expression à modifier.</translation>
    </message>
    <message>
        <source>Please select an expression to delete.</source>
        <translation>Veuillez sélectionner une expression à supprimer.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be deleted: it stands among the fields of the table.</source>
        <translation>Impossible de supprimer «&#xa0;%1&#xa0;»&#xa0;: il est placé parmi les champs du tableau.</translation>
    </message>
    <message>
        <source>The formulas of these fields refer to &quot;%1&quot; and will have no value without it:
%2
Delete &quot;%1&quot;?</source>
        <translation>Les formules de ces champs font référence à «&#xa0;%1&#xa0;» et n&apos;auront plus de valeur sans ce champ&#xa0;:
%2
Supprimer «&#xa0;%1&#xa0;»&#xa0;?</translation>
    </message>
    <message>
        <source>Data Editor: Delete Expression</source>
        <translation>Éditeur de données&#xa0;: supprimer une expression</translation>
    </message>
</context>
<context>
    <name>vrel::FieldButton</name>
    <message>
        <source>Ctrl with an arrow key moves the field.</source>
        <translation>Ctrl avec une touche fléchée déplace le champ.</translation>
    </message>
</context>
<context>
    <name>vrel::FieldDialogImpl</name>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Classification</source>
        <translation>Classification</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>Data Editor: classification error</source>
        <translation>Éditeur de données&#xa0;: erreur de classification</translation>
    </message>
    <message>
        <source>There must always be at least one %1 field.</source>
        <translation>Au moins un champ doit toujours être classé comme «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>Some values cannot be kept in the new type of their field:</source>
        <translation>Certaines valeurs ne peuvent pas être conservées dans le nouveau type de leur champ&#xa0;:</translation>
    </message>
    <message>
        <source>%1 as %2: %3 of %4 values, the first is &quot;%5&quot;</source>
        <translation>%1 en %2&#xa0;: %3 valeurs sur %4, la première est «&#xa0;%5&#xa0;»</translation>
    </message>
    <message>
        <source>and more in %1 other fields</source>
        <translation>et d&apos;autres dans d&apos;autres champs (%1)</translation>
    </message>
    <message>
        <source>They will be other values, and nothing brings them back. Change the types all the same?</source>
        <translation>Ces valeurs seront modifiées de façon irréversible. Voulez-vous quand même changer les types&#xa0;?</translation>
    </message>
</context>
<context>
    <name>vrel::FindBar</name>
    <message>
        <source>Ne&amp;xt</source>
        <translation>&amp;Suivant</translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>&amp;Précédent</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Recherche annulée</translation>
    </message>
    <message>
        <source>Continued from the top</source>
        <translation>Reprise depuis le début</translation>
    </message>
    <message>
        <source>Continued from the bottom</source>
        <translation>Reprise depuis la fin</translation>
    </message>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Rechercher&#xa0;:</translation>
    </message>
    <message>
        <source>Close the find bar</source>
        <translation>Fermer la barre de recherche</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>Fermer la barre de recherche (Échap)</translation>
    </message>
</context>
<context>
    <name>vrel::FormulaEdit</name>
    <message>
        <source>The formula is not complete.</source>
        <translation>La formule est incomplète.</translation>
    </message>
    <message>
        <source>Syntax error.</source>
        <translation>Erreur de syntaxe.</translation>
    </message>
    <message>
        <source>There is no function &quot;%1&quot;.</source>
        <translation>La fonction «&#xa0;%1&#xa0;» n&apos;existe pas.</translation>
    </message>
    <message>
        <source>Wrong number of arguments: %1</source>
        <translation>Nombre d&apos;arguments incorrect&#xa0;: %1</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;.</source>
        <translation>Le champ «&#xa0;%1&#xa0;» n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The field &quot;%1&quot; holds no numbers.</source>
        <translation>Le champ «&#xa0;%1&#xa0;» ne contient pas de nombres.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a function; write &quot;%1()&quot;.</source>
        <translation>«&#xa0;%1&#xa0;» est une fonction&#xa0;; écrivez «&#xa0;%1()&#xa0;».</translation>
    </message>
</context>
<context>
    <name>vrel::FormulaListDialog</name>
    <message>
        <source>There is not enough memory for this change.</source>
        <translation>Mémoire insuffisante pour cette modification.</translation>
    </message>
    <message>
        <source>The formula that is being edited is not applied yet. Discard it?</source>
        <translation>La formule en cours de modification n&apos;a pas encore été appliquée. Voulez-vous l&apos;abandonner&#xa0;?</translation>
    </message>
    <message>
        <source>Field Name</source>
        <translation>Nom du champ</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formule</translation>
    </message>
</context>
<context>
    <name>vrel::FrozenColumnTablesImpl</name>
    <message>
        <source>Row labels</source>
        <translation>Étiquettes de lignes</translation>
    </message>
    <message>
        <source>Report data</source>
        <translation>Données du rapport</translation>
    </message>
</context>
<context>
    <name>vrel::FunctionsDialog</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Syntaxe</translation>
    </message>
</context>
<context>
    <name>vrel::HighlightEdtrView</name>
    <message>
        <source>No other field has a highlight formula.</source>
        <translation>Aucun autre champ n&apos;a de formule de mise en évidence.</translation>
    </message>
    <message>
        <source>Takes over the highlight formula of another field.</source>
        <translation>Reprend la formule de mise en évidence d&apos;un autre champ.</translation>
    </message>
    <message>
        <source>Cannot apply the highlight formula</source>
        <translation>Impossible d&apos;appliquer la formule de mise en évidence</translation>
    </message>
</context>
<context>
    <name>vrel::HighlightingDialogImpl</name>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Modifier...</translation>
    </message>
    <message>
        <source>Data Editor: missing highlight</source>
        <translation>Éditeur de données&#xa0;: mise en évidence manquante</translation>
    </message>
    <message>
        <source>Please select an highlight expression to edit</source>
        <translation>Veuillez sélectionner une expression de mise en évidence à modifier</translation>
    </message>
</context>
<context>
    <name>vrel::PrintOptionsDialogImpl</name>
    <message>
        <source>No Printers Available</source>
        <translation>Aucune imprimante disponible</translation>
    </message>
</context>
<context>
    <name>vrel::SelectionStatus</name>
    <message>
        <source>What the selected cells come to</source>
        <translation>Synthèse des cellules sélectionnées</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>Comptage en cours…</translation>
    </message>
    <message>
        <source>Count: %1</source>
        <translation>Nombre&#xa0;: %1</translation>
    </message>
    <message>
        <source>Sum: %1</source>
        <translation>Somme&#xa0;: %1</translation>
    </message>
    <message>
        <source>Average: %1</source>
        <translation>Moyenne&#xa0;: %1</translation>
    </message>
    <message>
        <source>Minimum: %1</source>
        <translation>Minimum&#xa0;: %1</translation>
    </message>
    <message>
        <source>Maximum: %1</source>
        <translation>Maximum&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>vrel::VrelMainWindow</name>
    <message>
        <source>Output of: %1</source>
        <translation>Sortie de&#xa0;: %1</translation>
    </message>
    <message>
        <source>Data Editor</source>
        <translation>Éditeur de données</translation>
    </message>
    <message>
        <source>Data Editor: Working...</source>
        <translation>Éditeur de données&#xa0;: traitement en cours...</translation>
    </message>
</context>
<context>
    <name>vrel::ZTabs</name>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
</TS>
