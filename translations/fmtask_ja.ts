<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>FileSaveDialog</name>
    <message>
        <source>Vellumio</source>
        <translation>Vellumio</translation>
    </message>
    <message>
        <source>Please, define name and format of printed file and save.</source>
        <translation>印刷ファイルの名前と形式を指定して保存してください。</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>名前を付けて保存...</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>このフォルダーへの書き込み権限がありません。
別のフォルダーを選択してください。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Vellumio</source>
        <translation>Vellumio</translation>
    </message>
    <message>
        <source>BMP</source>
        <translation>BMP</translation>
    </message>
    <message>
        <source>Print As BMP</source>
        <translation>BMP として印刷</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>Print As PNG</source>
        <translation>PNG として印刷</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Print As JPEG</source>
        <translation>JPEG として印刷</translation>
    </message>
    <message>
        <source>Quality of Image compression </source>
        <translation>画像の圧縮品質 </translation>
    </message>
    <message>
        <source>JP2</source>
        <translation>JP2</translation>
    </message>
    <message>
        <source>Print As JPEG2000</source>
        <translation>JPEG2000 として印刷</translation>
    </message>
    <message>
        <source>TIFF</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>Print As TIFF</source>
        <translation>TIFF として印刷</translation>
    </message>
    <message>
        <source>Quality of Image compression (JPEG)</source>
        <translation>画像の圧縮品質 (JPEG)</translation>
    </message>
    <message>
        <source>Method of compression</source>
        <translation>圧縮方式</translation>
    </message>
    <message>
        <source>LZW</source>
        <translation>LZW</translation>
    </message>
    <message>
        <source>ZIP</source>
        <translation>ZIP</translation>
    </message>
    <message>
        <source>PACKBITS</source>
        <translation>PACKBITS</translation>
    </message>
    <message>
        <source>FAX4</source>
        <translation>FAX4</translation>
    </message>
    <message>
        <source>FAX3</source>
        <translation>FAX3</translation>
    </message>
    <message>
        <source>MultiPage</source>
        <translation>複数ページ</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>Print As GIF</source>
        <translation>GIF として印刷</translation>
    </message>
    <message>
        <source>SWF</source>
        <translation>SWF</translation>
    </message>
    <message>
        <source>Print As SWF</source>
        <translation>SWF として印刷</translation>
    </message>
    <message>
        <source>Quality of image </source>
        <translation>画質 </translation>
    </message>
    <message>
        <source>Animate</source>
        <translation>アニメーション</translation>
    </message>
    <message>
        <source> Protect SWF</source>
        <translation> SWF を保護</translation>
    </message>
    <message>
        <source>Extract text to file</source>
        <translation>テキストをファイルに抽出</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>Add Text Layer</source>
        <translation>テキスト層を追加</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Print As PDF</source>
        <translation>PDF として印刷</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>詳細設定</translation>
    </message>
    <message>
        <source>RTF</source>
        <translation>RTF</translation>
    </message>
    <message>
        <source>Print As RTF</source>
        <translation>RTF として印刷</translation>
    </message>
    <message>
        <source>XLS</source>
        <translation>XLS</translation>
    </message>
    <message>
        <source>Print As MS Office  Excel</source>
        <translation>MS Office Excel として印刷</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>Print As HTML</source>
        <translation>HTML として印刷</translation>
    </message>
    <message>
        <source>Quality of Image  </source>
        <translation>画質  </translation>
    </message>
    <message>
        <source>DjVu</source>
        <translation>DjVu</translation>
    </message>
    <message>
        <source>Print As DjVu</source>
        <translation>DjVu として印刷</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Add &quot;1&quot; to first file name</source>
        <translation>最初のファイル名に「1」を付ける</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Run application</source>
        <translation>アプリを実行</translation>
    </message>
    <message>
        <source>&lt;!DOCTYPE HTML PUBLIC &quot;-//W3C//DTD HTML 4.0//EN&quot; &quot;http://www.w3.org/TR/REC-html40/strict.dtd&quot;&gt;
&lt;html&gt;&lt;head&gt;&lt;meta name=&quot;qrichtext&quot; content=&quot;1&quot; /&gt;&lt;style type=&quot;text/css&quot;&gt;
p, li { white-space: pre-wrap; }
&lt;/style&gt;&lt;/head&gt;&lt;body style=&quot; font-family:&apos;MS Shell Dlg 2&apos;; font-size:8.25pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;This option allows Vellumio to open &lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;printed document for a view.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</source>
        <translation>&lt;!DOCTYPE HTML PUBLIC &quot;-//W3C//DTD HTML 4.0//EN&quot; &quot;http://www.w3.org/TR/REC-html40/strict.dtd&quot;&gt;
&lt;html&gt;&lt;head&gt;&lt;meta name=&quot;qrichtext&quot; content=&quot;1&quot; /&gt;&lt;style type=&quot;text/css&quot;&gt;
p, li { white-space: pre-wrap; }
&lt;/style&gt;&lt;/head&gt;&lt;body style=&quot; font-family:&apos;MS Shell Dlg 2&apos;; font-size:8.25pt; font-weight:400; font-style:normal;&quot;&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;このオプションを使うと、Vellumio が &lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;印刷した文書を開いて表示します。&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Send to EMail</source>
        <translation>メールで送信</translation>
    </message>
    <message>
        <source>Sends printed files via email.</source>
        <translation>印刷したファイルをメールで送信します。</translation>
    </message>
    <message>
        <source>TCP delivery</source>
        <translation>TCP で送信</translation>
    </message>
    <message>
        <source>Sends printed files via TCP protocol</source>
        <translation>印刷したファイルを TCP プロトコルで送信します</translation>
    </message>
    <message>
        <source>FTP delivery</source>
        <translation>FTP で送信</translation>
    </message>
    <message>
        <source>Sends printed files via FTP protocol</source>
        <translation>印刷したファイルを FTP プロトコルで送信します</translation>
    </message>
    <message>
        <source>Draw watermarks Image</source>
        <translation>画像の透かし</translation>
    </message>
    <message>
        <source>Enables printing of chosen image as watermark</source>
        <translation>選択した画像を透かしとして印刷します</translation>
    </message>
    <message>
        <source>Draw watermarks Text</source>
        <translation>テキストの透かし</translation>
    </message>
    <message>
        <source>Enables printing of chosen text as watermark</source>
        <translation>選択したテキストを透かしとして印刷します</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Cancel Print</source>
        <translation>印刷中止</translation>
    </message>
    <message>
        <source>Show this dialog next time</source>
        <translation>次回もこのダイアログを表示</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>名前を付けて保存...</translation>
    </message>
    <message>
        <source>
This directory doesn&apos;t exist.

Please choose correct directory</source>
        <translation>
このフォルダーは存在しません。

正しいフォルダーを選択してください</translation>
    </message>
    <message>
        <source> already exists.
</source>
        <translation> は既に存在します。
</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>置き換えますか？</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>このフォルダーへの書き込み権限がありません。
別のフォルダーを選択してください。</translation>
    </message>
    <message>
        <source>SWF password</source>
        <translation>SWF のパスワード</translation>
    </message>
    <message>
        <source>Output file</source>
        <translation>出力ファイル</translation>
    </message>
    <message>
        <source>Number of the first file</source>
        <translation>最初のファイルの番号</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>出力ファイルを選択</translation>
    </message>
</context>
<context>
    <name>pdfprotect</name>
    <message>
        <source> Advanced PDF Settings </source>
        <translation> PDF の詳細設定 </translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Document Info</source>
        <translation>文書情報</translation>
    </message>
    <message>
        <source>PDF Information</source>
        <translation>PDF 情報</translation>
    </message>
    <message>
        <source>Title </source>
        <translation>タイトル </translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>サブタイトル</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>作成者</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>キーワード</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>Producer</source>
        <translation>PDF 変換</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>セキュリティ</translation>
    </message>
    <message>
        <source>No Encryption</source>
        <translation>暗号化なし</translation>
    </message>
    <message>
        <source>Password Encryption</source>
        <translation>パスワードによる暗号化</translation>
    </message>
    <message>
        <source>Protection</source>
        <translation>保護</translation>
    </message>
    <message>
        <source>User Password</source>
        <translation>ユーザーパスワード</translation>
    </message>
    <message>
        <source>Owner Password</source>
        <translation>所有者パスワード</translation>
    </message>
    <message>
        <source>Repeat Password</source>
        <translation>パスワードの確認</translation>
    </message>
    <message>
        <source>Show chars</source>
        <translation>文字を表示</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>許可</translation>
    </message>
    <message>
        <source>Printing the document</source>
        <translation>文書の印刷</translation>
    </message>
    <message>
        <source>Modifying document</source>
        <translation>文書の変更</translation>
    </message>
    <message>
        <source>Print a high resolution</source>
        <translation>高解像度での印刷</translation>
    </message>
    <message>
        <source>Modify annoations or form fields</source>
        <translation>注釈やフォームの変更</translation>
    </message>
    <message>
        <source>Extract text and graphics</source>
        <translation>テキストと画像の抽出</translation>
    </message>
    <message>
        <source>Fill in existing form or signature fields</source>
        <translation>フォームへの入力と署名</translation>
    </message>
    <message>
        <source>Advanced extract text and graphics</source>
        <translation>テキストと画像の高度な抽出</translation>
    </message>
    <message>
        <source>Assemble the document</source>
        <translation>文書アセンブリ</translation>
    </message>
    <message>
        <source>High Encryption Level (128 bits) </source>
        <translation>高い暗号化レベル (128 ビット) </translation>
    </message>
    <message>
        <source>Password entered does not match.</source>
        <translation>入力したパスワードが一致しません。</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>暗号化</translation>
    </message>
    <message>
        <source>Repeat user password</source>
        <translation>ユーザーパスワードの確認</translation>
    </message>
    <message>
        <source>Repeat owner password</source>
        <translation>所有者パスワードの確認</translation>
    </message>
</context>
</TS>
