<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>FileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 ist bereits vorhanden.
Möchten Sie die Datei ersetzen?</translation>
    </message>
</context>
<context>
    <name>PrintOptionsDialog</name>
    <message>
        <source>Print Options</source>
        <translation>Druckoptionen</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>&amp;Footer:</source>
        <translation>&amp;Fußzeile:</translation>
    </message>
    <message>
        <source>Repeat &amp;Row Headings</source>
        <translation>&amp;Zeilenköpfe wiederholen</translation>
    </message>
    <message>
        <source>Repeat &amp;Column Headings</source>
        <translation>Spaltenköpfe &amp;wiederholen</translation>
    </message>
    <message>
        <source>Print All &amp;Z Dimensions on Separate Pages</source>
        <translation>&amp;Jede Z-Dimension auf eigener Seite drucken</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>Printer T&amp;ype:</source>
        <translation>Druckert&amp;yp:</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>Druc&amp;ker:</translation>
    </message>
    <message>
        <source>Print Co&amp;mmand:</source>
        <translation>Druckbefeh&amp;l:</translation>
    </message>
    <message>
        <source>Runs in place of the printer; %s stands for the print file</source>
        <translation>Wird anstelle des Druckers ausgeführt; %s steht für die Druckdatei</translation>
    </message>
    <message>
        <source>Print to fi&amp;le</source>
        <translation>&amp;In Datei drucken</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Dateiname:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Durchsuche&amp;n...</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Fit &amp;Width to</source>
        <translation>&amp;Breite anpassen auf</translation>
    </message>
    <message>
        <source>Pages across</source>
        <translation>Seiten in der Breite</translation>
    </message>
    <message>
        <source>Page(s)</source>
        <translation>Seite(n)</translation>
    </message>
    <message>
        <source>Fit &amp;Height to</source>
        <translation>&amp;Höhe anpassen auf</translation>
    </message>
    <message>
        <source>Pages down</source>
        <translation>Seiten in der Höhe</translation>
    </message>
    <message>
        <source>Fit on &amp;One Page</source>
        <translation>&amp;Auf eine Seite anpassen</translation>
    </message>
    <message>
        <source>&amp;Use Font Size</source>
        <translation>Schriftgröß&amp;e verwenden</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkt</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>Ausrichtung:</translation>
    </message>
    <message>
        <source>Portra&amp;it</source>
        <translation>H&amp;ochformat</translation>
    </message>
    <message>
        <source>Land&amp;scape</source>
        <translation>&amp;Querformat</translation>
    </message>
    <message>
        <source>Show &amp;Grid</source>
        <translation>&amp;Gitternetz anzeigen</translation>
    </message>
    <message>
        <source>ASCII</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>Page &amp;Width (chars)</source>
        <translation>&amp;Seitenbreite (Zeichen)</translation>
    </message>
    <message>
        <source>Page Width (chars)</source>
        <translation>Seitenbreite (Zeichen)</translation>
    </message>
    <message>
        <source>Page &amp;Height (chars)</source>
        <translation>Seitenhöhe (Zei&amp;chen)</translation>
    </message>
    <message>
        <source>Page Height (chars)</source>
        <translation>Seitenhöhe (Zeichen)</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>C&amp;omplete Document</source>
        <translation>&amp;Vollständiges Dokument</translation>
    </message>
    <message>
        <source>Border&amp;s</source>
        <translation>&amp;Rahmen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Überneh&amp;men</translation>
    </message>
    <message>
        <source>Apply an&amp;d Print</source>
        <translation>Übernehmen &amp;und drucken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>Export &amp;As...</source>
        <translation>Exportieren &amp;als...</translation>
    </message>
    <message>
        <source>&amp;Open View...</source>
        <translation>Ansicht ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Save View</source>
        <translation>Ansicht &amp;speichern</translation>
    </message>
    <message>
        <source>Save &amp;View As...</source>
        <translation>Ansicht speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;Import Expressions...</source>
        <translation>Ausdrücke &amp;importieren...</translation>
    </message>
    <message>
        <source>Import &amp;Highlighting...</source>
        <translation>&amp;Hervorhebung importieren...</translation>
    </message>
    <message>
        <source>&amp;Delete View...</source>
        <translation>Ansicht &amp;löschen...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;All Inverse Formulas</source>
        <translation>&amp;Alle Umkehrformeln</translation>
    </message>
    <message>
        <source>&amp;Fill Cells...</source>
        <translation>Zellen aus&amp;füllen...</translation>
    </message>
    <message>
        <source>&amp;Recalculate</source>
        <translation>&amp;Neu berechnen</translation>
    </message>
    <message>
        <source>&amp;Swap Data Row/Column</source>
        <translation>Datenzeilen/-spalten &amp;tauschen</translation>
    </message>
    <message>
        <source>&amp;Display...</source>
        <translation>&amp;Anzeige...</translation>
    </message>
    <message>
        <source>Lay&amp;out...</source>
        <translation>&amp;Layout...</translation>
    </message>
    <message>
        <source>&amp;Breaks...</source>
        <translation>&amp;Gruppenwechsel...</translation>
    </message>
    <message>
        <source>&amp;Expressions...</source>
        <translation>A&amp;usdrücke...</translation>
    </message>
    <message>
        <source>&amp;Highlighting...</source>
        <translation>&amp;Hervorhebung...</translation>
    </message>
    <message>
        <source>&amp;List Functions...</source>
        <translation>Fu&amp;nktionsliste...</translation>
    </message>
    <message>
        <source>&amp;Fields...</source>
        <translation>&amp;Felder...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Configure</source>
        <translation>&amp;Konfigurieren</translation>
    </message>
</context>
<context>
    <name>vrel</name>
    <message>
        <source>The location of the model cannot be saved because the file &quot;%1&quot; is read-only.  Please make sure it has Write attributes.</source>
        <translation>Der Speicherort des Modells kann nicht gespeichert werden, weil die Datei &quot;%1&quot; schreibgeschützt ist. Bitte stellen Sie sicher, dass sie beschreibbar ist.</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written.</source>
        <translation>Die Datei &quot;%1&quot; kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Applying inverse formulas...</source>
        <translation>Umkehrformeln werden angewendet...</translation>
    </message>
    <message>
        <source>Pasting...</source>
        <translation>Wird eingefügt...</translation>
    </message>
    <message>
        <source>Recalculating formulas...</source>
        <translation>Formeln werden neu berechnet...</translation>
    </message>
    <message>
        <source>Computing colours...</source>
        <translation>Farben werden berechnet...</translation>
    </message>
    <message>
        <source>Region for pasting does match copied data region.</source>
        <translation>Der Einfügebereich stimmt nicht mit dem kopierten Bereich überein.</translation>
    </message>
    <message>
        <source>Column range is outside of table size.</source>
        <translation>Der Spaltenbereich liegt außerhalb der Tabelle.</translation>
    </message>
    <message>
        <source>Row range is outside of table size.</source>
        <translation>Der Zeilenbereich liegt außerhalb der Tabelle.</translation>
    </message>
    <message>
        <source>Selected cell in paste area is read only and has not been changed.</source>
        <translation>Die ausgewählte Zelle im Einfügebereich ist schreibgeschützt und wurde nicht geändert.</translation>
    </message>
    <message>
        <source>At least one cell in paste area is read only and has not been changed.</source>
        <translation>Mindestens eine Zelle im Einfügebereich ist schreibgeschützt und wurde nicht geändert.</translation>
    </message>
    <message>
        <source>One or more cells in paste area are read only and have not been changed.</source>
        <translation>Eine oder mehrere Zellen im Einfügebereich sind schreibgeschützt und wurden nicht geändert.</translation>
    </message>
    <message>
        <source>QNT Error</source>
        <translation>QNT-Fehler</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot;.</source>
        <translation>Die Datei &quot;%1&quot; kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>Errors in period file &quot;%1&quot;.</source>
        <translation>Fehler in der Periodendatei: &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Default View Title</source>
        <translation>Standardtitel der Ansicht</translation>
    </message>
    <message>
        <source>Exporting...</source>
        <translation>Wird exportiert...</translation>
    </message>
    <message>
        <source>Error: Could not open file &quot;%1&quot;.</source>
        <translation>Fehler: Die Datei &quot;%1&quot; konnte nicht geöffnet werden.</translation>
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
        <translation>CSV (durch Kommas getrennt) (*.csv)</translation>
    </message>
    <message>
        <source>Printing...</source>
        <translation>Wird gedruckt...</translation>
    </message>
    <message>
        <source>Unable to print to &quot;%1&quot;.</source>
        <translation>Drucken in &quot;%1&quot; ist nicht möglich.</translation>
    </message>
    <message>
        <source>Closing file &quot;%1&quot; fails.</source>
        <translation>Die Datei &quot;%1&quot; kann nicht geschlossen werden.</translation>
    </message>
    <message>
        <source>Error: Invalid output file path &quot;%1&quot;.</source>
        <translation>Fehler: Ungültiger Pfad der Ausgabedatei &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Error: Cannot find input file &quot;%1&quot;.</source>
        <translation>Fehler: Die Eingabedatei &quot;%1&quot; wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Error: Data does not match fields</source>
        <translation>Fehler: Die Daten passen nicht zu den Feldern</translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;</source>
        <translation>&quot;%1&quot; kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Open View</source>
        <translation>Ansicht öffnen</translation>
    </message>
    <message>
        <source>Do you want to save changes to &quot;%1&quot;?</source>
        <translation>Möchten Sie die Änderungen an &quot;%1&quot; speichern?</translation>
    </message>
    <message>
        <source>PostScript (*.ps)</source>
        <translation>PostScript (*.ps)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Text (*.txt)</translation>
    </message>
    <message>
        <source>HTML (*.html)</source>
        <translation>HTML (*.html)</translation>
    </message>
    <message>
        <source>Matching views (%1);;All views (*.view)</source>
        <translation>Passende Ansichten (%1);;Alle Ansichten (*.view)</translation>
    </message>
    <message>
        <source>File name &quot;%1&quot; contains a character that is not allowed.</source>
        <translation>Der Dateiname &quot;%1&quot; enthält ein unzulässiges Zeichen.</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot; for loading expressions.</source>
        <translation>Die Datei &quot;%1&quot; kann nicht zum Laden von Ausdrücken geöffnet werden.</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; does not match data</source>
        <translation>Die Ansichtsdatei &quot;%1&quot; passt nicht zu den Daten</translation>
    </message>
    <message>
        <source>Save View As</source>
        <translation>Ansicht speichern unter</translation>
    </message>
    <message>
        <source>Delete View</source>
        <translation>Ansicht löschen</translation>
    </message>
    <message>
        <source>Delete view &quot;%1&quot;?</source>
        <translation>Ansicht &quot;%1&quot; löschen?</translation>
    </message>
    <message>
        <source>Cannot delete &quot;%1&quot;.</source>
        <translation>&quot;%1&quot; kann nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot; for saving.</source>
        <translation>Die Datei &quot;%1&quot; kann nicht zum Speichern geöffnet werden.</translation>
    </message>
    <message>
        <source>Data Editor</source>
        <translation>Dateneditor</translation>
    </message>
    <message>
        <source>Warning: Some data with non-unique keys was removed.</source>
        <translation>Warnung: Einige Daten mit nicht eindeutigen Schlüsseln wurden entfernt.</translation>
    </message>
    <message>
        <source>Not enough keys to properly display data
extracted by report
&quot;%s&quot;.</source>
        <translation>Zu wenige Schlüssel, um die Daten richtig anzuzeigen,
die der folgende Bericht ausgewählt hat:
&quot;%s&quot;.</translation>
    </message>
    <message>
        <source>Page %1.%2</source>
        <translation>Seite %1.%2</translation>
    </message>
    <message>
        <source>Error attempting to print. Print cancelled.</source>
        <translation>Fehler beim Drucken. Der Druck wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Export As</source>
        <translation>Exportieren als</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>In Datei drucken</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>Wird gesucht...</translation>
    </message>
    <message>
        <source>Data Editor: Delete View</source>
        <translation>Dateneditor: Ansicht löschen</translation>
    </message>
    <message>
        <source>Please specify file name for saving.</source>
        <translation>Bitte geben Sie einen Dateinamen zum Speichern an.</translation>
    </message>
</context>
<context>
    <name>vrel::ColumnPopupMenu</name>
    <message>
        <source>Show Data</source>
        <translation>Daten einblenden</translation>
    </message>
    <message>
        <source>Hide Data</source>
        <translation>Daten ausblenden</translation>
    </message>
</context>
<context>
    <name>vrel::CopyPasteLineEdit</name>
    <message>
        <source>Cell value</source>
        <translation>Zellwert</translation>
    </message>
</context>
<context>
    <name>vrel::DataTable</name>
    <message>
        <source>(Copy)</source>
        <translation>(Kopieren)</translation>
    </message>
    <message>
        <source>(Paste)</source>
        <translation>(Einfügen)</translation>
    </message>
</context>
<context>
    <name>vrel::EditDesk</name>
    <message>
        <source>Cannot compute value</source>
        <translation>Wert kann nicht berechnet werden</translation>
    </message>
</context>
<context>
    <name>vrel::ExpressionErrorDialog</name>
    <message>
        <source>Expression Error</source>
        <translation>Fehler im Ausdruck</translation>
    </message>
    <message>
        <source>Syntax error in expression:</source>
        <translation>Syntaxfehler im Ausdruck:</translation>
    </message>
    <message>
        <source>Evaluation error in expression:</source>
        <translation>Auswertungsfehler im Ausdruck:</translation>
    </message>
</context>
<context>
    <name>vrel::FindBar</name>
    <message>
        <source>Ne&amp;xt</source>
        <translation>&amp;Nächste</translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>&amp;Vorherige</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Continued from the top</source>
        <translation>Am Anfang fortgesetzt</translation>
    </message>
    <message>
        <source>Continued from the bottom</source>
        <translation>Am Ende fortgesetzt</translation>
    </message>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>&amp;Suchen:</translation>
    </message>
    <message>
        <source>Close the find bar</source>
        <translation>Suchleiste schließen</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>Suchleiste schließen (Esc)</translation>
    </message>
</context>
<context>
    <name>vrel::FrozenColumnTablesImpl</name>
    <message>
        <source>Row labels</source>
        <translation>Zeilenbeschriftungen</translation>
    </message>
    <message>
        <source>Report data</source>
        <translation>Berichtsdaten</translation>
    </message>
</context>
<context>
    <name>vrel::PrintOptionsDialogImpl</name>
    <message>
        <source>No Printers Available</source>
        <translation>Keine Drucker verfügbar</translation>
    </message>
</context>
<context>
    <name>vrel::SelectionStatus</name>
    <message>
        <source>What the selected cells come to</source>
        <translation>Auswertung der ausgewählten Zellen</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>Wird gezählt…</translation>
    </message>
    <message>
        <source>Count: %1</source>
        <translation>Anzahl: %1</translation>
    </message>
    <message>
        <source>Sum: %1</source>
        <translation>Summe: %1</translation>
    </message>
    <message>
        <source>Average: %1</source>
        <translation>Mittelwert: %1</translation>
    </message>
    <message>
        <source>Minimum: %1</source>
        <translation>Minimum: %1</translation>
    </message>
    <message>
        <source>Maximum: %1</source>
        <translation>Maximum: %1</translation>
    </message>
</context>
<context>
    <name>vrel::VrelMainWindow</name>
    <message>
        <source>Output of: %1</source>
        <translation>Ausgabe von: %1</translation>
    </message>
    <message>
        <source>Data Editor</source>
        <translation>Dateneditor</translation>
    </message>
    <message>
        <source>Data Editor: Working...</source>
        <translation>Dateneditor: Bitte warten...</translation>
    </message>
</context>
<context>
    <name>vrel::ZTabs</name>
    <message>
        <source>Previous page</source>
        <translation>Vorherige Seite</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
</TS>
