<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>BreaksDialog</name>
    <message>
        <source>Breaks</source>
        <translation>分类汇总</translation>
    </message>
    <message>
        <source>A break adds a summary to the report where the value of its field changes.</source>
        <translation>分类汇总会在其字段值发生变化处向报表添加汇总。</translation>
    </message>
    <message>
        <source>Key Fields:</source>
        <translation>键字段：</translation>
    </message>
    <message>
        <source>Enter or a double click defines a break, Space activates or suspends it</source>
        <translation>按 Enter 键或双击可定义分类汇总，按空格键可启用或暂停</translation>
    </message>
    <message>
        <source>&amp;Define...</source>
        <translation>定义(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
</context>
<context>
    <name>ConfigureBreakDialog</name>
    <message>
        <source>Define Break</source>
        <translation>定义分类汇总</translation>
    </message>
    <message>
        <source>Field:</source>
        <translation>字段：</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名称(&amp;N)：</translation>
    </message>
    <message>
        <source>Acti&amp;ve</source>
        <translation>启用(&amp;V)</translation>
    </message>
    <message>
        <source>Put A &amp;Blank Row After Break</source>
        <translation>在汇总后插入空行(&amp;B)</translation>
    </message>
    <message>
        <source>Break &amp;Frequency:</source>
        <translation>汇总频率(&amp;F)：</translation>
    </message>
    <message>
        <source>F&amp;irst Break:</source>
        <translation>首次汇总(&amp;I)：</translation>
    </message>
    <message>
        <source>At Break, Compute</source>
        <translation>汇总时计算</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>This break shows nothing: its field is neither in the rows nor in the columns of the report.</source>
        <translation>此分类汇总不显示任何内容：其字段既不在报表的行中，也不在报表的列中。</translation>
    </message>
    <message>
        <source>This break shows nothing: it is not active.</source>
        <translation>此分类汇总不显示任何内容：尚未启用。</translation>
    </message>
    <message>
        <source>This break shows nothing: choose how often it comes.</source>
        <translation>此分类汇总不显示任何内容：请选择汇总频率。</translation>
    </message>
    <message>
        <source>This break shows nothing: choose what to compute for at least one data field.</source>
        <translation>此分类汇总不显示任何内容：请至少为一个数据字段选择汇总方式。</translation>
    </message>
</context>
<context>
    <name>ConfigureDisplayDialog</name>
    <message>
        <source>Display</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Data Fields</source>
        <translation>数据字段</translation>
    </message>
    <message>
        <source>A&amp;vailable fields</source>
        <translation>可用字段(&amp;V)</translation>
    </message>
    <message>
        <source>Show (Ordered)</source>
        <translation>显示(按顺序)</translation>
    </message>
    <message>
        <source>Available fields</source>
        <translation>可用字段</translation>
    </message>
    <message>
        <source>&amp;Show &gt;</source>
        <translation>显示(&amp;S) &gt;</translation>
    </message>
    <message>
        <source>Show the selected fields as data</source>
        <translation>将所选字段显示为数据</translation>
    </message>
    <message>
        <source>&lt; &amp;Hide</source>
        <translation>&lt; 隐藏(&amp;H)</translation>
    </message>
    <message>
        <source>Take the selected fields out of the report</source>
        <translation>从报表中移除所选字段</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>上移(&amp;U)</translation>
    </message>
    <message>
        <source>Move the selected fields up</source>
        <translation>将所选字段上移</translation>
    </message>
    <message>
        <source>Dow&amp;n</source>
        <translation>下移(&amp;N)</translation>
    </message>
    <message>
        <source>Move the selected fields down</source>
        <translation>将所选字段下移</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报表</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>标题(&amp;T)：</translation>
    </message>
    <message>
        <source>Show S&amp;ystem Title</source>
        <translation>显示系统标题(&amp;Y)</translation>
    </message>
    <message>
        <source>Show Du&amp;plicate Labels</source>
        <translation>显示重复标签(&amp;P)</translation>
    </message>
    <message>
        <source>Show &amp;Empty Rows and Columns</source>
        <translation>显示空行和空列(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Date Format:</source>
        <translation>日期格式(&amp;D)：</translation>
    </message>
    <message>
        <source>%d day, %m month, %b month name, %Y year, %y year in two digits, %H hour, %M minute, %S second</source>
        <translation>%d 日，%m 月，%b 月份名称，%Y 年，%y 两位数年份，%H 时，%M 分，%S 秒</translation>
    </message>
    <message>
        <source>P&amp;recision:</source>
        <translation>精度(&amp;R)：</translation>
    </message>
    <message>
        <source>Decimal Places</source>
        <translation>位小数</translation>
    </message>
    <message>
        <source>Period &amp;File:</source>
        <translation>期间文件(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
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
        <translation>调整列顺序：</translation>
    </message>
    <message>
        <source>Drag buttons up and down within the area below to rearrange column order</source>
        <translation>在下方区域内上下拖动按钮，可调整列的顺序。</translation>
    </message>
    <message>
        <source>Make a &amp;Column</source>
        <translation>设为列(&amp;C)</translation>
    </message>
    <message>
        <source>Creating tabs:</source>
        <translation>创建选项卡：</translation>
    </message>
    <message>
        <source>Drag and drop buttons into this area to create tabs in the report</source>
        <translation>将按钮拖放到此区域，可在报表中创建选项卡。</translation>
    </message>
    <message>
        <source>Make &amp;Tabs</source>
        <translation>设为选项卡(&amp;T)</translation>
    </message>
    <message>
        <source>Spreading data horizontally:</source>
        <translation>水平展开数据：</translation>
    </message>
    <message>
        <source>Drag and drop buttons into this area to spread data horizontally.</source>
        <translation>将按钮拖放到此区域，可水平展开数据。</translation>
    </message>
    <message>
        <source>&amp;Spread Horizontally</source>
        <translation>水平展开(&amp;S)</translation>
    </message>
</context>
<context>
    <name>ExprEdtrViewBase</name>
    <message>
        <source>Expression Editor</source>
        <translation>表达式编辑器</translation>
    </message>
    <message>
        <source>Field &amp;Name:</source>
        <translation>字段名(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>公式(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Inverse Formula (applied only when field is edited):</source>
        <translation>反向公式(仅在编辑字段时应用)(&amp;I)：</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
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
        <translation>表达式</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>操作(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
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
        <translation>配置字段</translation>
    </message>
    <message>
        <source>Field, Classifications and Data Type</source>
        <translation>字段、分类和数据类型</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Data, can be edited</source>
        <translation>数据，可编辑</translation>
    </message>
    <message>
        <source>Data, read only</source>
        <translation>数据，只读</translation>
    </message>
    <message>
        <source>String</source>
        <translation>字符串</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>布尔值</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>表达式</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>期间</translation>
    </message>
</context>
<context>
    <name>FileDialog</name>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 已存在。
是否要替换它？</translation>
    </message>
</context>
<context>
    <name>FillCellsDialog</name>
    <message>
        <source>Fill Cells</source>
        <translation>填充单元格</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>值(&amp;V)：</translation>
    </message>
    <message>
        <source>A value as it is typed into a cell; for numbers also a formula</source>
        <translation>按在单元格中键入的形式输入值；对于数字，也可输入公式</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>填充范围</translation>
    </message>
    <message>
        <source>&amp;Row</source>
        <translation>行(&amp;R)</translation>
    </message>
    <message>
        <source>Number of the row</source>
        <translation>行号</translation>
    </message>
    <message>
        <source>C&amp;olumn</source>
        <translation>列(&amp;O)</translation>
    </message>
    <message>
        <source>Number of the column</source>
        <translation>列号</translation>
    </message>
    <message>
        <source>&amp;Entire table</source>
        <translation>整个表格(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
</context>
<context>
    <name>FormulaCheck</name>
    <message>
        <source>A name with an apostrophe and blanks or operators in it cannot be used in formulas: view files keep no double quotes around it.</source>
        <translation>同时含有撇号和空格或运算符的名称不能用在公式中：视图文件不保留名称两侧的双引号。</translation>
    </message>
</context>
<context>
    <name>FunctionsDialog</name>
    <message>
        <source>Expression Functions</source>
        <translation>表达式函数</translation>
    </message>
    <message>
        <source>F&amp;ilter:</source>
        <translation>筛选(&amp;I)：</translation>
    </message>
    <message>
        <source>&amp;Functions</source>
        <translation>函数(&amp;F)</translation>
    </message>
    <message>
        <source>(drag and drop into field or highlight expressions)</source>
        <translation>(可拖放到字段表达式或突出显示表达式中)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
</context>
<context>
    <name>HighlightEdtrViewBase</name>
    <message>
        <source>Highlight Editor</source>
        <translation>突出显示编辑器</translation>
    </message>
    <message>
        <source>Field Name:</source>
        <translation>字段名：</translation>
    </message>
    <message>
        <source>&amp;Highlight Formula:</source>
        <translation>突出显示公式(&amp;H)：</translation>
    </message>
    <message>
        <source>&amp;Set from source</source>
        <translation>从其他字段获取(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
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
        <translation>突出显示</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>操作(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
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
        <translation>打印选项</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>标题(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Footer:</source>
        <translation>页脚(&amp;F)：</translation>
    </message>
    <message>
        <source>Repeat &amp;Row Headings</source>
        <translation>重复行标题(&amp;R)</translation>
    </message>
    <message>
        <source>Repeat &amp;Column Headings</source>
        <translation>重复列标题(&amp;C)</translation>
    </message>
    <message>
        <source>Print All &amp;Z Dimensions on Separate Pages</source>
        <translation>在单独的页面上打印所有 Z 维度(&amp;Z)</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>Printer T&amp;ype:</source>
        <translation>打印机类型(&amp;Y)：</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>打印机(&amp;P)：</translation>
    </message>
    <message>
        <source>Print Co&amp;mmand:</source>
        <translation>打印命令(&amp;M)：</translation>
    </message>
    <message>
        <source>Runs in place of the printer; %s stands for the print file</source>
        <translation>代替打印机执行；%s 表示打印文件</translation>
    </message>
    <message>
        <source>Print to fi&amp;le</source>
        <translation>打印到文件(&amp;L)</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>文件名(&amp;N)：</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)...</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Fit &amp;Width to</source>
        <translation>宽度调整为(&amp;W)</translation>
    </message>
    <message>
        <source>Pages across</source>
        <translation>水平页数</translation>
    </message>
    <message>
        <source>Page(s)</source>
        <translation>页</translation>
    </message>
    <message>
        <source>Fit &amp;Height to</source>
        <translation>高度调整为(&amp;H)</translation>
    </message>
    <message>
        <source>Pages down</source>
        <translation>垂直页数</translation>
    </message>
    <message>
        <source>Fit on &amp;One Page</source>
        <translation>调整为一页(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Use Font Size</source>
        <translation>使用字号(&amp;U)</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>字号</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>磅</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>纸张(&amp;E)：</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>方向：</translation>
    </message>
    <message>
        <source>Portra&amp;it</source>
        <translation>纵向(&amp;I)</translation>
    </message>
    <message>
        <source>Land&amp;scape</source>
        <translation>横向(&amp;S)</translation>
    </message>
    <message>
        <source>Show &amp;Grid</source>
        <translation>显示网格线(&amp;G)</translation>
    </message>
    <message>
        <source>ASCII</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>Page &amp;Width (chars)</source>
        <translation>页面宽度(字符)(&amp;K)</translation>
    </message>
    <message>
        <source>Page Width (chars)</source>
        <translation>页面宽度(字符)</translation>
    </message>
    <message>
        <source>Page &amp;Height (chars)</source>
        <translation>页面高度(字符)(&amp;J)</translation>
    </message>
    <message>
        <source>Page Height (chars)</source>
        <translation>页面高度(字符)</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>C&amp;omplete Document</source>
        <translation>完整文档(&amp;V)</translation>
    </message>
    <message>
        <source>Border&amp;s</source>
        <translation>边框(&amp;X)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>应用(&amp;A)</translation>
    </message>
    <message>
        <source>Apply an&amp;d Print</source>
        <translation>应用并打印(&amp;D)</translation>
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
        <translation>打印(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>导出(&amp;E)</translation>
    </message>
    <message>
        <source>Export &amp;As...</source>
        <translation>导出为(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Open View...</source>
        <translation>打开视图(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Save View</source>
        <translation>保存视图(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;View As...</source>
        <translation>视图另存为(&amp;V)...</translation>
    </message>
    <message>
        <source>&amp;Import Expressions...</source>
        <translation>导入表达式(&amp;I)...</translation>
    </message>
    <message>
        <source>Import &amp;Highlighting...</source>
        <translation>导入突出显示(&amp;H)...</translation>
    </message>
    <message>
        <source>&amp;Delete View...</source>
        <translation>删除视图(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;All Inverse Formulas</source>
        <translation>所有反向公式(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Fill Cells...</source>
        <translation>填充单元格(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;Recalculate</source>
        <translation>重新计算(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Swap Data Row/Column</source>
        <translation>交换数据行/列(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Display...</source>
        <translation>显示(&amp;D)...</translation>
    </message>
    <message>
        <source>Lay&amp;out...</source>
        <translation>布局(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Breaks...</source>
        <translation>分类汇总(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Expressions...</source>
        <translation>表达式(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Highlighting...</source>
        <translation>突出显示(&amp;H)...</translation>
    </message>
    <message>
        <source>&amp;List Functions...</source>
        <translation>函数列表(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Fields...</source>
        <translation>字段(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Configure</source>
        <translation>配置(&amp;C)</translation>
    </message>
</context>
<context>
    <name>vrel</name>
    <message>
        <source>The location of the model cannot be saved because the file &quot;%1&quot; is read-only.  Please make sure it has Write attributes.</source>
        <translation>无法保存模型的位置，因为文件“%1”是只读文件。请确保该文件可写入。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written.</source>
        <translation>无法写入文件“%1”。</translation>
    </message>
    <message>
        <source>Applying inverse formulas...</source>
        <translation>正在应用反向公式...</translation>
    </message>
    <message>
        <source>Pasting...</source>
        <translation>正在粘贴...</translation>
    </message>
    <message>
        <source>Recalculating formulas...</source>
        <translation>正在重新计算公式...</translation>
    </message>
    <message>
        <source>Computing colours...</source>
        <translation>正在计算颜色...</translation>
    </message>
    <message>
        <source>Region for pasting does match copied data region.</source>
        <translation>粘贴区域与复制的数据区域不匹配。</translation>
    </message>
    <message>
        <source>Column range is outside of table size.</source>
        <translation>列范围超出表格大小。</translation>
    </message>
    <message>
        <source>Row range is outside of table size.</source>
        <translation>行范围超出表格大小。</translation>
    </message>
    <message>
        <source>Selected cell in paste area is read only and has not been changed.</source>
        <translation>粘贴区域中的所选单元格为只读，未作更改。</translation>
    </message>
    <message>
        <source>At least one cell in paste area is read only and has not been changed.</source>
        <translation>粘贴区域中至少有一个单元格为只读，未作更改。</translation>
    </message>
    <message>
        <source>One or more cells in paste area are read only and have not been changed.</source>
        <translation>粘贴区域中有一个或多个单元格为只读，未作更改。</translation>
    </message>
    <message>
        <source>QNT Error</source>
        <translation>QNT 错误</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot;.</source>
        <translation>无法打开文件“%1”。</translation>
    </message>
    <message>
        <source>Errors in period file &quot;%1&quot;.</source>
        <translation>期间文件中有错误：“%1”。</translation>
    </message>
    <message>
        <source>Default View Title</source>
        <translation>默认视图标题</translation>
    </message>
    <message>
        <source>Exporting...</source>
        <translation>正在导出...</translation>
    </message>
    <message>
        <source>Error: Could not open file &quot;%1&quot;.</source>
        <translation>错误：无法打开文件“%1”。</translation>
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
        <translation>CSV (逗号分隔) (*.csv)</translation>
    </message>
    <message>
        <source>Printing...</source>
        <translation>正在打印...</translation>
    </message>
    <message>
        <source>Unable to print to &quot;%1&quot;.</source>
        <translation>无法打印到“%1”。</translation>
    </message>
    <message>
        <source>Closing file &quot;%1&quot; fails.</source>
        <translation>无法关闭文件“%1”。</translation>
    </message>
    <message>
        <source>Error: Invalid output file path &quot;%1&quot;.</source>
        <translation>错误：输出文件路径“%1”无效。</translation>
    </message>
    <message>
        <source>Error: Cannot find input file &quot;%1&quot;.</source>
        <translation>错误：找不到输入文件“%1”。</translation>
    </message>
    <message>
        <source>Error: Data does not match fields</source>
        <translation>错误：数据与字段不匹配</translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;</source>
        <translation>无法打开“%1”</translation>
    </message>
    <message>
        <source>Open View</source>
        <translation>打开视图</translation>
    </message>
    <message>
        <source>Do you want to save changes to &quot;%1&quot;?</source>
        <translation>是否保存对“%1”的更改？</translation>
    </message>
    <message>
        <source>PostScript (*.ps)</source>
        <translation>PostScript (*.ps)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>文本 (*.txt)</translation>
    </message>
    <message>
        <source>HTML (*.html)</source>
        <translation>HTML (*.html)</translation>
    </message>
    <message>
        <source>Matching views (%1);;All views (*.view)</source>
        <translation>匹配的视图 (%1);;所有视图 (*.view)</translation>
    </message>
    <message>
        <source>File name &quot;%1&quot; contains a character that is not allowed.</source>
        <translation>文件名“%1”包含不允许使用的字符。</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot; for loading expressions.</source>
        <translation>无法打开文件“%1”以加载表达式。</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; does not match data</source>
        <translation>视图文件“%1”与数据不匹配</translation>
    </message>
    <message>
        <source>Save View As</source>
        <translation>视图另存为</translation>
    </message>
    <message>
        <source>Delete View</source>
        <translation>删除视图</translation>
    </message>
    <message>
        <source>Delete view &quot;%1&quot;?</source>
        <translation>是否删除视图“%1”？</translation>
    </message>
    <message>
        <source>Cannot delete &quot;%1&quot;.</source>
        <translation>无法删除“%1”。</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot; for saving.</source>
        <translation>无法打开文件“%1”进行保存。</translation>
    </message>
    <message>
        <source>Data Editor</source>
        <translation>数据编辑器</translation>
    </message>
    <message>
        <source>Warning: Some data with non-unique keys was removed.</source>
        <translation>警告：已移除部分键不唯一的数据。</translation>
    </message>
    <message>
        <source>Not enough keys to properly display data
extracted by report
&quot;%s&quot;.</source>
        <translation>键不足，无法正确显示
由以下报表提取的数据：
“%s”。</translation>
    </message>
    <message>
        <source>Page %1.%2</source>
        <translation>第 %1.%2 页</translation>
    </message>
    <message>
        <source>Error attempting to print. Print cancelled.</source>
        <translation>打印时出错。打印已取消。</translation>
    </message>
    <message>
        <source>Export As</source>
        <translation>导出为</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>打印到文件</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>正在查找...</translation>
    </message>
    <message>
        <source>Data Editor: Delete View</source>
        <translation>数据编辑器：删除视图</translation>
    </message>
    <message>
        <source>Please specify file name for saving.</source>
        <translation>请指定要保存的文件名。</translation>
    </message>
    <message>
        <source>Invalid Row or Column to fill.</source>
        <translation>要填充的行或列无效。</translation>
    </message>
    <message>
        <source>Invalid Row or Column.</source>
        <translation>行或列无效。</translation>
    </message>
    <message>
        <source>Cannot perform change - field is read-only.</source>
        <translation>无法进行更改：字段为只读。</translation>
    </message>
    <message>
        <source>Filling cells...</source>
        <translation>正在填充单元格...</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>从不</translation>
    </message>
    <message>
        <source>Every Change</source>
        <translation>每次变化</translation>
    </message>
    <message>
        <source>Every 2nd Change</source>
        <translation>每 2 次变化</translation>
    </message>
    <message>
        <source>Every 3rd Change</source>
        <translation>每 3 次变化</translation>
    </message>
    <message>
        <source>Every 4th Change</source>
        <translation>每 4 次变化</translation>
    </message>
    <message>
        <source>Every 5th Change</source>
        <translation>每 5 次变化</translation>
    </message>
    <message>
        <source>Every 6th Change</source>
        <translation>每 6 次变化</translation>
    </message>
    <message>
        <source>Every 7th Change</source>
        <translation>每 7 次变化</translation>
    </message>
    <message>
        <source>Every 8th Change</source>
        <translation>每 8 次变化</translation>
    </message>
    <message>
        <source>Every 9th Change</source>
        <translation>每 9 次变化</translation>
    </message>
    <message>
        <source>Every 10th Change</source>
        <translation>每 10 次变化</translation>
    </message>
    <message>
        <source>Every 12th Change</source>
        <translation>每 12 次变化</translation>
    </message>
    <message>
        <source>Every 24th Change</source>
        <translation>每 24 次变化</translation>
    </message>
    <message>
        <source>Every 28th Change</source>
        <translation>每 28 次变化</translation>
    </message>
    <message>
        <source>At End</source>
        <translation>在末尾</translation>
    </message>
    <message>
        <source>Same as Frequency</source>
        <translation>与频率相同</translation>
    </message>
    <message>
        <source>At 1st Change</source>
        <translation>第 1 次变化时</translation>
    </message>
    <message>
        <source>At 2nd Change</source>
        <translation>第 2 次变化时</translation>
    </message>
    <message>
        <source>At 3rd Change</source>
        <translation>第 3 次变化时</translation>
    </message>
    <message>
        <source>At 4th Change</source>
        <translation>第 4 次变化时</translation>
    </message>
    <message>
        <source>At 5th Change</source>
        <translation>第 5 次变化时</translation>
    </message>
    <message>
        <source>At 6th Change</source>
        <translation>第 6 次变化时</translation>
    </message>
    <message>
        <source>At 7th Change</source>
        <translation>第 7 次变化时</translation>
    </message>
    <message>
        <source>At 8th Change</source>
        <translation>第 8 次变化时</translation>
    </message>
    <message>
        <source>At 9th Change</source>
        <translation>第 9 次变化时</translation>
    </message>
    <message>
        <source>At 10th Change</source>
        <translation>第 10 次变化时</translation>
    </message>
    <message>
        <source>At 11th Change</source>
        <translation>第 11 次变化时</translation>
    </message>
    <message>
        <source>Every %1 Changes</source>
        <translation>每 %1 次变化</translation>
    </message>
    <message>
        <source>At Change %1</source>
        <translation>第 %1 次变化时</translation>
    </message>
    <message>
        <source>At End (%1)</source>
        <translation>在末尾 (%1)</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Nil</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>求和</translation>
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
        <translation>正在复制...</translation>
    </message>
    <message>
        <source>The selection is too large to be copied.</source>
        <translation>所选内容过大，无法复制。</translation>
    </message>
    <message>
        <source>The change could not be sent to the host application: its message file cannot be written.</source>
        <translation>无法将更改发送到宿主应用程序：无法写入其消息文件。</translation>
    </message>
    <message>
        <source>The values of &quot;%1&quot; cannot be changed.</source>
        <translation>无法更改“%1”的值。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date.</source>
        <translation>“%1”不是日期。</translation>
    </message>
    <message>
        <source>Some of the pasted texts are no values and have not been set; the first is &quot;%1&quot;.</source>
        <translation>部分粘贴的文本不是有效值，未写入单元格；第一个是“%1”。</translation>
    </message>
    <message>
        <source>Import Expressions</source>
        <translation>导入表达式</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; has no expressions.</source>
        <translation>视图文件“%1”中没有表达式。</translation>
    </message>
    <message>
        <source>There is not enough memory for the imported expressions.</source>
        <translation>内存不足，无法导入表达式。</translation>
    </message>
    <message>
        <source>Import Highlighting</source>
        <translation>导入突出显示</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; has none of the fields of this report.</source>
        <translation>视图文件“%1”中没有此报表的任何字段。</translation>
    </message>
</context>
<context>
    <name>vrel::BreaksDialogImpl</name>
    <message>
        <source>Field</source>
        <translation>字段</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>频率</translation>
    </message>
    <message>
        <source>First Break</source>
        <translation>首次汇总</translation>
    </message>
    <message>
        <source>Computes</source>
        <translation>计算内容</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>操作(&amp;T)</translation>
    </message>
    <message>
        <source>Suspend All Breaks</source>
        <translation>暂停所有分类汇总</translation>
    </message>
    <message>
        <source>Activate All Breaks</source>
        <translation>启用所有分类汇总</translation>
    </message>
    <message>
        <source>active</source>
        <translation>已启用</translation>
    </message>
    <message>
        <source>suspended</source>
        <translation>已暂停</translation>
    </message>
</context>
<context>
    <name>vrel::ColumnPopupMenu</name>
    <message>
        <source>Show Data</source>
        <translation>显示数据</translation>
    </message>
    <message>
        <source>Hide Data</source>
        <translation>隐藏数据</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureBreakDialog</name>
    <message>
        <source>Data Field</source>
        <translation>数据字段</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>汇总方式</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureDesk</name>
    <message>
        <source>Period File</source>
        <translation>期间文件</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureDisplayDialogImpl</name>
    <message>
        <source>&lt;default&gt;</source>
        <translation>&lt;默认&gt;</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>示例：%1</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureLayoutDialog</name>
    <message>
        <source>Layout</source>
        <translation>布局</translation>
    </message>
    <message>
        <source>Use the buttons below to reorder the tabular data in the report. You will see the effects of reordering in the report in the main window</source>
        <translation>使用下面的按钮可重新排列报表中的表格数据。重新排列的效果会显示在主窗口的报表中。</translation>
    </message>
    <message>
        <source>By keyboard: Ctrl+Up and Ctrl+Down move a field within its area, Ctrl+Left and Ctrl+Right move it to the area beside it.</source>
        <translation>键盘操作：按 Ctrl+向上键或 Ctrl+向下键可在区域内移动字段，按 Ctrl+向左键或 Ctrl+向右键可将其移到相邻区域。</translation>
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
        <translation>单元格值</translation>
    </message>
</context>
<context>
    <name>vrel::DataTable</name>
    <message>
        <source>(Copy)</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>(Paste)</source>
        <translation>粘贴</translation>
    </message>
</context>
<context>
    <name>vrel::EditDesk</name>
    <message>
        <source>Cannot compute value</source>
        <translation>无法计算值</translation>
    </message>
    <message>
        <source>Cells that cannot be empty and stay as they were: %1 of %2.</source>
        <translation>因不能为空而保持不变的单元格：%1 个，共 %2 个。</translation>
    </message>
    <message>
        <source>Cells that do not take &quot;%1&quot; and stay as they were: %2 of %3.</source>
        <translation>因不接受“%1”而保持不变的单元格：%2 个，共 %3 个。</translation>
    </message>
</context>
<context>
    <name>vrel::ExprEdtrView</name>
    <message>
        <source>Cannot apply the inverse formula</source>
        <translation>无法应用反向公式</translation>
    </message>
    <message>
        <source>Please enter a formula.</source>
        <translation>请输入公式。</translation>
    </message>
    <message>
        <source>Cannot apply the formula</source>
        <translation>无法应用公式</translation>
    </message>
    <message>
        <source>Please enter a field name.</source>
        <translation>请输入字段名。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a field: formulas could not refer to it. A name must not hold colons or quotes, begin with &quot;#&quot; or be longer than 127 bytes.</source>
        <translation>“%1”不能用作字段名：公式无法引用它。字段名不得包含冒号或引号，不得以“#”开头，也不得超过 127 个字节。</translation>
    </message>
</context>
<context>
    <name>vrel::ExpressionErrorDialog</name>
    <message>
        <source>Expression Error</source>
        <translation>表达式错误</translation>
    </message>
    <message>
        <source>Syntax error in expression:</source>
        <translation>表达式语法错误：</translation>
    </message>
    <message>
        <source>Evaluation error in expression:</source>
        <translation>表达式计算错误：</translation>
    </message>
</context>
<context>
    <name>vrel::ExpressionsDialogImpl</name>
    <message>
        <source>&amp;New</source>
        <translation>新建(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>编辑(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Data Editor: missing selection</source>
        <translation>数据编辑器：未选择项目</translation>
    </message>
    <message>
        <source>Please select an expression to edit.</source>
        <translation>请选择要编辑的表达式。</translation>
    </message>
    <message>
        <source>Please select an expression to delete.</source>
        <translation>请选择要删除的表达式。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be deleted: it stands among the fields of the table.</source>
        <translation>无法删除“%1”：它位于表的字段之中。</translation>
    </message>
    <message>
        <source>The formulas of these fields refer to &quot;%1&quot; and will have no value without it:
%2
Delete &quot;%1&quot;?</source>
        <translation>以下字段的公式引用了“%1”，删除后将没有值：
%2
是否删除“%1”？</translation>
    </message>
    <message>
        <source>Data Editor: Delete Expression</source>
        <translation>数据编辑器：删除表达式</translation>
    </message>
</context>
<context>
    <name>vrel::FieldButton</name>
    <message>
        <source>Ctrl with an arrow key moves the field.</source>
        <translation>按 Ctrl+方向键可移动字段。</translation>
    </message>
</context>
<context>
    <name>vrel::FieldDialogImpl</name>
    <message>
        <source>Field</source>
        <translation>字段</translation>
    </message>
    <message>
        <source>Classification</source>
        <translation>分类</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Data Editor: classification error</source>
        <translation>数据编辑器：分类错误</translation>
    </message>
    <message>
        <source>There must always be at least one %1 field.</source>
        <translation>至少必须保留一个%1字段。</translation>
    </message>
    <message>
        <source>Some values cannot be kept in the new type of their field:</source>
        <translation>部分值无法以其字段的新类型保留：</translation>
    </message>
    <message>
        <source>%1 as %2: %3 of %4 values, the first is &quot;%5&quot;</source>
        <translation>%1 改为%2：%3 个值(共 %4 个)，第一个是“%5”</translation>
    </message>
    <message>
        <source>and more in %1 other fields</source>
        <translation>其他 %1 个字段中还有更多</translation>
    </message>
    <message>
        <source>They will be other values, and nothing brings them back. Change the types all the same?</source>
        <translation>这些值将会改变且无法恢复。是否仍要更改类型？</translation>
    </message>
</context>
<context>
    <name>vrel::FindBar</name>
    <message>
        <source>Ne&amp;xt</source>
        <translation>下一个(&amp;X)</translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>上一个(&amp;V)</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Continued from the top</source>
        <translation>已从顶部继续查找</translation>
    </message>
    <message>
        <source>Continued from the bottom</source>
        <translation>已从底部继续查找</translation>
    </message>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>查找(&amp;N)：</translation>
    </message>
    <message>
        <source>Close the find bar</source>
        <translation>关闭查找栏</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>关闭查找栏 (Esc)</translation>
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
        <translation>语法错误。</translation>
    </message>
    <message>
        <source>There is no function &quot;%1&quot;.</source>
        <translation>没有名为“%1”的函数。</translation>
    </message>
    <message>
        <source>Wrong number of arguments: %1</source>
        <translation>参数个数错误：%1</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;.</source>
        <translation>没有名为“%1”的字段。</translation>
    </message>
    <message>
        <source>The field &quot;%1&quot; holds no numbers.</source>
        <translation>字段“%1”不包含数字。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a function; write &quot;%1()&quot;.</source>
        <translation>“%1”是函数，请写成“%1()”。</translation>
    </message>
</context>
<context>
    <name>vrel::FormulaListDialog</name>
    <message>
        <source>There is not enough memory for this change.</source>
        <translation>内存不足，无法进行此更改。</translation>
    </message>
    <message>
        <source>The formula that is being edited is not applied yet. Discard it?</source>
        <translation>正在编辑的公式尚未应用。是否放弃？</translation>
    </message>
    <message>
        <source>Field Name</source>
        <translation>字段名</translation>
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
        <translation>行标签</translation>
    </message>
    <message>
        <source>Report data</source>
        <translation>报表数据</translation>
    </message>
</context>
<context>
    <name>vrel::FunctionsDialog</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
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
        <translation>其他字段都没有突出显示公式。</translation>
    </message>
    <message>
        <source>Takes over the highlight formula of another field.</source>
        <translation>采用其他字段的突出显示公式。</translation>
    </message>
    <message>
        <source>Cannot apply the highlight formula</source>
        <translation>无法应用突出显示公式</translation>
    </message>
</context>
<context>
    <name>vrel::HighlightingDialogImpl</name>
    <message>
        <source>&amp;Edit...</source>
        <translation>编辑(&amp;E)...</translation>
    </message>
    <message>
        <source>Data Editor: missing highlight</source>
        <translation>数据编辑器：未选择突出显示</translation>
    </message>
    <message>
        <source>Please select an highlight expression to edit</source>
        <translation>请选择要编辑的突出显示表达式。</translation>
    </message>
</context>
<context>
    <name>vrel::PrintOptionsDialogImpl</name>
    <message>
        <source>No Printers Available</source>
        <translation>没有可用的打印机</translation>
    </message>
</context>
<context>
    <name>vrel::SelectionStatus</name>
    <message>
        <source>What the selected cells come to</source>
        <translation>所选单元格的统计结果</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>正在统计…</translation>
    </message>
    <message>
        <source>Count: %1</source>
        <translation>计数：%1</translation>
    </message>
    <message>
        <source>Sum: %1</source>
        <translation>求和：%1</translation>
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
        <translation>输出：%1</translation>
    </message>
    <message>
        <source>Data Editor</source>
        <translation>数据编辑器</translation>
    </message>
    <message>
        <source>Data Editor: Working...</source>
        <translation>数据编辑器：正在处理...</translation>
    </message>
</context>
<context>
    <name>vrel::ZTabs</name>
    <message>
        <source>Previous page</source>
        <translation>上一页</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>下一页</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
</context>
</TS>
