<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
