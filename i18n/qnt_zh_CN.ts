<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>FileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PrintOptionsDialog</name>
    <message>
        <source>Print Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Footer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat &amp;Row Headings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repeat &amp;Column Headings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print All &amp;Z Dimensions on Separate Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer T&amp;ype:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print Co&amp;mmand:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runs in place of the printer; %s stands for the print file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print to fi&amp;le</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit &amp;Width to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages across</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page(s)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit &amp;Height to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit on &amp;One Page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Use Font Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Font size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Points</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Portra&amp;it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Land&amp;scape</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;Grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ASCII</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page &amp;Width (chars)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page Width (chars)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page &amp;Height (chars)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page Height (chars)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HTML</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;omplete Document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Border&amp;s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply an&amp;d Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PostScript</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VrelMainWindow</name>
    <message>
        <source>&amp;Print...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export &amp;As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open View...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;View As...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import Expressions...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import &amp;Highlighting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete View...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;All Inverse Formulas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fill Cells...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Recalculate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Swap Data Row/Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Display...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lay&amp;out...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Breaks...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Expressions...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Highlighting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;List Functions...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fields...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Configure</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vrel</name>
    <message>
        <source>The location of the model cannot be saved because the file &quot;%1&quot; is read-only.  Please make sure it has Write attributes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applying inverse formulas...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pasting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recalculating formulas...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computing colours...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Region for pasting does match copied data region.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column range is outside of table size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row range is outside of table size.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected cell in paste area is read only and has not been changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At least one cell in paste area is read only and has not been changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One or more cells in paste area are read only and have not been changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>QNT Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Errors in period file &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default View Title</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exporting...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Could not open file &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>XML (*.xml)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HTML (*.htm; *.html)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>CSV (Comma delimited) (*.csv)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to print to &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closing file &quot;%1&quot; fails.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Invalid output file path &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Cannot find input file &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error: Data does not match fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to save changes to &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PostScript (*.ps)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>HTML (*.html)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matching views (%1);;All views (*.view)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File name &quot;%1&quot; contains a character that is not allowed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot; for loading expressions.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; does not match data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save View As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete view &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cannot delete &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot; for saving.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Warning: Some data with non-unique keys was removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not enough keys to properly display data
extracted by report
&quot;%s&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Page %1.%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error attempting to print. Print cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data Editor: Delete View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please specify file name for saving.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vrel::ColumnPopupMenu</name>
    <message>
        <source>Show Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide Data</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vrel::CopyPasteLineEdit</name>
    <message>
        <source>Cell value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vrel::DataTable</name>
    <message>
        <source>(Copy)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Paste)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vrel::EditDesk</name>
    <message>
        <source>Cannot compute value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vrel::ExpressionErrorDialog</name>
    <message>
        <source>Expression Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Syntax error in expression:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Evaluation error in expression:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vrel::FindBar</name>
    <message>
        <source>Ne&amp;xt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continued from the top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continued from the bottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fi&amp;nd:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the find bar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vrel::FrozenColumnTablesImpl</name>
    <message>
        <source>Row labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report data</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vrel::PrintOptionsDialogImpl</name>
    <message>
        <source>No Printers Available</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vrel::SelectionStatus</name>
    <message>
        <source>What the selected cells come to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sum: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Average: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vrel::VrelMainWindow</name>
    <message>
        <source>Output of: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Data Editor: Working...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vrel::ZTabs</name>
    <message>
        <source>Previous page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
