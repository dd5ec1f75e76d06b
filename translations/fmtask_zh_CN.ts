<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>FileSaveDialog</name>
    <message>
        <source>Vellumio</source>
        <translation>Vellumio</translation>
    </message>
    <message>
        <source>Please, define name and format of printed file and save.</source>
        <translation>请指定打印文件的名称和格式，然后保存。</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>文件另存为...</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>您没有写入此文件夹的权限。
请选择其他文件夹。</translation>
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
        <translation>打印为 BMP</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>Print As PNG</source>
        <translation>打印为 PNG</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Print As JPEG</source>
        <translation>打印为 JPEG</translation>
    </message>
    <message>
        <source>Quality of Image compression </source>
        <translation>图像压缩质量 </translation>
    </message>
    <message>
        <source>JP2</source>
        <translation>JP2</translation>
    </message>
    <message>
        <source>Print As JPEG2000</source>
        <translation>打印为 JPEG2000</translation>
    </message>
    <message>
        <source>TIFF</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>Print As TIFF</source>
        <translation>打印为 TIFF</translation>
    </message>
    <message>
        <source>Quality of Image compression (JPEG)</source>
        <translation>图像压缩质量 (JPEG)</translation>
    </message>
    <message>
        <source>Method of compression</source>
        <translation>压缩方式</translation>
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
        <translation>多页</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>Print As GIF</source>
        <translation>打印为 GIF</translation>
    </message>
    <message>
        <source>SWF</source>
        <translation>SWF</translation>
    </message>
    <message>
        <source>Print As SWF</source>
        <translation>打印为 SWF</translation>
    </message>
    <message>
        <source>Quality of image </source>
        <translation>图像质量 </translation>
    </message>
    <message>
        <source>Animate</source>
        <translation>动画</translation>
    </message>
    <message>
        <source> Protect SWF</source>
        <translation> 保护 SWF</translation>
    </message>
    <message>
        <source>Extract text to file</source>
        <translation>将文本提取到文件</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Add Text Layer</source>
        <translation>添加文本层</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Print As PDF</source>
        <translation>打印为 PDF</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>RTF</source>
        <translation>RTF</translation>
    </message>
    <message>
        <source>Print As RTF</source>
        <translation>打印为 RTF</translation>
    </message>
    <message>
        <source>XLS</source>
        <translation>XLS</translation>
    </message>
    <message>
        <source>Print As MS Office  Excel</source>
        <translation>打印为 MS Office Excel</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>Print As HTML</source>
        <translation>打印为 HTML</translation>
    </message>
    <message>
        <source>Quality of Image  </source>
        <translation>图像质量  </translation>
    </message>
    <message>
        <source>DjVu</source>
        <translation>DjVu</translation>
    </message>
    <message>
        <source>Print As DjVu</source>
        <translation>打印为 DjVu</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Add &quot;1&quot; to first file name</source>
        <translation>在第一个文件名后加“1”</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>自定义</translation>
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
        <translation>启用</translation>
    </message>
    <message>
        <source>Run application</source>
        <translation>运行应用程序</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;此选项使 Vellumio 打开 &lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;打印的文档以供查看。&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Send to EMail</source>
        <translation>通过电子邮件发送</translation>
    </message>
    <message>
        <source>Sends printed files via email.</source>
        <translation>通过电子邮件发送打印的文件。</translation>
    </message>
    <message>
        <source>TCP delivery</source>
        <translation>TCP 传送</translation>
    </message>
    <message>
        <source>Sends printed files via TCP protocol</source>
        <translation>通过 TCP 协议发送打印的文件</translation>
    </message>
    <message>
        <source>FTP delivery</source>
        <translation>FTP 传送</translation>
    </message>
    <message>
        <source>Sends printed files via FTP protocol</source>
        <translation>通过 FTP 协议发送打印的文件</translation>
    </message>
    <message>
        <source>Draw watermarks Image</source>
        <translation>图像水印</translation>
    </message>
    <message>
        <source>Enables printing of chosen image as watermark</source>
        <translation>启用将所选图像作为水印打印</translation>
    </message>
    <message>
        <source>Draw watermarks Text</source>
        <translation>文本水印</translation>
    </message>
    <message>
        <source>Enables printing of chosen text as watermark</source>
        <translation>启用将所选文本作为水印打印</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Cancel Print</source>
        <translation>取消打印</translation>
    </message>
    <message>
        <source>Show this dialog next time</source>
        <translation>下次仍显示此对话框</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>文件另存为...</translation>
    </message>
    <message>
        <source>
This directory doesn&apos;t exist.

Please choose correct directory</source>
        <translation>
此文件夹不存在。

请选择正确的文件夹</translation>
    </message>
    <message>
        <source> already exists.
</source>
        <translation> 已存在。
</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>要替换它吗？</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>您没有写入此文件夹的权限。
请选择其他文件夹。</translation>
    </message>
    <message>
        <source>SWF password</source>
        <translation>SWF 密码</translation>
    </message>
    <message>
        <source>Output file</source>
        <translation>输出文件</translation>
    </message>
    <message>
        <source>Number of the first file</source>
        <translation>第一个文件的编号</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>选择输出文件</translation>
    </message>
</context>
<context>
    <name>pdfprotect</name>
    <message>
        <source> Advanced PDF Settings </source>
        <translation> PDF 高级设置 </translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Document Info</source>
        <translation>文档信息</translation>
    </message>
    <message>
        <source>PDF Information</source>
        <translation>PDF 信息</translation>
    </message>
    <message>
        <source>Title </source>
        <translation>标题 </translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>主题</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>作者</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>关键字</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>应用程序</translation>
    </message>
    <message>
        <source>Producer</source>
        <translation>PDF 制作程序</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>安全性</translation>
    </message>
    <message>
        <source>No Encryption</source>
        <translation>不加密</translation>
    </message>
    <message>
        <source>Password Encryption</source>
        <translation>密码加密</translation>
    </message>
    <message>
        <source>Protection</source>
        <translation>保护</translation>
    </message>
    <message>
        <source>User Password</source>
        <translation>用户密码</translation>
    </message>
    <message>
        <source>Owner Password</source>
        <translation>所有者密码</translation>
    </message>
    <message>
        <source>Repeat Password</source>
        <translation>重复密码</translation>
    </message>
    <message>
        <source>Show chars</source>
        <translation>显示字符</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>允许</translation>
    </message>
    <message>
        <source>Printing the document</source>
        <translation>打印文档</translation>
    </message>
    <message>
        <source>Modifying document</source>
        <translation>修改文档</translation>
    </message>
    <message>
        <source>Print a high resolution</source>
        <translation>高分辨率打印</translation>
    </message>
    <message>
        <source>Modify annoations or form fields</source>
        <translation>修改注释或表单域</translation>
    </message>
    <message>
        <source>Extract text and graphics</source>
        <translation>提取文本和图形</translation>
    </message>
    <message>
        <source>Fill in existing form or signature fields</source>
        <translation>填写现有表单域或签名域</translation>
    </message>
    <message>
        <source>Advanced extract text and graphics</source>
        <translation>高级提取文本和图形</translation>
    </message>
    <message>
        <source>Assemble the document</source>
        <translation>组合文档</translation>
    </message>
    <message>
        <source>High Encryption Level (128 bits) </source>
        <translation>高加密级别（128 位） </translation>
    </message>
    <message>
        <source>Password entered does not match.</source>
        <translation>输入的密码不一致。</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>加密</translation>
    </message>
    <message>
        <source>Repeat user password</source>
        <translation>重复用户密码</translation>
    </message>
    <message>
        <source>Repeat owner password</source>
        <translation>重复所有者密码</translation>
    </message>
</context>
</TS>
