<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>FileSaveDialog</name>
    <message>
        <source>Vellumio</source>
        <translation>Vellumio</translation>
    </message>
    <message>
        <source>Please, define name and format of printed file and save.</source>
        <translation>Укажите имя и формат файла печати и сохраните его.</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>Сохранить файл как...</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>У вас нет прав на запись в эту папку.
Выберите другую.</translation>
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
        <translation>Печать в BMP</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>Print As PNG</source>
        <translation>Печать в PNG</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Print As JPEG</source>
        <translation>Печать в JPEG</translation>
    </message>
    <message>
        <source>Quality of Image compression </source>
        <translation>Качество сжатия изображения </translation>
    </message>
    <message>
        <source>JP2</source>
        <translation>JP2</translation>
    </message>
    <message>
        <source>Print As JPEG2000</source>
        <translation>Печать в JPEG2000</translation>
    </message>
    <message>
        <source>TIFF</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>Print As TIFF</source>
        <translation>Печать в TIFF</translation>
    </message>
    <message>
        <source>Quality of Image compression (JPEG)</source>
        <translation>Качество сжатия (JPEG)</translation>
    </message>
    <message>
        <source>Method of compression</source>
        <translation>Метод сжатия</translation>
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
        <translation>Многостраничный</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>Print As GIF</source>
        <translation>Печать в GIF</translation>
    </message>
    <message>
        <source>SWF</source>
        <translation>SWF</translation>
    </message>
    <message>
        <source>Print As SWF</source>
        <translation>Печать в SWF</translation>
    </message>
    <message>
        <source>Quality of image </source>
        <translation>Качество изображения </translation>
    </message>
    <message>
        <source>Animate</source>
        <translation>Анимация</translation>
    </message>
    <message>
        <source> Protect SWF</source>
        <translation> Защита SWF</translation>
    </message>
    <message>
        <source>Extract text to file</source>
        <translation>Извлечь текст в файл</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Цвет</translation>
    </message>
    <message>
        <source>Add Text Layer</source>
        <translation>Текстовый слой</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Print As PDF</source>
        <translation>Печать в PDF</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Дополнительно</translation>
    </message>
    <message>
        <source>RTF</source>
        <translation>RTF</translation>
    </message>
    <message>
        <source>Print As RTF</source>
        <translation>Печать в RTF</translation>
    </message>
    <message>
        <source>XLS</source>
        <translation>XLS</translation>
    </message>
    <message>
        <source>Print As MS Office  Excel</source>
        <translation>Печать в MS Office Excel</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>Print As HTML</source>
        <translation>Печать в HTML</translation>
    </message>
    <message>
        <source>Quality of Image  </source>
        <translation>Качество изображения  </translation>
    </message>
    <message>
        <source>DjVu</source>
        <translation>DjVu</translation>
    </message>
    <message>
        <source>Print As DjVu</source>
        <translation>Печать в DjVu</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Add &quot;1&quot; to first file name</source>
        <translation>Добавить «1» к первому файлу</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Свой номер</translation>
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
        <translation>Включено</translation>
    </message>
    <message>
        <source>Run application</source>
        <translation>Открыть файл</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;Этот параметр позволяет Vellumio открыть &lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;напечатанный документ для просмотра.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Send to EMail</source>
        <translation>Отправка почтой</translation>
    </message>
    <message>
        <source>Sends printed files via email.</source>
        <translation>Отправляет напечатанные файлы по электронной почте.</translation>
    </message>
    <message>
        <source>TCP delivery</source>
        <translation>Отправка по TCP</translation>
    </message>
    <message>
        <source>Sends printed files via TCP protocol</source>
        <translation>Отправляет напечатанные файлы по протоколу TCP</translation>
    </message>
    <message>
        <source>FTP delivery</source>
        <translation>Отправка по FTP</translation>
    </message>
    <message>
        <source>Sends printed files via FTP protocol</source>
        <translation>Отправляет напечатанные файлы по протоколу FTP</translation>
    </message>
    <message>
        <source>Draw watermarks Image</source>
        <translation>Водяной знак-рисунок</translation>
    </message>
    <message>
        <source>Enables printing of chosen image as watermark</source>
        <translation>Включает печать выбранного изображения в качестве водяного знака</translation>
    </message>
    <message>
        <source>Draw watermarks Text</source>
        <translation>Водяной знак-текст</translation>
    </message>
    <message>
        <source>Enables printing of chosen text as watermark</source>
        <translation>Включает печать выбранного текста в качестве водяного знака</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Печать</translation>
    </message>
    <message>
        <source>Cancel Print</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Show this dialog next time</source>
        <translation>Показывать это окно в следующий раз</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>Сохранить файл как...</translation>
    </message>
    <message>
        <source>
This directory doesn&apos;t exist.

Please choose correct directory</source>
        <translation>
Эта папка не существует.

Выберите существующую папку.</translation>
    </message>
    <message>
        <source> already exists.
</source>
        <translation> уже существует.
</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Заменить его?</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>У вас нет прав на запись в эту папку.
Выберите другую.</translation>
    </message>
    <message>
        <source>SWF password</source>
        <translation>Пароль SWF</translation>
    </message>
    <message>
        <source>Output file</source>
        <translation>Выходной файл</translation>
    </message>
    <message>
        <source>Number of the first file</source>
        <translation>Номер первого файла</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>Выбрать выходной файл</translation>
    </message>
</context>
<context>
    <name>pdfprotect</name>
    <message>
        <source> Advanced PDF Settings </source>
        <translation> Дополнительные параметры PDF </translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Document Info</source>
        <translation>Сведения о документе</translation>
    </message>
    <message>
        <source>PDF Information</source>
        <translation>Свойства PDF</translation>
    </message>
    <message>
        <source>Title </source>
        <translation>Заголовок </translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Тема</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Автор</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Ключевые слова</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Приложение</translation>
    </message>
    <message>
        <source>Producer</source>
        <translation>Производитель PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Безопасность</translation>
    </message>
    <message>
        <source>No Encryption</source>
        <translation>Без шифрования</translation>
    </message>
    <message>
        <source>Password Encryption</source>
        <translation>Шифрование паролем</translation>
    </message>
    <message>
        <source>Protection</source>
        <translation>Защита</translation>
    </message>
    <message>
        <source>User Password</source>
        <translation>Пароль пользователя</translation>
    </message>
    <message>
        <source>Owner Password</source>
        <translation>Пароль владельца</translation>
    </message>
    <message>
        <source>Repeat Password</source>
        <translation>Повторите пароль</translation>
    </message>
    <message>
        <source>Show chars</source>
        <translation>Показать</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Разрешено</translation>
    </message>
    <message>
        <source>Printing the document</source>
        <translation>Печать документа</translation>
    </message>
    <message>
        <source>Modifying document</source>
        <translation>Изменение документа</translation>
    </message>
    <message>
        <source>Print a high resolution</source>
        <translation>Печать с высоким разрешением</translation>
    </message>
    <message>
        <source>Modify annoations or form fields</source>
        <translation>Изменение примечаний и форм</translation>
    </message>
    <message>
        <source>Extract text and graphics</source>
        <translation>Извлечение текста и графики</translation>
    </message>
    <message>
        <source>Fill in existing form or signature fields</source>
        <translation>Заполнение полей форм и подписей</translation>
    </message>
    <message>
        <source>Advanced extract text and graphics</source>
        <translation>Расширенное извлечение текста</translation>
    </message>
    <message>
        <source>Assemble the document</source>
        <translation>Сборка документа</translation>
    </message>
    <message>
        <source>High Encryption Level (128 bits) </source>
        <translation>Высокий уровень шифрования (128 бит) </translation>
    </message>
    <message>
        <source>Password entered does not match.</source>
        <translation>Введённые пароли не совпадают.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Шифрование</translation>
    </message>
    <message>
        <source>Repeat user password</source>
        <translation>Повторите пароль пользователя</translation>
    </message>
    <message>
        <source>Repeat owner password</source>
        <translation>Повторите пароль владельца</translation>
    </message>
</context>
</TS>
