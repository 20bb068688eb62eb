<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
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
