<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>FileSaveDialog</name>
    <message>
        <source>Vellumio</source>
        <translation>Vellumio</translation>
    </message>
    <message>
        <source>Please, define name and format of printed file and save.</source>
        <translation>Określ nazwę i format drukowanego pliku, a następnie zapisz.</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>Zapisz plik jako...</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>Nie masz uprawnień do zapisu w tym folderze.
Wybierz inny.</translation>
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
        <translation>Drukuj jako BMP</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>Print As PNG</source>
        <translation>Drukuj jako PNG</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Print As JPEG</source>
        <translation>Drukuj jako JPEG</translation>
    </message>
    <message>
        <source>Quality of Image compression </source>
        <translation>Jakość kompresji obrazu </translation>
    </message>
    <message>
        <source>JP2</source>
        <translation>JP2</translation>
    </message>
    <message>
        <source>Print As JPEG2000</source>
        <translation>Drukuj jako JPEG2000</translation>
    </message>
    <message>
        <source>TIFF</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>Print As TIFF</source>
        <translation>Drukuj jako TIFF</translation>
    </message>
    <message>
        <source>Quality of Image compression (JPEG)</source>
        <translation>Jakość kompresji (JPEG)</translation>
    </message>
    <message>
        <source>Method of compression</source>
        <translation>Metoda kompresji</translation>
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
        <translation>Wielostronicowy</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>Print As GIF</source>
        <translation>Drukuj jako GIF</translation>
    </message>
    <message>
        <source>SWF</source>
        <translation>SWF</translation>
    </message>
    <message>
        <source>Print As SWF</source>
        <translation>Drukuj jako SWF</translation>
    </message>
    <message>
        <source>Quality of image </source>
        <translation>Jakość obrazu </translation>
    </message>
    <message>
        <source>Animate</source>
        <translation>Animacja</translation>
    </message>
    <message>
        <source> Protect SWF</source>
        <translation> Chroń SWF</translation>
    </message>
    <message>
        <source>Extract text to file</source>
        <translation>Wyodrębnij tekst do pliku</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Kolor</translation>
    </message>
    <message>
        <source>Add Text Layer</source>
        <translation>Warstwa tekstowa</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Print As PDF</source>
        <translation>Drukuj jako PDF</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Zaawansowane</translation>
    </message>
    <message>
        <source>RTF</source>
        <translation>RTF</translation>
    </message>
    <message>
        <source>Print As RTF</source>
        <translation>Drukuj jako RTF</translation>
    </message>
    <message>
        <source>XLS</source>
        <translation>XLS</translation>
    </message>
    <message>
        <source>Print As MS Office  Excel</source>
        <translation>Drukuj jako MS Office Excel</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>Print As HTML</source>
        <translation>Drukuj jako HTML</translation>
    </message>
    <message>
        <source>Quality of Image  </source>
        <translation>Jakość obrazu  </translation>
    </message>
    <message>
        <source>DjVu</source>
        <translation>DjVu</translation>
    </message>
    <message>
        <source>Print As DjVu</source>
        <translation>Drukuj jako DjVu</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Add &quot;1&quot; to first file name</source>
        <translation>Dodaj „1” do pierwszego pliku</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Własny</translation>
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
        <translation>Włączone</translation>
    </message>
    <message>
        <source>Run application</source>
        <translation>Uruchom aplikację</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;Ta opcja pozwala programowi Vellumio otworzyć &lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;wydrukowany dokument do podglądu.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Send to EMail</source>
        <translation>Wyślij e-mailem</translation>
    </message>
    <message>
        <source>Sends printed files via email.</source>
        <translation>Wysyła wydrukowane pliki pocztą e-mail.</translation>
    </message>
    <message>
        <source>TCP delivery</source>
        <translation>Wysyłka przez TCP</translation>
    </message>
    <message>
        <source>Sends printed files via TCP protocol</source>
        <translation>Wysyła wydrukowane pliki przez protokół TCP</translation>
    </message>
    <message>
        <source>FTP delivery</source>
        <translation>Wysyłka przez FTP</translation>
    </message>
    <message>
        <source>Sends printed files via FTP protocol</source>
        <translation>Wysyła wydrukowane pliki przez protokół FTP</translation>
    </message>
    <message>
        <source>Draw watermarks Image</source>
        <translation>Znak wodny z obrazem</translation>
    </message>
    <message>
        <source>Enables printing of chosen image as watermark</source>
        <translation>Włącza drukowanie wybranego obrazu jako znaku wodnego</translation>
    </message>
    <message>
        <source>Draw watermarks Text</source>
        <translation>Znak wodny z tekstem</translation>
    </message>
    <message>
        <source>Enables printing of chosen text as watermark</source>
        <translation>Włącza drukowanie wybranego tekstu jako znaku wodnego</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drukuj</translation>
    </message>
    <message>
        <source>Cancel Print</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Show this dialog next time</source>
        <translation>Pokazuj to okno następnym razem</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>Zapisz plik jako...</translation>
    </message>
    <message>
        <source>
This directory doesn&apos;t exist.

Please choose correct directory</source>
        <translation>
Ten folder nie istnieje.

Wybierz istniejący folder.</translation>
    </message>
    <message>
        <source> already exists.
</source>
        <translation> już istnieje.
</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Czy chcesz go zastąpić?</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>Nie masz uprawnień do zapisu w tym folderze.
Wybierz inny.</translation>
    </message>
    <message>
        <source>SWF password</source>
        <translation>Hasło SWF</translation>
    </message>
    <message>
        <source>Output file</source>
        <translation>Plik wyjściowy</translation>
    </message>
    <message>
        <source>Number of the first file</source>
        <translation>Numer pierwszego pliku</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>Wybierz plik wyjściowy</translation>
    </message>
</context>
<context>
    <name>pdfprotect</name>
    <message>
        <source> Advanced PDF Settings </source>
        <translation> Zaawansowane ustawienia PDF </translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Document Info</source>
        <translation>Informacje o dokumencie</translation>
    </message>
    <message>
        <source>PDF Information</source>
        <translation>Informacje PDF</translation>
    </message>
    <message>
        <source>Title </source>
        <translation>Tytuł </translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Temat</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Słowa kluczowe</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Aplikacja</translation>
    </message>
    <message>
        <source>Producer</source>
        <translation>Producent PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Zabezpieczenia</translation>
    </message>
    <message>
        <source>No Encryption</source>
        <translation>Bez szyfrowania</translation>
    </message>
    <message>
        <source>Password Encryption</source>
        <translation>Szyfrowanie hasłem</translation>
    </message>
    <message>
        <source>Protection</source>
        <translation>Ochrona</translation>
    </message>
    <message>
        <source>User Password</source>
        <translation>Hasło użytkownika</translation>
    </message>
    <message>
        <source>Owner Password</source>
        <translation>Hasło właściciela</translation>
    </message>
    <message>
        <source>Repeat Password</source>
        <translation>Powtórz hasło</translation>
    </message>
    <message>
        <source>Show chars</source>
        <translation>Pokaż znaki</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Dozwolone</translation>
    </message>
    <message>
        <source>Printing the document</source>
        <translation>Drukowanie dokumentu</translation>
    </message>
    <message>
        <source>Modifying document</source>
        <translation>Modyfikowanie dokumentu</translation>
    </message>
    <message>
        <source>Print a high resolution</source>
        <translation>Drukowanie w wysokiej rozdzielczości</translation>
    </message>
    <message>
        <source>Modify annoations or form fields</source>
        <translation>Zmiana adnotacji lub pól formularza</translation>
    </message>
    <message>
        <source>Extract text and graphics</source>
        <translation>Wyodrębnianie tekstu i grafiki</translation>
    </message>
    <message>
        <source>Fill in existing form or signature fields</source>
        <translation>Wypełnianie formularzy i podpisów</translation>
    </message>
    <message>
        <source>Advanced extract text and graphics</source>
        <translation>Rozszerzone wyodrębnianie treści</translation>
    </message>
    <message>
        <source>Assemble the document</source>
        <translation>Składanie dokumentu</translation>
    </message>
    <message>
        <source>High Encryption Level (128 bits) </source>
        <translation>Wysoki poziom szyfrowania (128 bitów) </translation>
    </message>
    <message>
        <source>Password entered does not match.</source>
        <translation>Wprowadzone hasła nie są zgodne.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Szyfrowanie</translation>
    </message>
    <message>
        <source>Repeat user password</source>
        <translation>Powtórz hasło użytkownika</translation>
    </message>
    <message>
        <source>Repeat owner password</source>
        <translation>Powtórz hasło właściciela</translation>
    </message>
</context>
</TS>
