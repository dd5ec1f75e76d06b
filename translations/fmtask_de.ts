<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>FileSaveDialog</name>
    <message>
        <source>Vellumio</source>
        <translation>Vellumio</translation>
    </message>
    <message>
        <source>Please, define name and format of printed file and save.</source>
        <translation>Bitte legen Sie Namen und Format der gedruckten Datei fest und speichern Sie.</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>Datei speichern unter...</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>Sie haben keine Schreibrechte für diesen Ordner.
Bitte wählen Sie einen anderen.</translation>
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
        <translation>Als BMP drucken</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>Print As PNG</source>
        <translation>Als PNG drucken</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Print As JPEG</source>
        <translation>Als JPEG drucken</translation>
    </message>
    <message>
        <source>Quality of Image compression </source>
        <translation>Kompressionsqualität </translation>
    </message>
    <message>
        <source>JP2</source>
        <translation>JP2</translation>
    </message>
    <message>
        <source>Print As JPEG2000</source>
        <translation>Als JPEG2000 drucken</translation>
    </message>
    <message>
        <source>TIFF</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>Print As TIFF</source>
        <translation>Als TIFF drucken</translation>
    </message>
    <message>
        <source>Quality of Image compression (JPEG)</source>
        <translation>Kompressionsqualität (JPEG)</translation>
    </message>
    <message>
        <source>Method of compression</source>
        <translation>Kompressionsverfahren</translation>
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
        <translation>Mehrseitig</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>Print As GIF</source>
        <translation>Als GIF drucken</translation>
    </message>
    <message>
        <source>SWF</source>
        <translation>SWF</translation>
    </message>
    <message>
        <source>Print As SWF</source>
        <translation>Als SWF drucken</translation>
    </message>
    <message>
        <source>Quality of image </source>
        <translation>Bildqualität </translation>
    </message>
    <message>
        <source>Animate</source>
        <translation>Animieren</translation>
    </message>
    <message>
        <source> Protect SWF</source>
        <translation> SWF schützen</translation>
    </message>
    <message>
        <source>Extract text to file</source>
        <translation>Text in Datei extrahieren</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Add Text Layer</source>
        <translation>Mit Textebene</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Print As PDF</source>
        <translation>Als PDF drucken</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Erweitert</translation>
    </message>
    <message>
        <source>RTF</source>
        <translation>RTF</translation>
    </message>
    <message>
        <source>Print As RTF</source>
        <translation>Als RTF drucken</translation>
    </message>
    <message>
        <source>XLS</source>
        <translation>XLS</translation>
    </message>
    <message>
        <source>Print As MS Office  Excel</source>
        <translation>Als MS Office Excel drucken</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>Print As HTML</source>
        <translation>Als HTML drucken</translation>
    </message>
    <message>
        <source>Quality of Image  </source>
        <translation>Bildqualität  </translation>
    </message>
    <message>
        <source>DjVu</source>
        <translation>DjVu</translation>
    </message>
    <message>
        <source>Print As DjVu</source>
        <translation>Als DjVu drucken</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Add &quot;1&quot; to first file name</source>
        <translation>„1“ an ersten Namen anhängen</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigene Nummer</translation>
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
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Run application</source>
        <translation>Programm starten</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;Mit dieser Option öffnet Vellumio das &lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;gedruckte Dokument zur Ansicht.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Send to EMail</source>
        <translation>Per E-Mail senden</translation>
    </message>
    <message>
        <source>Sends printed files via email.</source>
        <translation>Sendet die gedruckten Dateien per E-Mail.</translation>
    </message>
    <message>
        <source>TCP delivery</source>
        <translation>TCP-Versand</translation>
    </message>
    <message>
        <source>Sends printed files via TCP protocol</source>
        <translation>Sendet die gedruckten Dateien über das TCP-Protokoll</translation>
    </message>
    <message>
        <source>FTP delivery</source>
        <translation>FTP-Versand</translation>
    </message>
    <message>
        <source>Sends printed files via FTP protocol</source>
        <translation>Sendet die gedruckten Dateien über das FTP-Protokoll</translation>
    </message>
    <message>
        <source>Draw watermarks Image</source>
        <translation>Bild-Wasserzeichen</translation>
    </message>
    <message>
        <source>Enables printing of chosen image as watermark</source>
        <translation>Aktiviert den Druck des gewählten Bildes als Wasserzeichen</translation>
    </message>
    <message>
        <source>Draw watermarks Text</source>
        <translation>Text-Wasserzeichen</translation>
    </message>
    <message>
        <source>Enables printing of chosen text as watermark</source>
        <translation>Aktiviert den Druck des gewählten Textes als Wasserzeichen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Cancel Print</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Show this dialog next time</source>
        <translation>Diesen Dialog wieder anzeigen</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>Datei speichern unter...</translation>
    </message>
    <message>
        <source>
This directory doesn&apos;t exist.

Please choose correct directory</source>
        <translation>
Dieser Ordner existiert nicht.

Bitte wählen Sie einen vorhandenen Ordner.</translation>
    </message>
    <message>
        <source> already exists.
</source>
        <translation> ist bereits vorhanden.
</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Möchten Sie die Datei ersetzen?</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>Sie haben keine Schreibrechte für diesen Ordner.
Bitte wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>SWF password</source>
        <translation>SWF-Kennwort</translation>
    </message>
    <message>
        <source>Output file</source>
        <translation>Ausgabedatei</translation>
    </message>
    <message>
        <source>Number of the first file</source>
        <translation>Nummer der ersten Datei</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>Ausgabedatei wählen</translation>
    </message>
</context>
<context>
    <name>pdfprotect</name>
    <message>
        <source> Advanced PDF Settings </source>
        <translation> Erweiterte PDF-Einstellungen </translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Document Info</source>
        <translation>Dokumentinfo</translation>
    </message>
    <message>
        <source>PDF Information</source>
        <translation>PDF-Informationen</translation>
    </message>
    <message>
        <source>Title </source>
        <translation>Titel </translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Thema</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Stichwörter</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>Producer</source>
        <translation>PDF-Erzeuger</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>No Encryption</source>
        <translation>Keine Verschlüsselung</translation>
    </message>
    <message>
        <source>Password Encryption</source>
        <translation>Kennwortverschlüsselung</translation>
    </message>
    <message>
        <source>Protection</source>
        <translation>Schutz</translation>
    </message>
    <message>
        <source>User Password</source>
        <translation>Benutzerkennwort</translation>
    </message>
    <message>
        <source>Owner Password</source>
        <translation>Besitzerkennwort</translation>
    </message>
    <message>
        <source>Repeat Password</source>
        <translation>Kennwort wiederholen</translation>
    </message>
    <message>
        <source>Show chars</source>
        <translation>Zeichen zeigen</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Erlaubt</translation>
    </message>
    <message>
        <source>Printing the document</source>
        <translation>Dokument drucken</translation>
    </message>
    <message>
        <source>Modifying document</source>
        <translation>Dokument ändern</translation>
    </message>
    <message>
        <source>Print a high resolution</source>
        <translation>In hoher Auflösung drucken</translation>
    </message>
    <message>
        <source>Modify annoations or form fields</source>
        <translation>Kommentare und Formulare ändern</translation>
    </message>
    <message>
        <source>Extract text and graphics</source>
        <translation>Text und Grafiken extrahieren</translation>
    </message>
    <message>
        <source>Fill in existing form or signature fields</source>
        <translation>Formular- und Signaturfelder ausfüllen</translation>
    </message>
    <message>
        <source>Advanced extract text and graphics</source>
        <translation>Erweiterte Text- und Grafikextraktion</translation>
    </message>
    <message>
        <source>Assemble the document</source>
        <translation>Dokument zusammenstellen</translation>
    </message>
    <message>
        <source>High Encryption Level (128 bits) </source>
        <translation>Hohe Verschlüsselungsstufe (128 Bit) </translation>
    </message>
    <message>
        <source>Password entered does not match.</source>
        <translation>Die eingegebenen Kennwörter stimmen nicht überein.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Verschlüsselung</translation>
    </message>
    <message>
        <source>Repeat user password</source>
        <translation>Benutzerkennwort wiederholen</translation>
    </message>
    <message>
        <source>Repeat owner password</source>
        <translation>Besitzerkennwort wiederholen</translation>
    </message>
</context>
</TS>
