<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>BreaksDialog</name>
    <message>
        <source>Breaks</source>
        <translation>小計</translation>
    </message>
    <message>
        <source>A break adds a summary to the report where the value of its field changes.</source>
        <translation>小計會在其欄位值變更處將彙總加入報表。</translation>
    </message>
    <message>
        <source>Key Fields:</source>
        <translation>索引鍵欄位：</translation>
    </message>
    <message>
        <source>Enter or a double click defines a break, Space activates or suspends it</source>
        <translation>按 Enter 鍵或按兩下可定義小計，按空白鍵可啟用或暫停</translation>
    </message>
    <message>
        <source>&amp;Define...</source>
        <translation>定義(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>關閉(&amp;C)</translation>
    </message>
</context>
<context>
    <name>ConfigureBreakDialog</name>
    <message>
        <source>Define Break</source>
        <translation>定義小計</translation>
    </message>
    <message>
        <source>Field:</source>
        <translation>欄位：</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名稱(&amp;N)：</translation>
    </message>
    <message>
        <source>Acti&amp;ve</source>
        <translation>啟用(&amp;V)</translation>
    </message>
    <message>
        <source>Put A &amp;Blank Row After Break</source>
        <translation>在小計後插入空白列(&amp;B)</translation>
    </message>
    <message>
        <source>Break &amp;Frequency:</source>
        <translation>小計頻率(&amp;F)：</translation>
    </message>
    <message>
        <source>F&amp;irst Break:</source>
        <translation>首次小計(&amp;I)：</translation>
    </message>
    <message>
        <source>At Break, Compute</source>
        <translation>小計時計算</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>關閉(&amp;C)</translation>
    </message>
    <message>
        <source>This break shows nothing: its field is neither in the rows nor in the columns of the report.</source>
        <translation>此小計不會顯示任何內容：其欄位既不在報表的列中，也不在報表的欄中。</translation>
    </message>
    <message>
        <source>This break shows nothing: it is not active.</source>
        <translation>此小計不會顯示任何內容：尚未啟用。</translation>
    </message>
    <message>
        <source>This break shows nothing: choose how often it comes.</source>
        <translation>此小計不會顯示任何內容：請選擇小計頻率。</translation>
    </message>
    <message>
        <source>This break shows nothing: choose what to compute for at least one data field.</source>
        <translation>此小計不會顯示任何內容：請至少為一個資料欄位選擇計算方式。</translation>
    </message>
</context>
<context>
    <name>ConfigureDisplayDialog</name>
    <message>
        <source>Display</source>
        <translation>顯示</translation>
    </message>
    <message>
        <source>Data Fields</source>
        <translation>資料欄位</translation>
    </message>
    <message>
        <source>A&amp;vailable fields</source>
        <translation>可用欄位(&amp;V)</translation>
    </message>
    <message>
        <source>Show (Ordered)</source>
        <translation>顯示(依順序)</translation>
    </message>
    <message>
        <source>Available fields</source>
        <translation>可用欄位</translation>
    </message>
    <message>
        <source>&amp;Show &gt;</source>
        <translation>顯示(&amp;S) &gt;</translation>
    </message>
    <message>
        <source>Show the selected fields as data</source>
        <translation>將選取的欄位顯示為資料</translation>
    </message>
    <message>
        <source>&lt; &amp;Hide</source>
        <translation>&lt; 隱藏(&amp;H)</translation>
    </message>
    <message>
        <source>Take the selected fields out of the report</source>
        <translation>從報表中移除選取的欄位</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move the selected fields up</source>
        <translation>將選取的欄位上移</translation>
    </message>
    <message>
        <source>Dow&amp;n</source>
        <translation>下移(&amp;N)</translation>
    </message>
    <message>
        <source>Move the selected fields down</source>
        <translation>將選取的欄位下移</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>報表</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>標題(&amp;T)：</translation>
    </message>
    <message>
        <source>Show S&amp;ystem Title</source>
        <translation>顯示系統標題(&amp;Y)</translation>
    </message>
    <message>
        <source>Show Du&amp;plicate Labels</source>
        <translation>顯示重複標籤(&amp;P)</translation>
    </message>
    <message>
        <source>Show &amp;Empty Rows and Columns</source>
        <translation>顯示空白列和空白欄(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Date Format:</source>
        <translation>日期格式(&amp;D)：</translation>
    </message>
    <message>
        <source>%d day, %m month, %b month name, %Y year, %y year in two digits, %H hour, %M minute, %S second</source>
        <translation>%d 日，%m 月，%b 月份名稱，%Y 年，%y 兩位數年份，%H 時，%M 分，%S 秒</translation>
    </message>
    <message>
        <source>P&amp;recision:</source>
        <translation>精確度(&amp;R)：</translation>
    </message>
    <message>
        <source>Decimal Places</source>
        <translation>位小數</translation>
    </message>
    <message>
        <source>Period &amp;File:</source>
        <translation>期間檔案(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>瀏覽(&amp;B)...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>套用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
</context>
<context>
    <name>ConfigureLayoutDialog</name>
    <message>
        <source>Reordering columns:</source>
        <translation>調整欄順序：</translation>
    </message>
    <message>
        <source>Drag buttons up and down within the area below to rearrange column order</source>
        <translation>在下方區域內上下拖曳按鈕，可調整欄的順序。</translation>
    </message>
    <message>
        <source>Make a &amp;Column</source>
        <translation>設為欄(&amp;C)</translation>
    </message>
    <message>
        <source>Creating tabs:</source>
        <translation>建立索引標籤：</translation>
    </message>
    <message>
        <source>Drag and drop buttons into this area to create tabs in the report</source>
        <translation>將按鈕拖放到此區域，可在報表中建立索引標籤。</translation>
    </message>
    <message>
        <source>Make &amp;Tabs</source>
        <translation>設為索引標籤(&amp;T)</translation>
    </message>
    <message>
        <source>Spreading data horizontally:</source>
        <translation>水平展開資料：</translation>
    </message>
    <message>
        <source>Drag and drop buttons into this area to spread data horizontally.</source>
        <translation>將按鈕拖放到此區域，可水平展開資料。</translation>
    </message>
    <message>
        <source>&amp;Spread Horizontally</source>
        <translation>水平展開(&amp;S)</translation>
    </message>
</context>
<context>
    <name>ExprEdtrViewBase</name>
    <message>
        <source>Expression Editor</source>
        <translation>運算式編輯器</translation>
    </message>
    <message>
        <source>Field &amp;Name:</source>
        <translation>欄位名稱(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>公式(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Inverse Formula (applied only when field is edited):</source>
        <translation>反向公式(僅在編輯欄位時套用)(&amp;I)：</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>套用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
</context>
<context>
    <name>ExpressionsDialog</name>
    <message>
        <source>Expressions</source>
        <translation>運算式</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>動作(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>套用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
</context>
<context>
    <name>FieldDialog</name>
    <message>
        <source>Configure Fields</source>
        <translation>設定欄位</translation>
    </message>
    <message>
        <source>Field, Classifications and Data Type</source>
        <translation>欄位、分類和資料類型</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>套用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>索引鍵</translation>
    </message>
    <message>
        <source>Data, can be edited</source>
        <translation>資料，可編輯</translation>
    </message>
    <message>
        <source>Data, read only</source>
        <translation>資料，唯讀</translation>
    </message>
    <message>
        <source>String</source>
        <translation>字串</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>數字</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>布林值</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>運算式</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>期間</translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 已存在。
是否要取代它？</translation>
    </message>
</context>
<context>
    <name>FillCellsDialog</name>
    <message>
        <source>Fill Cells</source>
        <translation>填滿儲存格</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>值(&amp;V)：</translation>
    </message>
    <message>
        <source>A value as it is typed into a cell; for numbers also a formula</source>
        <translation>依在儲存格中鍵入的形式輸入值；數字也可輸入公式</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>填滿範圍</translation>
    </message>
    <message>
        <source>&amp;Row</source>
        <translation>列(&amp;R)</translation>
    </message>
    <message>
        <source>Number of the row</source>
        <translation>列號</translation>
    </message>
    <message>
        <source>C&amp;olumn</source>
        <translation>欄(&amp;O)</translation>
    </message>
    <message>
        <source>Number of the column</source>
        <translation>欄號</translation>
    </message>
    <message>
        <source>&amp;Entire table</source>
        <translation>整個表格(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>套用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>關閉(&amp;C)</translation>
    </message>
</context>
<context>
    <name>FormulaCheck</name>
    <message>
        <source>A name with an apostrophe and blanks or operators in it cannot be used in formulas: view files keep no double quotes around it.</source>
        <translation>同時含有撇號與空格或運算子的名稱不能用於公式中：檢視表檔案不會保留名稱兩側的雙引號。</translation>
    </message>
</context>
<context>
    <name>FunctionsDialog</name>
    <message>
        <source>Expression Functions</source>
        <translation>運算式函數</translation>
    </message>
    <message>
        <source>F&amp;ilter:</source>
        <translation>篩選(&amp;I)：</translation>
    </message>
    <message>
        <source>&amp;Functions</source>
        <translation>函數(&amp;F)</translation>
    </message>
    <message>
        <source>(drag and drop into field or highlight expressions)</source>
        <translation>(可拖放到欄位運算式或醒目提示運算式中)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>關閉(&amp;C)</translation>
    </message>
</context>
<context>
    <name>HighlightEdtrViewBase</name>
    <message>
        <source>Highlight Editor</source>
        <translation>醒目提示編輯器</translation>
    </message>
    <message>
        <source>Field Name:</source>
        <translation>欄位名稱：</translation>
    </message>
    <message>
        <source>&amp;Highlight Formula:</source>
        <translation>醒目提示公式(&amp;H)：</translation>
    </message>
    <message>
        <source>&amp;Set from source</source>
        <translation>取自其他欄位(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>套用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
</context>
<context>
    <name>HighlightingDialog</name>
    <message>
        <source>Highlighting</source>
        <translation>醒目提示</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>動作(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>套用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
</context>
<context>
    <name>PrintOptionsDialog</name>
    <message>
        <source>Print Options</source>
        <translation>列印選項</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>頁面</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>標題(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Footer:</source>
        <translation>頁尾(&amp;F)：</translation>
    </message>
    <message>
        <source>Repeat &amp;Row Headings</source>
        <translation>重複列標題(&amp;R)</translation>
    </message>
    <message>
        <source>Repeat &amp;Column Headings</source>
        <translation>重複欄標題(&amp;C)</translation>
    </message>
    <message>
        <source>Print All &amp;Z Dimensions on Separate Pages</source>
        <translation>在個別頁面上列印所有 Z 維度(&amp;Z)</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>印表機</translation>
    </message>
    <message>
        <source>Printer T&amp;ype:</source>
        <translation>印表機類型(&amp;Y)：</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>印表機(&amp;P)：</translation>
    </message>
    <message>
        <source>Print Co&amp;mmand:</source>
        <translation>列印命令(&amp;M)：</translation>
    </message>
    <message>
        <source>Runs in place of the printer; %s stands for the print file</source>
        <translation>取代印表機執行；%s 代表列印檔</translation>
    </message>
    <message>
        <source>Print to fi&amp;le</source>
        <translation>列印至檔案(&amp;L)</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>檔案名稱(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>瀏覽(&amp;B)...</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>縮放</translation>
    </message>
    <message>
        <source>Fit &amp;Width to</source>
        <translation>寬度調整為(&amp;W)</translation>
    </message>
    <message>
        <source>Pages across</source>
        <translation>水平頁數</translation>
    </message>
    <message>
        <source>Page(s)</source>
        <translation>頁</translation>
    </message>
    <message>
        <source>Fit &amp;Height to</source>
        <translation>高度調整為(&amp;H)</translation>
    </message>
    <message>
        <source>Pages down</source>
        <translation>垂直頁數</translation>
    </message>
    <message>
        <source>Fit on &amp;One Page</source>
        <translation>調整為一頁(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Use Font Size</source>
        <translation>使用字型大小(&amp;U)</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>字型大小</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>點</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>紙張</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>紙張(&amp;E)：</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>方向：</translation>
    </message>
    <message>
        <source>Portra&amp;it</source>
        <translation>直向(&amp;I)</translation>
    </message>
    <message>
        <source>Land&amp;scape</source>
        <translation>橫向(&amp;S)</translation>
    </message>
    <message>
        <source>Show &amp;Grid</source>
        <translation>顯示格線(&amp;G)</translation>
    </message>
    <message>
        <source>ASCII</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>Page &amp;Width (chars)</source>
        <translation>頁面寬度(字元)(&amp;K)</translation>
    </message>
    <message>
        <source>Page Width (chars)</source>
        <translation>頁面寬度(字元)</translation>
    </message>
    <message>
        <source>Page &amp;Height (chars)</source>
        <translation>頁面高度(字元)(&amp;J)</translation>
    </message>
    <message>
        <source>Page Height (chars)</source>
        <translation>頁面高度(字元)</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>C&amp;omplete Document</source>
        <translation>完整文件(&amp;V)</translation>
    </message>
    <message>
        <source>Border&amp;s</source>
        <translation>框線(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>套用(&amp;A)</translation>
    </message>
    <message>
        <source>Apply an&amp;d Print</source>
        <translation>套用並列印(&amp;D)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
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
        <translation>列印(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>匯出(&amp;E)</translation>
    </message>
    <message>
        <source>Export &amp;As...</source>
        <translation>匯出為(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Open View...</source>
        <translation>開啟檢視表(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Save View</source>
        <translation>儲存檢視表(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;View As...</source>
        <translation>檢視表另存為(&amp;V)...</translation>
    </message>
    <message>
        <source>&amp;Import Expressions...</source>
        <translation>匯入運算式(&amp;I)...</translation>
    </message>
    <message>
        <source>Import &amp;Highlighting...</source>
        <translation>匯入醒目提示(&amp;H)...</translation>
    </message>
    <message>
        <source>&amp;Delete View...</source>
        <translation>刪除檢視表(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>關閉(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;All Inverse Formulas</source>
        <translation>所有反向公式(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Fill Cells...</source>
        <translation>填滿儲存格(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;Recalculate</source>
        <translation>重新計算(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Swap Data Row/Column</source>
        <translation>交換資料列/欄(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Display...</source>
        <translation>顯示(&amp;D)...</translation>
    </message>
    <message>
        <source>Lay&amp;out...</source>
        <translation>版面配置(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Breaks...</source>
        <translation>小計(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Expressions...</source>
        <translation>運算式(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Highlighting...</source>
        <translation>醒目提示(&amp;H)...</translation>
    </message>
    <message>
        <source>&amp;List Functions...</source>
        <translation>函數清單(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Fields...</source>
        <translation>欄位(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>檔案(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編輯(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Configure</source>
        <translation>設定(&amp;C)</translation>
    </message>
</context>
<context>
    <name>vrel</name>
    <message>
        <source>The location of the model cannot be saved because the file &quot;%1&quot; is read-only.  Please make sure it has Write attributes.</source>
        <translation>無法儲存模型的位置，因為檔案「%1」為唯讀。請確認該檔案可供寫入。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written.</source>
        <translation>無法寫入檔案「%1」。</translation>
    </message>
    <message>
        <source>Applying inverse formulas...</source>
        <translation>正在套用反向公式...</translation>
    </message>
    <message>
        <source>Pasting...</source>
        <translation>正在貼上...</translation>
    </message>
    <message>
        <source>Recalculating formulas...</source>
        <translation>正在重新計算公式...</translation>
    </message>
    <message>
        <source>Computing colours...</source>
        <translation>正在計算色彩...</translation>
    </message>
    <message>
        <source>Region for pasting does match copied data region.</source>
        <translation>貼上區域與複製的資料區域不符。</translation>
    </message>
    <message>
        <source>Column range is outside of table size.</source>
        <translation>欄範圍超出表格大小。</translation>
    </message>
    <message>
        <source>Row range is outside of table size.</source>
        <translation>列範圍超出表格大小。</translation>
    </message>
    <message>
        <source>Selected cell in paste area is read only and has not been changed.</source>
        <translation>貼上區域中選取的儲存格為唯讀，並未變更。</translation>
    </message>
    <message>
        <source>At least one cell in paste area is read only and has not been changed.</source>
        <translation>貼上區域中至少有一個儲存格為唯讀，並未變更。</translation>
    </message>
    <message>
        <source>One or more cells in paste area are read only and have not been changed.</source>
        <translation>貼上區域中有一或多個儲存格為唯讀，並未變更。</translation>
    </message>
    <message>
        <source>QNT Error</source>
        <translation>QNT 錯誤</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot;.</source>
        <translation>無法開啟檔案「%1」。</translation>
    </message>
    <message>
        <source>Errors in period file &quot;%1&quot;.</source>
        <translation>期間檔案中有錯誤：「%1」。</translation>
    </message>
    <message>
        <source>Default View Title</source>
        <translation>預設檢視表標題</translation>
    </message>
    <message>
        <source>Exporting...</source>
        <translation>正在匯出...</translation>
    </message>
    <message>
        <source>Error: Could not open file &quot;%1&quot;.</source>
        <translation>錯誤：無法開啟檔案「%1」。</translation>
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
        <translation>CSV (逗號分隔) (*.csv)</translation>
    </message>
    <message>
        <source>Printing...</source>
        <translation>正在列印...</translation>
    </message>
    <message>
        <source>Unable to print to &quot;%1&quot;.</source>
        <translation>無法列印至「%1」。</translation>
    </message>
    <message>
        <source>Closing file &quot;%1&quot; fails.</source>
        <translation>無法關閉檔案「%1」。</translation>
    </message>
    <message>
        <source>Error: Invalid output file path &quot;%1&quot;.</source>
        <translation>錯誤：輸出檔案路徑「%1」無效。</translation>
    </message>
    <message>
        <source>Error: Cannot find input file &quot;%1&quot;.</source>
        <translation>錯誤：找不到輸入檔案「%1」。</translation>
    </message>
    <message>
        <source>Error: Data does not match fields</source>
        <translation>錯誤：資料與欄位不符</translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;</source>
        <translation>無法開啟「%1」</translation>
    </message>
    <message>
        <source>Open View</source>
        <translation>開啟檢視表</translation>
    </message>
    <message>
        <source>Do you want to save changes to &quot;%1&quot;?</source>
        <translation>是否要儲存對「%1」所做的變更？</translation>
    </message>
    <message>
        <source>PostScript (*.ps)</source>
        <translation>PostScript (*.ps)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>文字 (*.txt)</translation>
    </message>
    <message>
        <source>HTML (*.html)</source>
        <translation>HTML (*.html)</translation>
    </message>
    <message>
        <source>Matching views (%1);;All views (*.view)</source>
        <translation>相符的檢視表 (%1);;所有檢視表 (*.view)</translation>
    </message>
    <message>
        <source>File name &quot;%1&quot; contains a character that is not allowed.</source>
        <translation>檔案名稱「%1」含有不允許使用的字元。</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot; for loading expressions.</source>
        <translation>無法開啟檔案「%1」以載入運算式。</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; does not match data</source>
        <translation>檢視表檔案「%1」與資料不符</translation>
    </message>
    <message>
        <source>Save View As</source>
        <translation>檢視表另存為</translation>
    </message>
    <message>
        <source>Delete View</source>
        <translation>刪除檢視表</translation>
    </message>
    <message>
        <source>Delete view &quot;%1&quot;?</source>
        <translation>是否要刪除檢視表「%1」？</translation>
    </message>
    <message>
        <source>Cannot delete &quot;%1&quot;.</source>
        <translation>無法刪除「%1」。</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot; for saving.</source>
        <translation>無法開啟檔案「%1」進行儲存。</translation>
    </message>
    <message>
        <source>Data Editor</source>
        <translation>資料編輯器</translation>
    </message>
    <message>
        <source>Warning: Some data with non-unique keys was removed.</source>
        <translation>警告：已移除部分索引鍵不唯一的資料。</translation>
    </message>
    <message>
        <source>Not enough keys to properly display data
extracted by report
&quot;%s&quot;.</source>
        <translation>索引鍵不足，無法正確顯示
由下列報表擷取的資料：
「%s」。</translation>
    </message>
    <message>
        <source>Page %1.%2</source>
        <translation>第 %1.%2 頁</translation>
    </message>
    <message>
        <source>Error attempting to print. Print cancelled.</source>
        <translation>列印時發生錯誤。已取消列印。</translation>
    </message>
    <message>
        <source>Export As</source>
        <translation>匯出為</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>列印至檔案</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>正在尋找...</translation>
    </message>
    <message>
        <source>Data Editor: Delete View</source>
        <translation>資料編輯器：刪除檢視表</translation>
    </message>
    <message>
        <source>Please specify file name for saving.</source>
        <translation>請指定要儲存的檔案名稱。</translation>
    </message>
    <message>
        <source>Invalid Row or Column to fill.</source>
        <translation>要填滿的列或欄無效。</translation>
    </message>
    <message>
        <source>Invalid Row or Column.</source>
        <translation>列或欄無效。</translation>
    </message>
    <message>
        <source>Cannot perform change - field is read-only.</source>
        <translation>無法進行變更：欄位為唯讀。</translation>
    </message>
    <message>
        <source>Filling cells...</source>
        <translation>正在填滿儲存格...</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>永不</translation>
    </message>
    <message>
        <source>Every Change</source>
        <translation>每次變更</translation>
    </message>
    <message>
        <source>Every 2nd Change</source>
        <translation>每 2 次變更</translation>
    </message>
    <message>
        <source>Every 3rd Change</source>
        <translation>每 3 次變更</translation>
    </message>
    <message>
        <source>Every 4th Change</source>
        <translation>每 4 次變更</translation>
    </message>
    <message>
        <source>Every 5th Change</source>
        <translation>每 5 次變更</translation>
    </message>
    <message>
        <source>Every 6th Change</source>
        <translation>每 6 次變更</translation>
    </message>
    <message>
        <source>Every 7th Change</source>
        <translation>每 7 次變更</translation>
    </message>
    <message>
        <source>Every 8th Change</source>
        <translation>每 8 次變更</translation>
    </message>
    <message>
        <source>Every 9th Change</source>
        <translation>每 9 次變更</translation>
    </message>
    <message>
        <source>Every 10th Change</source>
        <translation>每 10 次變更</translation>
    </message>
    <message>
        <source>Every 12th Change</source>
        <translation>每 12 次變更</translation>
    </message>
    <message>
        <source>Every 24th Change</source>
        <translation>每 24 次變更</translation>
    </message>
    <message>
        <source>Every 28th Change</source>
        <translation>每 28 次變更</translation>
    </message>
    <message>
        <source>At End</source>
        <translation>在結尾</translation>
    </message>
    <message>
        <source>Same as Frequency</source>
        <translation>與頻率相同</translation>
    </message>
    <message>
        <source>At 1st Change</source>
        <translation>第 1 次變更時</translation>
    </message>
    <message>
        <source>At 2nd Change</source>
        <translation>第 2 次變更時</translation>
    </message>
    <message>
        <source>At 3rd Change</source>
        <translation>第 3 次變更時</translation>
    </message>
    <message>
        <source>At 4th Change</source>
        <translation>第 4 次變更時</translation>
    </message>
    <message>
        <source>At 5th Change</source>
        <translation>第 5 次變更時</translation>
    </message>
    <message>
        <source>At 6th Change</source>
        <translation>第 6 次變更時</translation>
    </message>
    <message>
        <source>At 7th Change</source>
        <translation>第 7 次變更時</translation>
    </message>
    <message>
        <source>At 8th Change</source>
        <translation>第 8 次變更時</translation>
    </message>
    <message>
        <source>At 9th Change</source>
        <translation>第 9 次變更時</translation>
    </message>
    <message>
        <source>At 10th Change</source>
        <translation>第 10 次變更時</translation>
    </message>
    <message>
        <source>At 11th Change</source>
        <translation>第 11 次變更時</translation>
    </message>
    <message>
        <source>Every %1 Changes</source>
        <translation>每 %1 次變更</translation>
    </message>
    <message>
        <source>At Change %1</source>
        <translation>第 %1 次變更時</translation>
    </message>
    <message>
        <source>At End (%1)</source>
        <translation>在結尾 (%1)</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Nil</source>
        <translation>無</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>加總</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>平均值</translation>
    </message>
    <message>
        <source>Avg</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>First</source>
        <translation>首值</translation>
    </message>
    <message>
        <source>1st</source>
        <translation>首值</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>末值</translation>
    </message>
    <message>
        <source>Copying...</source>
        <translation>正在複製...</translation>
    </message>
    <message>
        <source>The selection is too large to be copied.</source>
        <translation>選取範圍過大，無法複製。</translation>
    </message>
    <message>
        <source>The change could not be sent to the host application: its message file cannot be written.</source>
        <translation>無法將變更傳送至主應用程式：無法寫入其訊息檔案。</translation>
    </message>
    <message>
        <source>The values of &quot;%1&quot; cannot be changed.</source>
        <translation>無法變更「%1」的值。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date.</source>
        <translation>「%1」不是日期。</translation>
    </message>
    <message>
        <source>Some of the pasted texts are no values and have not been set; the first is &quot;%1&quot;.</source>
        <translation>部分貼上的文字不是有效值，並未寫入儲存格；第一個是「%1」。</translation>
    </message>
    <message>
        <source>Import Expressions</source>
        <translation>匯入運算式</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; has no expressions.</source>
        <translation>檢視表檔案「%1」中沒有運算式。</translation>
    </message>
    <message>
        <source>There is not enough memory for the imported expressions.</source>
        <translation>記憶體不足，無法匯入運算式。</translation>
    </message>
    <message>
        <source>Import Highlighting</source>
        <translation>匯入醒目提示</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; has none of the fields of this report.</source>
        <translation>檢視表檔案「%1」中沒有此報表的任何欄位。</translation>
    </message>
</context>
<context>
    <name>vrel::BreaksDialogImpl</name>
    <message>
        <source>Field</source>
        <translation>欄位</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>啟用</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>頻率</translation>
    </message>
    <message>
        <source>First Break</source>
        <translation>首次小計</translation>
    </message>
    <message>
        <source>Computes</source>
        <translation>計算內容</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>動作(&amp;T)</translation>
    </message>
    <message>
        <source>Suspend All Breaks</source>
        <translation>暫停所有小計</translation>
    </message>
    <message>
        <source>Activate All Breaks</source>
        <translation>啟用所有小計</translation>
    </message>
    <message>
        <source>active</source>
        <translation>已啟用</translation>
    </message>
    <message>
        <source>suspended</source>
        <translation>已暫停</translation>
    </message>
</context>
<context>
    <name>vrel::ColumnPopupMenu</name>
    <message>
        <source>Show Data</source>
        <translation>顯示資料</translation>
    </message>
    <message>
        <source>Hide Data</source>
        <translation>隱藏資料</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureBreakDialog</name>
    <message>
        <source>Data Field</source>
        <translation>資料欄位</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>計算方式</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureDesk</name>
    <message>
        <source>Period File</source>
        <translation>期間檔案</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有檔案 (*)</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureDisplayDialogImpl</name>
    <message>
        <source>&lt;default&gt;</source>
        <translation>&lt;預設&gt;</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>範例：%1</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureLayoutDialog</name>
    <message>
        <source>Layout</source>
        <translation>版面配置</translation>
    </message>
    <message>
        <source>Use the buttons below to reorder the tabular data in the report. You will see the effects of reordering in the report in the main window</source>
        <translation>使用下方的按鈕可重新排列報表中的表格資料。重新排列的結果會顯示在主視窗的報表中。</translation>
    </message>
    <message>
        <source>By keyboard: Ctrl+Up and Ctrl+Down move a field within its area, Ctrl+Left and Ctrl+Right move it to the area beside it.</source>
        <translation>鍵盤操作：按 Ctrl+向上鍵或 Ctrl+向下鍵可在區域內移動欄位，按 Ctrl+向左鍵或 Ctrl+向右鍵可將其移至相鄰區域。</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>下移(&amp;D)</translation>
    </message>
</context>
<context>
    <name>vrel::CopyPasteLineEdit</name>
    <message>
        <source>Cell value</source>
        <translation>儲存格值</translation>
    </message>
</context>
<context>
    <name>vrel::DataTable</name>
    <message>
        <source>(Copy)</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>(Paste)</source>
        <translation>貼上</translation>
    </message>
</context>
<context>
    <name>vrel::EditDesk</name>
    <message>
        <source>Cannot compute value</source>
        <translation>無法計算值</translation>
    </message>
    <message>
        <source>Cells that cannot be empty and stay as they were: %1 of %2.</source>
        <translation>因不可為空白而維持不變的儲存格：%1 個，共 %2 個。</translation>
    </message>
    <message>
        <source>Cells that do not take &quot;%1&quot; and stay as they were: %2 of %3.</source>
        <translation>因不接受「%1」而維持不變的儲存格：%2 個，共 %3 個。</translation>
    </message>
</context>
<context>
    <name>vrel::ExprEdtrView</name>
    <message>
        <source>Cannot apply the inverse formula</source>
        <translation>無法套用反向公式</translation>
    </message>
    <message>
        <source>Please enter a formula.</source>
        <translation>請輸入公式。</translation>
    </message>
    <message>
        <source>Cannot apply the formula</source>
        <translation>無法套用公式</translation>
    </message>
    <message>
        <source>Please enter a field name.</source>
        <translation>請輸入欄位名稱。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a field: formulas could not refer to it. A name must not hold colons or quotes, begin with &quot;#&quot; or be longer than 127 bytes.</source>
        <translation>「%1」不能作為欄位名稱：公式無法參照它。欄位名稱不得含有冒號或引號、不得以「#」開頭，也不得超過 127 個位元組。</translation>
    </message>
</context>
<context>
    <name>vrel::ExpressionErrorDialog</name>
    <message>
        <source>Expression Error</source>
        <translation>運算式錯誤</translation>
    </message>
    <message>
        <source>Syntax error in expression:</source>
        <translation>運算式語法錯誤：</translation>
    </message>
    <message>
        <source>Evaluation error in expression:</source>
        <translation>運算式計算錯誤：</translation>
    </message>
</context>
<context>
    <name>vrel::ExpressionsDialogImpl</name>
    <message>
        <source>&amp;New</source>
        <translation>新增(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>編輯(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>刪除(&amp;D)</translation>
    </message>
    <message>
        <source>Data Editor: missing selection</source>
        <translation>資料編輯器：未選取項目</translation>
    </message>
    <message>
        <source>Please select an expression to edit.</source>
        <translation>請選取要編輯的運算式。</translation>
    </message>
    <message>
        <source>Please select an expression to delete.</source>
        <translation>請選取要刪除的運算式。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be deleted: it stands among the fields of the table.</source>
        <translation>無法刪除「%1」：它位於資料表的欄位之中。</translation>
    </message>
    <message>
        <source>The formulas of these fields refer to &quot;%1&quot; and will have no value without it:
%2
Delete &quot;%1&quot;?</source>
        <translation>下列欄位的公式參照了「%1」，刪除後將沒有值：
%2
是否要刪除「%1」？</translation>
    </message>
    <message>
        <source>Data Editor: Delete Expression</source>
        <translation>資料編輯器：刪除運算式</translation>
    </message>
</context>
<context>
    <name>vrel::FieldButton</name>
    <message>
        <source>Ctrl with an arrow key moves the field.</source>
        <translation>按 Ctrl+方向鍵可移動欄位。</translation>
    </message>
</context>
<context>
    <name>vrel::FieldDialogImpl</name>
    <message>
        <source>Field</source>
        <translation>欄位</translation>
    </message>
    <message>
        <source>Classification</source>
        <translation>分類</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>類型</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>資料</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>索引鍵</translation>
    </message>
    <message>
        <source>Data Editor: classification error</source>
        <translation>資料編輯器：分類錯誤</translation>
    </message>
    <message>
        <source>There must always be at least one %1 field.</source>
        <translation>至少必須保留一個%1欄位。</translation>
    </message>
    <message>
        <source>Some values cannot be kept in the new type of their field:</source>
        <translation>部分值無法以其欄位的新類型保留：</translation>
    </message>
    <message>
        <source>%1 as %2: %3 of %4 values, the first is &quot;%5&quot;</source>
        <translation>%1 改為%2：%3 個值(共 %4 個)，第一個是「%5」</translation>
    </message>
    <message>
        <source>and more in %1 other fields</source>
        <translation>其他 %1 個欄位中還有更多</translation>
    </message>
    <message>
        <source>They will be other values, and nothing brings them back. Change the types all the same?</source>
        <translation>這些值將會改變且無法復原。是否仍要變更類型？</translation>
    </message>
</context>
<context>
    <name>vrel::FindBar</name>
    <message>
        <source>Ne&amp;xt</source>
        <translation>下一個(&amp;X)</translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>上一個(&amp;V)</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>找不到</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Continued from the top</source>
        <translation>已從頂端繼續尋找</translation>
    </message>
    <message>
        <source>Continued from the bottom</source>
        <translation>已從底端繼續尋找</translation>
    </message>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>尋找(&amp;N)：</translation>
    </message>
    <message>
        <source>Close the find bar</source>
        <translation>關閉尋找列</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>關閉尋找列 (Esc)</translation>
    </message>
</context>
<context>
    <name>vrel::FormulaEdit</name>
    <message>
        <source>The formula is not complete.</source>
        <translation>公式不完整。</translation>
    </message>
    <message>
        <source>Syntax error.</source>
        <translation>語法錯誤。</translation>
    </message>
    <message>
        <source>There is no function &quot;%1&quot;.</source>
        <translation>沒有名為「%1」的函數。</translation>
    </message>
    <message>
        <source>Wrong number of arguments: %1</source>
        <translation>引數個數錯誤：%1</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;.</source>
        <translation>沒有名為「%1」的欄位。</translation>
    </message>
    <message>
        <source>The field &quot;%1&quot; holds no numbers.</source>
        <translation>欄位「%1」不含數字。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a function; write &quot;%1()&quot;.</source>
        <translation>「%1」是函數，請寫成「%1()」。</translation>
    </message>
</context>
<context>
    <name>vrel::FormulaListDialog</name>
    <message>
        <source>There is not enough memory for this change.</source>
        <translation>記憶體不足，無法進行此變更。</translation>
    </message>
    <message>
        <source>The formula that is being edited is not applied yet. Discard it?</source>
        <translation>正在編輯的公式尚未套用。是否要捨棄？</translation>
    </message>
    <message>
        <source>Field Name</source>
        <translation>欄位名稱</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>公式</translation>
    </message>
</context>
<context>
    <name>vrel::FrozenColumnTablesImpl</name>
    <message>
        <source>Row labels</source>
        <translation>列標籤</translation>
    </message>
    <message>
        <source>Report data</source>
        <translation>報表資料</translation>
    </message>
</context>
<context>
    <name>vrel::FunctionsDialog</name>
    <message>
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>用法</translation>
    </message>
</context>
<context>
    <name>vrel::HighlightEdtrView</name>
    <message>
        <source>No other field has a highlight formula.</source>
        <translation>其他欄位都沒有醒目提示公式。</translation>
    </message>
    <message>
        <source>Takes over the highlight formula of another field.</source>
        <translation>採用其他欄位的醒目提示公式。</translation>
    </message>
    <message>
        <source>Cannot apply the highlight formula</source>
        <translation>無法套用醒目提示公式</translation>
    </message>
</context>
<context>
    <name>vrel::HighlightingDialogImpl</name>
    <message>
        <source>&amp;Edit...</source>
        <translation>編輯(&amp;E)...</translation>
    </message>
    <message>
        <source>Data Editor: missing highlight</source>
        <translation>資料編輯器：未選取醒目提示</translation>
    </message>
    <message>
        <source>Please select an highlight expression to edit</source>
        <translation>請選取要編輯的醒目提示運算式。</translation>
    </message>
</context>
<context>
    <name>vrel::PrintOptionsDialogImpl</name>
    <message>
        <source>No Printers Available</source>
        <translation>沒有可用的印表機</translation>
    </message>
</context>
<context>
    <name>vrel::SelectionStatus</name>
    <message>
        <source>What the selected cells come to</source>
        <translation>所選儲存格的統計結果</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>正在統計…</translation>
    </message>
    <message>
        <source>Count: %1</source>
        <translation>項目個數：%1</translation>
    </message>
    <message>
        <source>Sum: %1</source>
        <translation>加總：%1</translation>
    </message>
    <message>
        <source>Average: %1</source>
        <translation>平均值：%1</translation>
    </message>
    <message>
        <source>Minimum: %1</source>
        <translation>最小值：%1</translation>
    </message>
    <message>
        <source>Maximum: %1</source>
        <translation>最大值：%1</translation>
    </message>
</context>
<context>
    <name>vrel::VrelMainWindow</name>
    <message>
        <source>Output of: %1</source>
        <translation>輸出：%1</translation>
    </message>
    <message>
        <source>Data Editor</source>
        <translation>資料編輯器</translation>
    </message>
    <message>
        <source>Data Editor: Working...</source>
        <translation>資料編輯器：處理中...</translation>
    </message>
</context>
<context>
    <name>vrel::ZTabs</name>
    <message>
        <source>Previous page</source>
        <translation>上一頁</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一頁</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>頁面</translation>
    </message>
</context>
</TS>
