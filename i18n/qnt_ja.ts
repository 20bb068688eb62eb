<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>BreaksDialog</name>
    <message>
        <source>Breaks</source>
        <translation>小計</translation>
    </message>
    <message>
        <source>A break adds a summary to the report where the value of its field changes.</source>
        <translation>小計は、フィールドの値が変わる箇所でレポートに集計を追加します。</translation>
    </message>
    <message>
        <source>Key Fields:</source>
        <translation>キーフィールド:</translation>
    </message>
    <message>
        <source>Enter or a double click defines a break, Space activates or suspends it</source>
        <translation>Enter キーまたはダブルクリックで小計を定義、Space キーで有効/無効を切り替え</translation>
    </message>
    <message>
        <source>&amp;Define...</source>
        <translation>定義(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>ConfigureBreakDialog</name>
    <message>
        <source>Define Break</source>
        <translation>小計の定義</translation>
    </message>
    <message>
        <source>Field:</source>
        <translation>フィールド:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>名前(&amp;N):</translation>
    </message>
    <message>
        <source>Acti&amp;ve</source>
        <translation>有効(&amp;V)</translation>
    </message>
    <message>
        <source>Put A &amp;Blank Row After Break</source>
        <translation>小計の後に空白行を挿入(&amp;B)</translation>
    </message>
    <message>
        <source>Break &amp;Frequency:</source>
        <translation>小計の頻度(&amp;F):</translation>
    </message>
    <message>
        <source>F&amp;irst Break:</source>
        <translation>最初の小計(&amp;I):</translation>
    </message>
    <message>
        <source>At Break, Compute</source>
        <translation>小計で計算する値</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>This break shows nothing: its field is neither in the rows nor in the columns of the report.</source>
        <translation>この小計は表示されません: フィールドがレポートの行にも列にもありません。</translation>
    </message>
    <message>
        <source>This break shows nothing: it is not active.</source>
        <translation>この小計は表示されません: 有効になっていません。</translation>
    </message>
    <message>
        <source>This break shows nothing: choose how often it comes.</source>
        <translation>この小計は表示されません: 頻度を選択してください。</translation>
    </message>
    <message>
        <source>This break shows nothing: choose what to compute for at least one data field.</source>
        <translation>この小計は表示されません: 1 つ以上のデータフィールドの計算方法を選択してください。</translation>
    </message>
</context>
<context>
    <name>ConfigureDisplayDialog</name>
    <message>
        <source>Display</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Data Fields</source>
        <translation>データフィールド</translation>
    </message>
    <message>
        <source>A&amp;vailable fields</source>
        <translation>使用可能なフィールド(&amp;V)</translation>
    </message>
    <message>
        <source>Show (Ordered)</source>
        <translation>表示するフィールド (表示順)</translation>
    </message>
    <message>
        <source>Available fields</source>
        <translation>使用可能なフィールド</translation>
    </message>
    <message>
        <source>&amp;Show &gt;</source>
        <translation>表示(&amp;S) &gt;</translation>
    </message>
    <message>
        <source>Show the selected fields as data</source>
        <translation>選択したフィールドをデータとして表示</translation>
    </message>
    <message>
        <source>&lt; &amp;Hide</source>
        <translation>&lt; 非表示(&amp;H)</translation>
    </message>
    <message>
        <source>Take the selected fields out of the report</source>
        <translation>選択したフィールドをレポートから除外</translation>
    </message>
    <message>
        <source>&amp;Up</source>
        <translation>上へ(&amp;U)</translation>
    </message>
    <message>
        <source>Move the selected fields up</source>
        <translation>選択したフィールドを上へ移動</translation>
    </message>
    <message>
        <source>Dow&amp;n</source>
        <translation>下へ(&amp;N)</translation>
    </message>
    <message>
        <source>Move the selected fields down</source>
        <translation>選択したフィールドを下へ移動</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>タイトル(&amp;T):</translation>
    </message>
    <message>
        <source>Show S&amp;ystem Title</source>
        <translation>システムタイトルを表示(&amp;Y)</translation>
    </message>
    <message>
        <source>Show Du&amp;plicate Labels</source>
        <translation>重複するラベルを表示(&amp;P)</translation>
    </message>
    <message>
        <source>Show &amp;Empty Rows and Columns</source>
        <translation>空の行と列を表示(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Date Format:</source>
        <translation>日付の形式(&amp;D):</translation>
    </message>
    <message>
        <source>%d day, %m month, %b month name, %Y year, %y year in two digits, %H hour, %M minute, %S second</source>
        <translation>%d 日、%m 月、%b 月名、%Y 年、%y 年 (2 桁)、%H 時、%M 分、%S 秒</translation>
    </message>
    <message>
        <source>P&amp;recision:</source>
        <translation>小数点以下(&amp;R):</translation>
    </message>
    <message>
        <source>Decimal Places</source>
        <translation>桁</translation>
    </message>
    <message>
        <source>Period &amp;File:</source>
        <translation>期間ファイル(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
</context>
<context>
    <name>ConfigureLayoutDialog</name>
    <message>
        <source>Reordering columns:</source>
        <translation>列の並べ替え:</translation>
    </message>
    <message>
        <source>Drag buttons up and down within the area below to rearrange column order</source>
        <translation>下の領域でボタンを上下にドラッグすると、列の順序を変更できます</translation>
    </message>
    <message>
        <source>Make a &amp;Column</source>
        <translation>列にする(&amp;C)</translation>
    </message>
    <message>
        <source>Creating tabs:</source>
        <translation>タブの作成:</translation>
    </message>
    <message>
        <source>Drag and drop buttons into this area to create tabs in the report</source>
        <translation>この領域にボタンをドラッグアンドドロップすると、レポートにタブを作成できます</translation>
    </message>
    <message>
        <source>Make &amp;Tabs</source>
        <translation>タブにする(&amp;T)</translation>
    </message>
    <message>
        <source>Spreading data horizontally:</source>
        <translation>データの横方向への展開:</translation>
    </message>
    <message>
        <source>Drag and drop buttons into this area to spread data horizontally.</source>
        <translation>この領域にボタンをドラッグアンドドロップすると、データを横方向に展開できます。</translation>
    </message>
    <message>
        <source>&amp;Spread Horizontally</source>
        <translation>横方向に展開(&amp;S)</translation>
    </message>
</context>
<context>
    <name>ExprEdtrViewBase</name>
    <message>
        <source>Expression Editor</source>
        <translation>式エディター</translation>
    </message>
    <message>
        <source>Field &amp;Name:</source>
        <translation>フィールド名(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Formula:</source>
        <translation>数式(&amp;F):</translation>
    </message>
    <message>
        <source>&amp;Inverse Formula (applied only when field is edited):</source>
        <translation>逆算式 (フィールドの編集時にのみ適用)(&amp;I):</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
</context>
<context>
    <name>ExpressionsDialog</name>
    <message>
        <source>Expressions</source>
        <translation>式</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>操作(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
</context>
<context>
    <name>FieldDialog</name>
    <message>
        <source>Configure Fields</source>
        <translation>フィールドの設定</translation>
    </message>
    <message>
        <source>Field, Classifications and Data Type</source>
        <translation>フィールドの分類とデータ型</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Data, can be edited</source>
        <translation>データ (編集可能)</translation>
    </message>
    <message>
        <source>Data, read only</source>
        <translation>データ (読み取り専用)</translation>
    </message>
    <message>
        <source>String</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>Boolean</source>
        <translation>論理値</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Expression</source>
        <translation>式</translation>
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
        <translation>%1 は既に存在します。
置き換えますか?</translation>
    </message>
</context>
<context>
    <name>FillCellsDialog</name>
    <message>
        <source>Fill Cells</source>
        <translation>セルへの一括入力</translation>
    </message>
    <message>
        <source>&amp;Value:</source>
        <translation>値(&amp;V):</translation>
    </message>
    <message>
        <source>A value as it is typed into a cell; for numbers also a formula</source>
        <translation>セルに入力するとおりの値 (数値の場合は数式も可)</translation>
    </message>
    <message>
        <source>Fill</source>
        <translation>入力先</translation>
    </message>
    <message>
        <source>&amp;Row</source>
        <translation>行(&amp;R)</translation>
    </message>
    <message>
        <source>Number of the row</source>
        <translation>行番号</translation>
    </message>
    <message>
        <source>C&amp;olumn</source>
        <translation>列(&amp;O)</translation>
    </message>
    <message>
        <source>Number of the column</source>
        <translation>列番号</translation>
    </message>
    <message>
        <source>&amp;Entire table</source>
        <translation>表全体(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>FormulaCheck</name>
    <message>
        <source>A name with an apostrophe and blanks or operators in it cannot be used in formulas: view files keep no double quotes around it.</source>
        <translation>アポストロフィと、空白または演算子を含む名前は数式で使用できません: ビュー ファイルは名前を囲む二重引用符を保持しません。</translation>
    </message>
</context>
<context>
    <name>FunctionsDialog</name>
    <message>
        <source>Expression Functions</source>
        <translation>式の関数</translation>
    </message>
    <message>
        <source>F&amp;ilter:</source>
        <translation>フィルター(&amp;I):</translation>
    </message>
    <message>
        <source>&amp;Functions</source>
        <translation>関数(&amp;F)</translation>
    </message>
    <message>
        <source>(drag and drop into field or highlight expressions)</source>
        <translation>(フィールドまたは強調表示の式にドラッグアンドドロップ)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
</context>
<context>
    <name>HighlightEdtrViewBase</name>
    <message>
        <source>Highlight Editor</source>
        <translation>強調表示エディター</translation>
    </message>
    <message>
        <source>Field Name:</source>
        <translation>フィールド名:</translation>
    </message>
    <message>
        <source>&amp;Highlight Formula:</source>
        <translation>強調表示の数式(&amp;H):</translation>
    </message>
    <message>
        <source>&amp;Set from source</source>
        <translation>他のフィールドから設定(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
</context>
<context>
    <name>HighlightingDialog</name>
    <message>
        <source>Highlighting</source>
        <translation>強調表示</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>操作(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
</context>
<context>
    <name>PrintOptionsDialog</name>
    <message>
        <source>Print Options</source>
        <translation>印刷オプション</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>&amp;Title:</source>
        <translation>タイトル(&amp;T):</translation>
    </message>
    <message>
        <source>&amp;Footer:</source>
        <translation>フッター(&amp;F):</translation>
    </message>
    <message>
        <source>Repeat &amp;Row Headings</source>
        <translation>行ラベルを繰り返す(&amp;R)</translation>
    </message>
    <message>
        <source>Repeat &amp;Column Headings</source>
        <translation>列ラベルを繰り返す(&amp;C)</translation>
    </message>
    <message>
        <source>Print All &amp;Z Dimensions on Separate Pages</source>
        <translation>すべての Z 次元を別々のページに印刷(&amp;Z)</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>Printer T&amp;ype:</source>
        <translation>プリンターの種類(&amp;Y):</translation>
    </message>
    <message>
        <source>&amp;Printer:</source>
        <translation>プリンター(&amp;P):</translation>
    </message>
    <message>
        <source>Print Co&amp;mmand:</source>
        <translation>印刷コマンド(&amp;M):</translation>
    </message>
    <message>
        <source>Runs in place of the printer; %s stands for the print file</source>
        <translation>プリンターの代わりに実行されます (%s は印刷ファイルを表します)</translation>
    </message>
    <message>
        <source>Print to fi&amp;le</source>
        <translation>ファイルへ出力(&amp;L)</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>ファイル名(&amp;N):</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)...</translation>
    </message>
    <message>
        <source>Scaling</source>
        <translation>拡大縮小</translation>
    </message>
    <message>
        <source>Fit &amp;Width to</source>
        <translation>幅を合わせる(&amp;W)</translation>
    </message>
    <message>
        <source>Pages across</source>
        <translation>横のページ数</translation>
    </message>
    <message>
        <source>Page(s)</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Fit &amp;Height to</source>
        <translation>高さを合わせる(&amp;H)</translation>
    </message>
    <message>
        <source>Pages down</source>
        <translation>縦のページ数</translation>
    </message>
    <message>
        <source>Fit on &amp;One Page</source>
        <translation>1 ページに収める(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Use Font Size</source>
        <translation>フォントサイズを使用(&amp;U)</translation>
    </message>
    <message>
        <source>Font size</source>
        <translation>フォントサイズ</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>ポイント</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>Pap&amp;er:</source>
        <translation>用紙サイズ(&amp;E):</translation>
    </message>
    <message>
        <source>Orientation:</source>
        <translation>印刷の向き:</translation>
    </message>
    <message>
        <source>Portra&amp;it</source>
        <translation>縦(&amp;I)</translation>
    </message>
    <message>
        <source>Land&amp;scape</source>
        <translation>横(&amp;S)</translation>
    </message>
    <message>
        <source>Show &amp;Grid</source>
        <translation>枠線を表示(&amp;G)</translation>
    </message>
    <message>
        <source>ASCII</source>
        <translation>ASCII</translation>
    </message>
    <message>
        <source>Page &amp;Width (chars)</source>
        <translation>1 行の文字数(&amp;X)</translation>
    </message>
    <message>
        <source>Page Width (chars)</source>
        <translation>1 行の文字数</translation>
    </message>
    <message>
        <source>Page &amp;Height (chars)</source>
        <translation>1 ページの行数(&amp;V)</translation>
    </message>
    <message>
        <source>Page Height (chars)</source>
        <translation>1 ページの行数</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>C&amp;omplete Document</source>
        <translation>完全な文書として出力(&amp;J)</translation>
    </message>
    <message>
        <source>Border&amp;s</source>
        <translation>罫線(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>適用(&amp;A)</translation>
    </message>
    <message>
        <source>Apply an&amp;d Print</source>
        <translation>適用して印刷(&amp;D)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
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
        <translation>印刷(&amp;P)...</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>エクスポート(&amp;E)</translation>
    </message>
    <message>
        <source>Export &amp;As...</source>
        <translation>名前を付けてエクスポート(&amp;A)...</translation>
    </message>
    <message>
        <source>&amp;Open View...</source>
        <translation>ビューを開く(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Save View</source>
        <translation>ビューを保存(&amp;S)</translation>
    </message>
    <message>
        <source>Save &amp;View As...</source>
        <translation>名前を付けてビューを保存(&amp;V)...</translation>
    </message>
    <message>
        <source>&amp;Import Expressions...</source>
        <translation>式のインポート(&amp;I)...</translation>
    </message>
    <message>
        <source>Import &amp;Highlighting...</source>
        <translation>強調表示のインポート(&amp;H)...</translation>
    </message>
    <message>
        <source>&amp;Delete View...</source>
        <translation>ビューの削除(&amp;D)...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;All Inverse Formulas</source>
        <translation>すべての逆算式(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Fill Cells...</source>
        <translation>セルへの一括入力(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;Recalculate</source>
        <translation>再計算(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Swap Data Row/Column</source>
        <translation>データの行/列の入れ替え(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Display...</source>
        <translation>表示(&amp;D)...</translation>
    </message>
    <message>
        <source>Lay&amp;out...</source>
        <translation>レイアウト(&amp;O)...</translation>
    </message>
    <message>
        <source>&amp;Breaks...</source>
        <translation>小計(&amp;B)...</translation>
    </message>
    <message>
        <source>&amp;Expressions...</source>
        <translation>式(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Highlighting...</source>
        <translation>強調表示(&amp;H)...</translation>
    </message>
    <message>
        <source>&amp;List Functions...</source>
        <translation>関数一覧(&amp;L)...</translation>
    </message>
    <message>
        <source>&amp;Fields...</source>
        <translation>フィールド(&amp;F)...</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
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
        <translation>ファイル「%1」は読み取り専用のため、モデルの場所を保存できません。書き込み可能であることを確認してください。</translation>
    </message>
    <message>
        <source>The file &quot;%1&quot; cannot be written.</source>
        <translation>ファイル「%1」に書き込めません。</translation>
    </message>
    <message>
        <source>Applying inverse formulas...</source>
        <translation>逆算式を適用しています...</translation>
    </message>
    <message>
        <source>Pasting...</source>
        <translation>貼り付けています...</translation>
    </message>
    <message>
        <source>Recalculating formulas...</source>
        <translation>数式を再計算しています...</translation>
    </message>
    <message>
        <source>Computing colours...</source>
        <translation>色を計算しています...</translation>
    </message>
    <message>
        <source>Region for pasting does match copied data region.</source>
        <translation>貼り付け先の範囲が、コピーしたデータの範囲と一致しません。</translation>
    </message>
    <message>
        <source>Column range is outside of table size.</source>
        <translation>列の範囲が表のサイズを超えています。</translation>
    </message>
    <message>
        <source>Row range is outside of table size.</source>
        <translation>行の範囲が表のサイズを超えています。</translation>
    </message>
    <message>
        <source>Selected cell in paste area is read only and has not been changed.</source>
        <translation>貼り付け範囲内の選択したセルは読み取り専用のため、変更されませんでした。</translation>
    </message>
    <message>
        <source>At least one cell in paste area is read only and has not been changed.</source>
        <translation>貼り付け範囲内の少なくとも 1 つのセルは読み取り専用のため、変更されませんでした。</translation>
    </message>
    <message>
        <source>One or more cells in paste area are read only and have not been changed.</source>
        <translation>貼り付け範囲内の 1 つ以上のセルは読み取り専用のため、変更されませんでした。</translation>
    </message>
    <message>
        <source>QNT Error</source>
        <translation>QNT エラー</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot;.</source>
        <translation>ファイル「%1」を開けません。</translation>
    </message>
    <message>
        <source>Errors in period file &quot;%1&quot;.</source>
        <translation>期間ファイル「%1」にエラーがあります。</translation>
    </message>
    <message>
        <source>Default View Title</source>
        <translation>既定のビュータイトル</translation>
    </message>
    <message>
        <source>Exporting...</source>
        <translation>エクスポートしています...</translation>
    </message>
    <message>
        <source>Error: Could not open file &quot;%1&quot;.</source>
        <translation>エラー: ファイル「%1」を開けませんでした。</translation>
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
        <translation>CSV (コンマ区切り) (*.csv)</translation>
    </message>
    <message>
        <source>Printing...</source>
        <translation>印刷しています...</translation>
    </message>
    <message>
        <source>Unable to print to &quot;%1&quot;.</source>
        <translation>「%1」に印刷できません。</translation>
    </message>
    <message>
        <source>Closing file &quot;%1&quot; fails.</source>
        <translation>ファイル「%1」を閉じることができませんでした。</translation>
    </message>
    <message>
        <source>Error: Invalid output file path &quot;%1&quot;.</source>
        <translation>エラー: 出力ファイルのパス「%1」が無効です。</translation>
    </message>
    <message>
        <source>Error: Cannot find input file &quot;%1&quot;.</source>
        <translation>エラー: 入力ファイル「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>Error: Data does not match fields</source>
        <translation>エラー: データがフィールドと一致しません</translation>
    </message>
    <message>
        <source>Cannot open &quot;%1&quot;</source>
        <translation>「%1」を開けません</translation>
    </message>
    <message>
        <source>Open View</source>
        <translation>ビューを開く</translation>
    </message>
    <message>
        <source>Do you want to save changes to &quot;%1&quot;?</source>
        <translation>「%1」への変更を保存しますか?</translation>
    </message>
    <message>
        <source>PostScript (*.ps)</source>
        <translation>PostScript (*.ps)</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>テキスト (*.txt)</translation>
    </message>
    <message>
        <source>HTML (*.html)</source>
        <translation>HTML (*.html)</translation>
    </message>
    <message>
        <source>Matching views (%1);;All views (*.view)</source>
        <translation>対応するビュー (%1);;すべてのビュー (*.view)</translation>
    </message>
    <message>
        <source>File name &quot;%1&quot; contains a character that is not allowed.</source>
        <translation>ファイル名「%1」に使用できない文字が含まれています。</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot; for loading expressions.</source>
        <translation>式を読み込むためのファイル「%1」を開けません。</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; does not match data</source>
        <translation>ビューファイル「%1」がデータと一致しません</translation>
    </message>
    <message>
        <source>Save View As</source>
        <translation>名前を付けてビューを保存</translation>
    </message>
    <message>
        <source>Delete View</source>
        <translation>ビューの削除</translation>
    </message>
    <message>
        <source>Delete view &quot;%1&quot;?</source>
        <translation>ビュー「%1」を削除しますか?</translation>
    </message>
    <message>
        <source>Cannot delete &quot;%1&quot;.</source>
        <translation>「%1」を削除できません。</translation>
    </message>
    <message>
        <source>Unable to open file &quot;%1&quot; for saving.</source>
        <translation>保存先のファイル「%1」を開けません。</translation>
    </message>
    <message>
        <source>Data Editor</source>
        <translation>データエディター</translation>
    </message>
    <message>
        <source>Warning: Some data with non-unique keys was removed.</source>
        <translation>警告: キーが重複している一部のデータを削除しました。</translation>
    </message>
    <message>
        <source>Not enough keys to properly display data
extracted by report
&quot;%s&quot;.</source>
        <translation>キーが不足しているため、レポート
「%s」
で抽出したデータを正しく表示できません。</translation>
    </message>
    <message>
        <source>Page %1.%2</source>
        <translation>ページ %1.%2</translation>
    </message>
    <message>
        <source>Error attempting to print. Print cancelled.</source>
        <translation>印刷中にエラーが発生しました。印刷を中止しました。</translation>
    </message>
    <message>
        <source>Export As</source>
        <translation>名前を付けてエクスポート</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>ファイルへ出力</translation>
    </message>
    <message>
        <source>Searching...</source>
        <translation>検索しています...</translation>
    </message>
    <message>
        <source>Data Editor: Delete View</source>
        <translation>データエディター: ビューの削除</translation>
    </message>
    <message>
        <source>Please specify file name for saving.</source>
        <translation>保存するファイル名を指定してください。</translation>
    </message>
    <message>
        <source>Invalid Row or Column to fill.</source>
        <translation>入力先の行または列が無効です。</translation>
    </message>
    <message>
        <source>Invalid Row or Column.</source>
        <translation>行または列が無効です。</translation>
    </message>
    <message>
        <source>Cannot perform change - field is read-only.</source>
        <translation>フィールドが読み取り専用のため、変更できません。</translation>
    </message>
    <message>
        <source>Filling cells...</source>
        <translation>セルに入力しています...</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Every Change</source>
        <translation>変化するたび</translation>
    </message>
    <message>
        <source>Every 2nd Change</source>
        <translation>変化 2 回ごと</translation>
    </message>
    <message>
        <source>Every 3rd Change</source>
        <translation>変化 3 回ごと</translation>
    </message>
    <message>
        <source>Every 4th Change</source>
        <translation>変化 4 回ごと</translation>
    </message>
    <message>
        <source>Every 5th Change</source>
        <translation>変化 5 回ごと</translation>
    </message>
    <message>
        <source>Every 6th Change</source>
        <translation>変化 6 回ごと</translation>
    </message>
    <message>
        <source>Every 7th Change</source>
        <translation>変化 7 回ごと</translation>
    </message>
    <message>
        <source>Every 8th Change</source>
        <translation>変化 8 回ごと</translation>
    </message>
    <message>
        <source>Every 9th Change</source>
        <translation>変化 9 回ごと</translation>
    </message>
    <message>
        <source>Every 10th Change</source>
        <translation>変化 10 回ごと</translation>
    </message>
    <message>
        <source>Every 12th Change</source>
        <translation>変化 12 回ごと</translation>
    </message>
    <message>
        <source>Every 24th Change</source>
        <translation>変化 24 回ごと</translation>
    </message>
    <message>
        <source>Every 28th Change</source>
        <translation>変化 28 回ごと</translation>
    </message>
    <message>
        <source>At End</source>
        <translation>末尾</translation>
    </message>
    <message>
        <source>Same as Frequency</source>
        <translation>頻度と同じ</translation>
    </message>
    <message>
        <source>At 1st Change</source>
        <translation>1 回目の変化</translation>
    </message>
    <message>
        <source>At 2nd Change</source>
        <translation>2 回目の変化</translation>
    </message>
    <message>
        <source>At 3rd Change</source>
        <translation>3 回目の変化</translation>
    </message>
    <message>
        <source>At 4th Change</source>
        <translation>4 回目の変化</translation>
    </message>
    <message>
        <source>At 5th Change</source>
        <translation>5 回目の変化</translation>
    </message>
    <message>
        <source>At 6th Change</source>
        <translation>6 回目の変化</translation>
    </message>
    <message>
        <source>At 7th Change</source>
        <translation>7 回目の変化</translation>
    </message>
    <message>
        <source>At 8th Change</source>
        <translation>8 回目の変化</translation>
    </message>
    <message>
        <source>At 9th Change</source>
        <translation>9 回目の変化</translation>
    </message>
    <message>
        <source>At 10th Change</source>
        <translation>10 回目の変化</translation>
    </message>
    <message>
        <source>At 11th Change</source>
        <translation>11 回目の変化</translation>
    </message>
    <message>
        <source>Every %1 Changes</source>
        <translation>変化 %1 回ごと</translation>
    </message>
    <message>
        <source>At Change %1</source>
        <translation>%1 回目の変化</translation>
    </message>
    <message>
        <source>At End (%1)</source>
        <translation>末尾 (%1)</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Nil</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Sum</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小値</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大値</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>Avg</source>
        <translation>平均</translation>
    </message>
    <message>
        <source>First</source>
        <translation>最初</translation>
    </message>
    <message>
        <source>1st</source>
        <translation>最初</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>最後</translation>
    </message>
    <message>
        <source>Copying...</source>
        <translation>コピーしています...</translation>
    </message>
    <message>
        <source>The selection is too large to be copied.</source>
        <translation>選択範囲が大きすぎるため、コピーできません。</translation>
    </message>
    <message>
        <source>The change could not be sent to the host application: its message file cannot be written.</source>
        <translation>メッセージファイルに書き込めないため、変更をホストアプリケーションに送信できませんでした。</translation>
    </message>
    <message>
        <source>The values of &quot;%1&quot; cannot be changed.</source>
        <translation>「%1」の値は変更できません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date.</source>
        <translation>「%1」は日付ではありません。</translation>
    </message>
    <message>
        <source>Some of the pasted texts are no values and have not been set; the first is &quot;%1&quot;.</source>
        <translation>貼り付けたテキストの一部は値として無効なため、設定されませんでした。最初のテキストは「%1」です。</translation>
    </message>
    <message>
        <source>Import Expressions</source>
        <translation>式のインポート</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; has no expressions.</source>
        <translation>ビューファイル「%1」に式がありません。</translation>
    </message>
    <message>
        <source>There is not enough memory for the imported expressions.</source>
        <translation>インポートした式に必要なメモリが不足しています。</translation>
    </message>
    <message>
        <source>Import Highlighting</source>
        <translation>強調表示のインポート</translation>
    </message>
    <message>
        <source>View file &quot;%1&quot; has none of the fields of this report.</source>
        <translation>ビューファイル「%1」に、このレポートのフィールドがありません。</translation>
    </message>
</context>
<context>
    <name>vrel::BreaksDialogImpl</name>
    <message>
        <source>Field</source>
        <translation>フィールド</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Active</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>頻度</translation>
    </message>
    <message>
        <source>First Break</source>
        <translation>最初の小計</translation>
    </message>
    <message>
        <source>Computes</source>
        <translation>計算内容</translation>
    </message>
    <message>
        <source>&amp;Actions</source>
        <translation>操作(&amp;O)</translation>
    </message>
    <message>
        <source>Suspend All Breaks</source>
        <translation>すべての小計を無効化</translation>
    </message>
    <message>
        <source>Activate All Breaks</source>
        <translation>すべての小計を有効化</translation>
    </message>
    <message>
        <source>active</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>suspended</source>
        <translation>無効</translation>
    </message>
</context>
<context>
    <name>vrel::ColumnPopupMenu</name>
    <message>
        <source>Show Data</source>
        <translation>データを表示</translation>
    </message>
    <message>
        <source>Hide Data</source>
        <translation>データを非表示</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureBreakDialog</name>
    <message>
        <source>Data Field</source>
        <translation>データフィールド</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>計算方法</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureDesk</name>
    <message>
        <source>Period File</source>
        <translation>期間ファイル</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureDisplayDialogImpl</name>
    <message>
        <source>&lt;default&gt;</source>
        <translation>&lt;既定&gt;</translation>
    </message>
    <message>
        <source>Example: %1</source>
        <translation>例: %1</translation>
    </message>
</context>
<context>
    <name>vrel::ConfigureLayoutDialog</name>
    <message>
        <source>Layout</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>Use the buttons below to reorder the tabular data in the report. You will see the effects of reordering in the report in the main window</source>
        <translation>下のボタンを使用して、レポートの表データを並べ替えます。並べ替えの結果は、メインウィンドウのレポートに反映されます</translation>
    </message>
    <message>
        <source>By keyboard: Ctrl+Up and Ctrl+Down move a field within its area, Ctrl+Left and Ctrl+Right move it to the area beside it.</source>
        <translation>キーボード操作: Ctrl+↑ と Ctrl+↓ でフィールドを領域内で移動し、Ctrl+← と Ctrl+→ で隣の領域に移動します。</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>上へ移動(&amp;U)</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>下へ移動(&amp;D)</translation>
    </message>
</context>
<context>
    <name>vrel::CopyPasteLineEdit</name>
    <message>
        <source>Cell value</source>
        <translation>セルの値</translation>
    </message>
</context>
<context>
    <name>vrel::DataTable</name>
    <message>
        <source>(Copy)</source>
        <translation>(コピー)</translation>
    </message>
    <message>
        <source>(Paste)</source>
        <translation>(貼り付け)</translation>
    </message>
</context>
<context>
    <name>vrel::EditDesk</name>
    <message>
        <source>Cannot compute value</source>
        <translation>値を計算できません</translation>
    </message>
    <message>
        <source>Cells that cannot be empty and stay as they were: %1 of %2.</source>
        <translation>空にできないため変更されなかったセル: %2 個中 %1 個。</translation>
    </message>
    <message>
        <source>Cells that do not take &quot;%1&quot; and stay as they were: %2 of %3.</source>
        <translation>「%1」を入力できないため変更されなかったセル: %3 個中 %2 個。</translation>
    </message>
</context>
<context>
    <name>vrel::ExprEdtrView</name>
    <message>
        <source>Cannot apply the inverse formula</source>
        <translation>逆算式を適用できません</translation>
    </message>
    <message>
        <source>Please enter a formula.</source>
        <translation>数式を入力してください。</translation>
    </message>
    <message>
        <source>Cannot apply the formula</source>
        <translation>数式を適用できません</translation>
    </message>
    <message>
        <source>Please enter a field name.</source>
        <translation>フィールド名を入力してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be the name of a field: formulas could not refer to it. A name must not hold colons or quotes, begin with &quot;#&quot; or be longer than 127 bytes.</source>
        <translation>数式から参照できないため、「%1」はフィールド名に使用できません。コロンや引用符を含む名前、「#」で始まる名前、127 バイトを超える名前は使用できません。</translation>
    </message>
</context>
<context>
    <name>vrel::ExpressionErrorDialog</name>
    <message>
        <source>Expression Error</source>
        <translation>式のエラー</translation>
    </message>
    <message>
        <source>Syntax error in expression:</source>
        <translation>式の構文エラー:</translation>
    </message>
    <message>
        <source>Evaluation error in expression:</source>
        <translation>式の評価エラー:</translation>
    </message>
</context>
<context>
    <name>vrel::ExpressionsDialogImpl</name>
    <message>
        <source>&amp;New</source>
        <translation>新規(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Edit...</source>
        <translation>編集(&amp;E)...</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Data Editor: missing selection</source>
        <translation>データエディター: 選択なし</translation>
    </message>
    <message>
        <source>Please select an expression to edit.</source>
        <translation>編集する式を選択してください。</translation>
    </message>
    <message>
        <source>Please select an expression to delete.</source>
        <translation>削除する式を選択してください。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be deleted: it stands among the fields of the table.</source>
        <translation>「%1」は表のフィールドの間にあるため、削除できません。</translation>
    </message>
    <message>
        <source>The formulas of these fields refer to &quot;%1&quot; and will have no value without it:
%2
Delete &quot;%1&quot;?</source>
        <translation>次のフィールドの数式は「%1」を参照しているため、削除すると値がなくなります:
%2
「%1」を削除しますか?</translation>
    </message>
    <message>
        <source>Data Editor: Delete Expression</source>
        <translation>データエディター: 式の削除</translation>
    </message>
</context>
<context>
    <name>vrel::FieldButton</name>
    <message>
        <source>Ctrl with an arrow key moves the field.</source>
        <translation>Ctrl キーと方向キーでフィールドを移動します。</translation>
    </message>
</context>
<context>
    <name>vrel::FieldDialogImpl</name>
    <message>
        <source>Field</source>
        <translation>フィールド</translation>
    </message>
    <message>
        <source>Classification</source>
        <translation>分類</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>データ型</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>データ</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Data Editor: classification error</source>
        <translation>データエディター: 分類エラー</translation>
    </message>
    <message>
        <source>There must always be at least one %1 field.</source>
        <translation>%1フィールドは常に 1 つ以上必要です。</translation>
    </message>
    <message>
        <source>Some values cannot be kept in the new type of their field:</source>
        <translation>フィールドの新しいデータ型では保持できない値があります:</translation>
    </message>
    <message>
        <source>%1 as %2: %3 of %4 values, the first is &quot;%5&quot;</source>
        <translation>%1 (新しい型: %2): 値 %4 個中 %3 個、最初の値は「%5」</translation>
    </message>
    <message>
        <source>and more in %1 other fields</source>
        <translation>その他 %1 個のフィールドにもあります</translation>
    </message>
    <message>
        <source>They will be other values, and nothing brings them back. Change the types all the same?</source>
        <translation>これらの値は別の値に変わり、元に戻すことはできません。データ型を変更しますか?</translation>
    </message>
</context>
<context>
    <name>vrel::FindBar</name>
    <message>
        <source>Ne&amp;xt</source>
        <translation>次へ(&amp;X)</translation>
    </message>
    <message>
        <source>Pre&amp;vious</source>
        <translation>前へ(&amp;V)</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>キャンセルしました</translation>
    </message>
    <message>
        <source>Continued from the top</source>
        <translation>先頭に戻って検索しました</translation>
    </message>
    <message>
        <source>Continued from the bottom</source>
        <translation>末尾に戻って検索しました</translation>
    </message>
    <message>
        <source>Fi&amp;nd:</source>
        <translation>検索(&amp;N):</translation>
    </message>
    <message>
        <source>Close the find bar</source>
        <translation>検索バーを閉じる</translation>
    </message>
    <message>
        <source>Close the find bar (Esc)</source>
        <translation>検索バーを閉じる (Esc)</translation>
    </message>
</context>
<context>
    <name>vrel::FormulaEdit</name>
    <message>
        <source>The formula is not complete.</source>
        <translation>数式が完成していません。</translation>
    </message>
    <message>
        <source>Syntax error.</source>
        <translation>構文エラーです。</translation>
    </message>
    <message>
        <source>There is no function &quot;%1&quot;.</source>
        <translation>関数「%1」はありません。</translation>
    </message>
    <message>
        <source>Wrong number of arguments: %1</source>
        <translation>引数の数が正しくありません: %1</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;.</source>
        <translation>フィールド「%1」はありません。</translation>
    </message>
    <message>
        <source>The field &quot;%1&quot; holds no numbers.</source>
        <translation>フィールド「%1」は数値ではありません。</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a function; write &quot;%1()&quot;.</source>
        <translation>「%1」は関数です。「%1()」と入力してください。</translation>
    </message>
</context>
<context>
    <name>vrel::FormulaListDialog</name>
    <message>
        <source>There is not enough memory for this change.</source>
        <translation>この変更に必要なメモリが不足しています。</translation>
    </message>
    <message>
        <source>The formula that is being edited is not applied yet. Discard it?</source>
        <translation>編集中の数式はまだ適用されていません。破棄しますか?</translation>
    </message>
    <message>
        <source>Field Name</source>
        <translation>フィールド名</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>数式</translation>
    </message>
</context>
<context>
    <name>vrel::FrozenColumnTablesImpl</name>
    <message>
        <source>Row labels</source>
        <translation>行ラベル</translation>
    </message>
    <message>
        <source>Report data</source>
        <translation>レポートのデータ</translation>
    </message>
</context>
<context>
    <name>vrel::FunctionsDialog</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>書式</translation>
    </message>
</context>
<context>
    <name>vrel::HighlightEdtrView</name>
    <message>
        <source>No other field has a highlight formula.</source>
        <translation>強調表示の数式を持つフィールドは他にありません。</translation>
    </message>
    <message>
        <source>Takes over the highlight formula of another field.</source>
        <translation>別のフィールドの強調表示の数式を使用します。</translation>
    </message>
    <message>
        <source>Cannot apply the highlight formula</source>
        <translation>強調表示の数式を適用できません</translation>
    </message>
</context>
<context>
    <name>vrel::HighlightingDialogImpl</name>
    <message>
        <source>&amp;Edit...</source>
        <translation>編集(&amp;E)...</translation>
    </message>
    <message>
        <source>Data Editor: missing highlight</source>
        <translation>データエディター: 強調表示の選択なし</translation>
    </message>
    <message>
        <source>Please select an highlight expression to edit</source>
        <translation>編集する強調表示の式を選択してください</translation>
    </message>
</context>
<context>
    <name>vrel::PrintOptionsDialogImpl</name>
    <message>
        <source>No Printers Available</source>
        <translation>使用できるプリンターがありません</translation>
    </message>
</context>
<context>
    <name>vrel::SelectionStatus</name>
    <message>
        <source>What the selected cells come to</source>
        <translation>選択したセルの集計値</translation>
    </message>
    <message>
        <source>Counting…</source>
        <translation>計算中…</translation>
    </message>
    <message>
        <source>Count: %1</source>
        <translation>データの個数: %1</translation>
    </message>
    <message>
        <source>Sum: %1</source>
        <translation>合計: %1</translation>
    </message>
    <message>
        <source>Average: %1</source>
        <translation>平均: %1</translation>
    </message>
    <message>
        <source>Minimum: %1</source>
        <translation>最小: %1</translation>
    </message>
    <message>
        <source>Maximum: %1</source>
        <translation>最大: %1</translation>
    </message>
</context>
<context>
    <name>vrel::VrelMainWindow</name>
    <message>
        <source>Output of: %1</source>
        <translation>%1 の出力</translation>
    </message>
    <message>
        <source>Data Editor</source>
        <translation>データエディター</translation>
    </message>
    <message>
        <source>Data Editor: Working...</source>
        <translation>データエディター: 処理しています...</translation>
    </message>
</context>
<context>
    <name>vrel::ZTabs</name>
    <message>
        <source>Previous page</source>
        <translation>前のページ</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>次のページ</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
</context>
</TS>
