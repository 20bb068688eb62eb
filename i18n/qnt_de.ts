<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BreaksDialog</name>
    <message>
        <source>Breaks</source>
        <translation>Gruppenwechsel</translation>
    </message>
    <message>
        <source>A break adds a summary to the report where the value of its field changes.</source>
        <translation>Ein Gruppenwechsel fügt dem Bericht dort eine Zusammenfassung hinzu, wo sich der Wert seines Feldes ändert.</translation>
    </message>
    <message>
        <source>Key Fields:</source>
        <translation>Schlüsselfelder:</translation>
    </message>
    <message>
        <source>Enter or a double click defines a break, Space activates or suspends it</source>
        <translation>Eingabetaste oder Doppelklick definiert einen Gruppenwechsel, Leertaste aktiviert oder deaktiviert ihn</translation>
    </message>
    <message>
        <source>&amp;Define...</source>
        <translation>&amp;Definieren...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>ConfigureBreakDialog</name>
    <message>
        <source>Define Break</source>
        <translation>Gruppenwechsel definieren</translation>
    </message>
    <message>
        <source>Field:</source>
        <translation>Feld:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Acti&amp;ve</source>
        <translation>Akti&amp;v</translation>
    </message>
    <message>
        <source>Put A &amp;Blank Row After Break</source>
        <translation>Leer&amp;zeile nach Gruppenwechsel einfügen</translation>
    </message>
    <message>
        <source>Break &amp;Frequency:</source>
        <translation>&amp;Häufigkeit:</translation>
    </message>
    <message>
        <source>F&amp;irst Break:</source>
        <translation>&amp;Erster Gruppenwechsel:</translation>
    </message>
    <message>
        <source>At Break, Compute</source>
        <translation>Beim Gruppenwechsel berechnen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>This break shows nothing: its field is neither in the rows nor in the columns of the report.</source>
        <translation>Dieser Gruppenwechsel zeigt nichts an: Sein Feld steht weder in den Zeilen noch in den Spalten des Berichts.</translation>
    </message>
    <message>
        <source>This break shows nothing: it is not active.</source>
        <translation>Dieser Gruppenwechsel zeigt nichts an: Er ist nicht aktiv.</translation>
    </message>
    <message>
        <source>This break shows nothing: choose how often it comes.</source>
        <translation>Dieser Gruppenwechsel zeigt nichts an: Wählen Sie seine Häufigkeit.</translation>
    </message>
    <message>
        <source>This break shows nothing: choose what to compute for at least one data field.</source>
        <translation>Dieser Gruppenwechsel zeigt nichts an: Wählen Sie für mindestens ein Datenfeld eine Berechnung.</translation>
    </message>
</context>
<context>
    <name>ConfigureDisplayDialog</name>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Data Fields</source>
        <translation>Datenfelder</translation>
    </message>
    <message>
        <source>A&amp;vailable fields</source>
        <translation>&amp;Verfügbare Felder</translation>
    </message>
    <message>
        <source>Show (Ordered)</source>
        <translation>Angezeigt (geordnet)</translation>
    </message>
    <message>
        <source>Available fields</source>
        <translation>Verfügbare Felder</translation>
    </message>
    <message>
        <source>&amp;Show &gt;</source>
        <translation>&amp;Einblenden &gt;</translation>
    </message>
    <message>
        <source>Show the selected fields as data</source>
        <translation>Die ausgewählten Felder als Daten anzeigen</translation>
    </message>
    <message>
        <source>&lt; &amp;Hide</source>
        <translation>&lt; &amp;Ausblenden</translation>
    </message>
    <message>
        <source>Take the selected fields out of the report</source>
        <translation>Die ausgewählten Felder aus dem Bericht entfernen</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move the selected fields up</source>
        <translation>Die ausgewählten Felder nach oben verschieben</translation>
    </message>
    <message>
        <source>Dow&amp;n</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Move the selected fields down</source>
        <translation>Die ausgewählten Felder nach unten verschieben</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>&amp;Titel:</translation>
    </message>
    <message>
        <source>Show S&amp;ystem Title</source>
        <translation>S&amp;ystemtitel anzeigen</translation>
    </message>
    <message>
        <source>Show Du&amp;plicate Labels</source>
        <translation>&amp;Doppelte Beschriftungen anzeigen</translation>
    </message>
    <message>
        <source>Show &amp;Empty Rows and Columns</source>
        <translation>&amp;Leere Zeilen und Spalten anzeigen</translation>
    </message>
    <message>
        <source>&amp;Date Format:</source>
        <translation>Datums&amp;format:</translation>
    </message>
    <message>
        <source>%d day, %m month, %b month name, %Y year, %y year in two digits, %H hour, %M minute, %S second</source>
        <translation>%d Tag, %m Monat, %b Monatsname, %Y Jahr, %y Jahr zweistellig, %H Stunde, %M Minute, %S Sekunde</translation>
    </message>
    <message>
        <source>P&amp;recision:</source>
        <translation>&amp;Genauigkeit:</translation>
    </message>
    <message>
        <source>Decimal Places</source>
        <translation>Dezimalstellen</translation>
    </message>
    <message>
        <source>Period &amp;File:</source>
        <translation>&amp;Periodendatei:</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>Durchsuche&amp;n...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Überneh&amp;men</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
</context>
<context>
    <name>ConfigureLayoutDialog</name>
    <message>
        <source>Reordering columns:</source>
        <translation>Spalten neu anordnen:</translation>
    </message>
    <message>
        <source>Drag buttons up and down within the area below to rearrange column order</source>
        <translation>Ziehen Sie Schaltflächen im Bereich unten nach oben oder unten, um die Spaltenreihenfolge zu ändern</translation>
    </message>
    <message>
        <source>Make a &amp;Column</source>
        <translation>Als &amp;Spalte anordnen</translation>
    </message>
    <message>
        <source>Creating tabs:</source>
        <translation>Registerkarten erstellen:</translation>
    </message>
    <message>
        <source>Drag and drop buttons into this area to create tabs in the report</source>
        <translation>Ziehen Sie Schaltflächen in diesen Bereich, um Registerkarten im Bericht zu erstellen</translation>
    </message>
    <message>
        <source>Make &amp;Tabs</source>
        <translation>Als &amp;Registerkarten anordnen</translation>
    </message>
    <message>
        <source>Spreading data horizontally:</source>
        <translation>Daten horizontal verteilen:</translation>
    </message>
    <message>
        <source>Drag and drop buttons into this area to spread data horizontally.</source>
        <translation>Ziehen Sie Schaltflächen in diesen Bereich, um Daten horizontal zu verteilen.</translation>
    </message>
    <message>
        <source>&amp;Spread Horizontally</source>
        <translation>&amp;Horizontal verteilen</translation>
    </message>
</context>
<context>
    <name>ExprEdtrViewBase</name>
    <message>
        <source>Expression Editor</source>
        <translation>Ausdruckseditor</translation>
    </message>
    <message>
        <source>Field &amp;Name:</source>
        <translation>Feld&amp;name:</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>&amp;Formel:</translation>
    </message>
    <message>
        <source>&amp;Inverse Formula (applied only when field is edited):</source>
        <translation>&amp;Umkehrformel (nur beim Bearbeiten des Feldes angewendet):</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Überneh&amp;men</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
</context>
<context>
    <name>ExpressionsDialog</name>
    <message>
        <source>Expressions</source>
        <translation>Ausdrücke</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>&amp;Aktionen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Überneh&amp;men</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
</context>
<context>
    <name>FieldDialog</name>
    <message>
        <source>Configure Fields</source>
        <translation>Felder konfigurieren</translation>
    </message>
    <message>
        <source>Field, Classifications and Data Type</source>
        <translation>Feld, Klassifizierung und Datentyp</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Überneh&amp;men</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Data, can be edited</source>
        <translation>Daten, bearbeitbar</translation>
    </message>
    <message>
        <source>Data, read only</source>
        <translation>Daten, schreibgeschützt</translation>
    </message>
    <message>
        <source>String</source>
        <translation>Zeichenfolge</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>Wahrheitswert</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>Ausdruck</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periode</translation>
    </message>
</context>
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
    <name>FillCellsDialog</name>
    <message>
        <source>Fill Cells</source>
        <translation>Zellen ausfüllen</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Wert:</translation>
    </message>
    <message>
        <source>A value as it is typed into a cell; for numbers also a formula</source>
        <translation>Ein Wert, wie er in eine Zelle eingegeben wird; für Zahlen auch eine Formel</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>Ausfüllen</translation>
    </message>
    <message>
        <source>&amp;Row</source>
        <translation>&amp;Zeile</translation>
    </message>
    <message>
        <source>Number of the row</source>
        <translation>Nummer der Zeile</translation>
    </message>
    <message>
        <source>C&amp;olumn</source>
        <translation>&amp;Spalte</translation>
    </message>
    <message>
        <source>Number of the column</source>
        <translation>Nummer der Spalte</translation>
    </message>
    <message>
        <source>&amp;Entire table</source>
        <translation>&amp;Ganze Tabelle</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Überneh&amp;men</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>FormulaCheck</name>
    <message>
        <source>A name with an apostrophe and blanks or operators in it cannot be used in formulas: view files keep no double quotes around it.</source>
        <translation>Ein Name mit einem Apostroph und Leerzeichen oder Operatoren kann in Formeln nicht verwendet werden: Ansichtsdateien behalten keine Anführungszeichen um ihn herum.</translation>
    </message>
</context>
<context>
    <name>FunctionsDialog</name>
    <message>
        <source>Expression Functions</source>
        <translation>Funktionen für Ausdrücke</translation>
    </message>
    <message>
        <source>F&amp;ilter:</source>
        <translation>F&amp;ilter:</translation>
    </message>
    <message>
        <source>&amp;Functions</source>
        <translation>&amp;Funktionen</translation>
    </message>
    <message>
        <source>(drag and drop into field or highlight expressions)</source>
        <translation>(in Feld- oder Hervorhebungsausdrücke ziehen)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>HighlightEdtrViewBase</name>
    <message>
        <source>Highlight Editor</source>
        <translation>Hervorhebungseditor</translation>
    </message>
    <message>
        <source>Field Name:</source>
        <translation>Feldname:</translation>
    </message>
    <message>
        <source>&amp;Highlight Formula:</source>
        <translation>&amp;Hervorhebungsformel:</translation>
    </message>
    <message>
        <source>&amp;Set from source</source>
        <translation>Aus &amp;Feld übernehmen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Überneh&amp;men</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
</context>
<context>
    <name>HighlightingDialog</name>
    <message>
        <source>Highlighting</source>
        <translation>Hervorhebung</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>&amp;Aktionen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>Überneh&amp;men</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
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
    <message>
        <source>Invalid Row or Column to fill.</source>
        <translation>Ungültige Zeile oder Spalte zum Ausfüllen.</translation>
    </message>
    <message>
        <source>Invalid Row or Column.</source>
        <translation>Ungültige Zeile oder Spalte.</translation>
    </message>
    <message>
        <source>Cannot perform change - field is read-only.</source>
        <translation>Änderung nicht möglich - das Feld ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Filling cells...</source>
        <translation>Zellen werden ausgefüllt...</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>Every Change</source>
        <translation>Bei jedem Wechsel</translation>
    </message>
    <message>
        <source>Every 2nd Change</source>
        <translation>Bei jedem 2. Wechsel</translation>
    </message>
    <message>
        <source>Every 3rd Change</source>
        <translation>Bei jedem 3. Wechsel</translation>
    </message>
    <message>
        <source>Every 4th Change</source>
        <translation>Bei jedem 4. Wechsel</translation>
    </message>
    <message>
        <source>Every 5th Change</source>
        <translation>Bei jedem 5. Wechsel</translation>
    </message>
    <message>
        <source>Every 6th Change</source>
        <translation>Bei jedem 6. Wechsel</translation>
    </message>
    <message>
        <source>Every 7th Change</source>
        <translation>Bei jedem 7. Wechsel</translation>
    </message>
    <message>
        <source>Every 8th Change</source>
        <translation>Bei jedem 8. Wechsel</translation>
    </message>
    <message>
        <source>Every 9th Change</source>
        <translation>Bei jedem 9. Wechsel</translation>
    </message>
    <message>
        <source>Every 10th Change</source>
        <translation>Bei jedem 10. Wechsel</translation>
    </message>
    <message>
        <source>Every 12th Change</source>
        <translation>Bei jedem 12. Wechsel</translation>
    </message>
    <message>
        <source>Every 24th Change</source>
        <translation>Bei jedem 24. Wechsel</translation>
    </message>
    <message>
        <source>Every 28th Change</source>
        <translation>Bei jedem 28. Wechsel</translation>
    </message>
    <message>
        <source>At End</source>
        <translation>Am Ende</translation>
    </message>
    <message>
        <source>Same as Frequency</source>
        <translation>Wie Häufigkeit</translation>
    </message>
    <message>
        <source>At 1st Change</source>
        <translation>Beim 1. Wechsel</translation>
    </message>
    <message>
        <source>At 2nd Change</source>
        <translation>Beim 2. Wechsel</translation>
    </message>
    <message>
        <source>At 3rd Change</source>
        <translation>Beim 3. Wechsel</translation>
    </message>
    <message>
        <source>At 4th Change</source>
        <translation>Beim 4. Wechsel</translation>
    </message>
    <message>
        <source>At 5th Change</source>
        <translation>Beim 5. Wechsel</translation>
    </message>
    <message>
        <source>At 6th Change</source>
        <translation>Beim 6. Wechsel</translation>
    </message>
    <message>
        <source>At 7th Change</source>
        <translation>Beim 7. Wechsel</translation>
    </message>
    <message>
        <source>At 8th Change</source>
        <translation>Beim 8. Wechsel</translation>
    </message>
    <message>
        <source>At 9th Change</source>
        <translation>Beim 9. Wechsel</translation>
    </message>
    <message>
        <source>At 10th Change</source>
        <translation>Beim 10. Wechsel</translation>
    </message>
    <message>
        <source>At 11th Change</source>
        <translation>Beim 11. Wechsel</translation>
    </message>
    <message>
        <source>Every %1 Changes</source>
        <translation>Bei jedem %1. Wechsel</translation>
    </message>
    <message>
        <source>At Change %1</source>
        <translation>Beim %1. Wechsel</translation>
    </message>
    <message>
        <source>At End (%1)</source>
        <translation>Am Ende (%1)</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Nil</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>Summe</translation>
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
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>Avg</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>First</source>
        <translation>Erster</translation>
    </message>
    <message>
        <source>1st</source>
        <translation>Erster</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Letzter</translation>
    </message>
    <message>
        <source>Copying...</source>
        <translation>Wird kopiert...</translation>
    </message>
    <message>
        <source>The selection is too large to be copied.</source>
        <translation>Die Auswahl ist zu groß, um kopiert zu werden.</translation>
    </message>
    <message>
        <source>The change could not be sent to the host application: its message file cannot be written.</source>
        <translation>Die Änderung konnte nicht an die Hostanwendung gesendet werden: Deren Nachrichtendatei kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The values of &quot;%1&quot; cannot be changed.</source>
        <translation>Die Werte von &quot;%1&quot; können nicht geändert werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date.</source>
        <translation>&quot;%1&quot; ist kein Datum.</translation>
    </message>
    <message>
        <source>Some of the pasted texts are no values and have not been set; the first is &quot;%1&quot;.</source>
        <translation>Einige der eingefügten Texte sind keine gültigen Werte und wurden nicht übernommen; der erste ist &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Import Expressions</source>
        <translation>Ausdrücke importieren</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; has no expressions.</source>
        <translation>Die Ansichtsdatei &quot;%1&quot; enthält keine Ausdrücke.</translation>
    </message>
    <message>
        <source>There is not enough memory for the imported expressions.</source>
        <translation>Für die importierten Ausdrücke ist nicht genügend Speicher vorhanden.</translation>
    </message>
    <message>
        <source>Import Highlighting</source>
        <translation>Hervorhebung importieren</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; has none of the fields of this report.</source>
        <translation>Die Ansichtsdatei &quot;%1&quot; enthält keines der Felder dieses Berichts.</translation>
    </message>
</context>
<context>
    <name>vrel::BreaksDialogImpl</name>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Häufigkeit</translation>
    </message>
    <message>
        <source>First Break</source>
        <translation>Erster Gruppenwechsel</translation>
    </message>
    <message>
        <source>Computes</source>
        <translation>Berechnung</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>&amp;Aktionen</translation>
    </message>
    <message>
        <source>Suspend All Breaks</source>
        <translation>Alle Gruppenwechsel deaktivieren</translation>
    </message>
    <message>
        <source>Activate All Breaks</source>
        <translation>Alle Gruppenwechsel aktivieren</translation>
    </message>
    <message>
        <source>active</source>
        <translation>aktiv</translation>
    </message>
    <message>
        <source>suspended</source>
        <translation>deaktiviert</translation>
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
    <name>vrel::ConfigureBreakDialog</name>
    <message>
        <source>Data Field</source>
        <translation>Datenfeld</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>Berechnung</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureDesk</name>
    <message>
        <source>Period File</source>
        <translation>Periodendatei</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureDisplayDialogImpl</name>
    <message>
        <source>&lt;default&gt;</source>
        <translation>&lt;Standard&gt;</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>Beispiel: %1</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureLayoutDialog</name>
    <message>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <source>Use the buttons below to reorder the tabular data in the report. You will see the effects of reordering in the report in the main window</source>
        <translation>Mit den Schaltflächen unten ordnen Sie die Tabellendaten des Berichts neu an. Die Auswirkungen sehen Sie im Bericht im Hauptfenster</translation>
    </message>
    <message>
        <source>By keyboard: Ctrl+Up and Ctrl+Down move a field within its area, Ctrl+Left and Ctrl+Right move it to the area beside it.</source>
        <translation>Per Tastatur: Strg+Nach oben und Strg+Nach unten verschieben ein Feld in seinem Bereich, Strg+Nach links und Strg+Nach rechts in den Bereich daneben.</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben verschieben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten verschieben</translation>
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
    <message>
        <source>Cells that cannot be empty and stay as they were: %1 of %2.</source>
        <translation>Zellen, die nicht leer sein dürfen und unverändert bleiben: %1 von %2.</translation>
    </message>
    <message>
        <source>Cells that do not take &quot;%1&quot; and stay as they were: %2 of %3.</source>
        <translation>Zellen, die &quot;%1&quot; nicht annehmen und unverändert bleiben: %2 von %3.</translation>
    </message>
</context>
<context>
    <name>vrel::ExprEdtrView</name>
    <message>
        <source>Cannot apply the inverse formula</source>
        <translation>Die Umkehrformel kann nicht übernommen werden</translation>
    </message>
    <message>
        <source>Please enter a formula.</source>
        <translation>Bitte geben Sie eine Formel ein.</translation>
    </message>
    <message>
        <source>Cannot apply the formula</source>
        <translation>Die Formel kann nicht übernommen werden</translation>
    </message>
    <message>
        <source>Please enter a field name.</source>
        <translation>Bitte geben Sie einen Feldnamen ein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a field: formulas could not refer to it. A name must not hold colons or quotes, begin with &quot;#&quot; or be longer than 127 bytes.</source>
        <translation>&quot;%1&quot; ist als Feldname nicht zulässig: Formeln könnten nicht darauf verweisen. Ein Name darf keine Doppelpunkte oder Anführungszeichen enthalten, nicht mit &quot;#&quot; beginnen und nicht länger als 127 Byte sein.</translation>
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
    <name>vrel::ExpressionsDialogImpl</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Bearbeiten...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Data Editor: missing selection</source>
        <translation>Dateneditor: Auswahl fehlt</translation>
    </message>
    <message>
        <source>Please select an expression to edit.</source>
        <translation>Bitte wählen Sie den Ausdruck aus, den Sie bearbeiten möchten.</translation>
    </message>
    <message>
        <source>Please select an expression to delete.</source>
        <translation>Bitte wählen Sie den Ausdruck aus, den Sie löschen möchten.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be deleted: it stands among the fields of the table.</source>
        <translation>&quot;%1&quot; kann nicht gelöscht werden, da es zwischen den Feldern der Tabelle steht.</translation>
    </message>
    <message>
        <source>The formulas of these fields refer to &quot;%1&quot; and will have no value without it:
%2
Delete &quot;%1&quot;?</source>
        <translation>Die Formeln folgender Felder verweisen auf &quot;%1&quot; und haben ohne dieses Feld keinen Wert:
%2
&quot;%1&quot; löschen?</translation>
    </message>
    <message>
        <source>Data Editor: Delete Expression</source>
        <translation>Dateneditor: Ausdruck löschen</translation>
    </message>
</context>
<context>
    <name>vrel::FieldButton</name>
    <message>
        <source>Ctrl with an arrow key moves the field.</source>
        <translation>Strg mit einer Pfeiltaste verschiebt das Feld.</translation>
    </message>
</context>
<context>
    <name>vrel::FieldDialogImpl</name>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Classification</source>
        <translation>Klassifizierung</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Schlüssel</translation>
    </message>
    <message>
        <source>Data Editor: classification error</source>
        <translation>Dateneditor: Klassifizierungsfehler</translation>
    </message>
    <message>
        <source>There must always be at least one %1 field.</source>
        <translation>Mindestens ein Feld muss immer als &quot;%1&quot; klassifiziert sein.</translation>
    </message>
    <message>
        <source>Some values cannot be kept in the new type of their field:</source>
        <translation>Einige Werte können im neuen Typ ihres Feldes nicht beibehalten werden:</translation>
    </message>
    <message>
        <source>%1 as %2: %3 of %4 values, the first is &quot;%5&quot;</source>
        <translation>%1 als %2: %3 von %4 Werten, der erste ist &quot;%5&quot;</translation>
    </message>
    <message>
        <source>and more in %1 other fields</source>
        <translation>und weitere in anderen Feldern (%1)</translation>
    </message>
    <message>
        <source>They will be other values, and nothing brings them back. Change the types all the same?</source>
        <translation>Diese Werte werden unwiderruflich verändert. Möchten Sie die Typen trotzdem ändern?</translation>
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
    <name>vrel::FormulaEdit</name>
    <message>
        <source>The formula is not complete.</source>
        <translation>Die Formel ist unvollständig.</translation>
    </message>
    <message>
        <source>Syntax error.</source>
        <translation>Syntaxfehler.</translation>
    </message>
    <message>
        <source>There is no function &quot;%1&quot;.</source>
        <translation>Es gibt keine Funktion &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Wrong number of arguments: %1</source>
        <translation>Falsche Anzahl von Argumenten: %1</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;.</source>
        <translation>Es gibt kein Feld &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>The field &quot;%1&quot; holds no numbers.</source>
        <translation>Das Feld &quot;%1&quot; enthält keine Zahlen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a function; write &quot;%1()&quot;.</source>
        <translation>&quot;%1&quot; ist eine Funktion; schreiben Sie &quot;%1()&quot;.</translation>
    </message>
</context>
<context>
    <name>vrel::FormulaListDialog</name>
    <message>
        <source>There is not enough memory for this change.</source>
        <translation>Für diese Änderung ist nicht genügend Speicher vorhanden.</translation>
    </message>
    <message>
        <source>The formula that is being edited is not applied yet. Discard it?</source>
        <translation>Die bearbeitete Formel wurde noch nicht übernommen. Möchten Sie sie verwerfen?</translation>
    </message>
    <message>
        <source>Field Name</source>
        <translation>Feldname</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
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
    <name>vrel::FunctionsDialog</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Syntax</translation>
    </message>
</context>
<context>
    <name>vrel::HighlightEdtrView</name>
    <message>
        <source>No other field has a highlight formula.</source>
        <translation>Kein anderes Feld hat eine Hervorhebungsformel.</translation>
    </message>
    <message>
        <source>Takes over the highlight formula of another field.</source>
        <translation>Übernimmt die Hervorhebungsformel eines anderen Feldes.</translation>
    </message>
    <message>
        <source>Cannot apply the highlight formula</source>
        <translation>Die Hervorhebungsformel kann nicht übernommen werden</translation>
    </message>
</context>
<context>
    <name>vrel::HighlightingDialogImpl</name>
    <message>
        <source>&amp;Edit...</source>
        <translation>&amp;Bearbeiten...</translation>
    </message>
    <message>
        <source>Data Editor: missing highlight</source>
        <translation>Dateneditor: Hervorhebung fehlt</translation>
    </message>
    <message>
        <source>Please select an highlight expression to edit</source>
        <translation>Bitte wählen Sie den Hervorhebungsausdruck aus, den Sie bearbeiten möchten</translation>
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
