<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>FileSaveDialog</name>
    <message>
        <source>Vellumio</source>
        <translation>Vellumio</translation>
    </message>
    <message>
        <source>Please, define name and format of printed file and save.</source>
        <translation>Indicare nome e formato del file stampato, quindi salvare.</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>Salva file come...</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>Non si dispone dei permessi di scrittura in questa cartella.
Sceglierne un&apos;altra.</translation>
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
        <translation>Stampa come BMP</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>Print As PNG</source>
        <translation>Stampa come PNG</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Print As JPEG</source>
        <translation>Stampa come JPEG</translation>
    </message>
    <message>
        <source>Quality of Image compression </source>
        <translation>Qualità di compressione dell&apos;immagine </translation>
    </message>
    <message>
        <source>JP2</source>
        <translation>JP2</translation>
    </message>
    <message>
        <source>Print As JPEG2000</source>
        <translation>Stampa come JPEG2000</translation>
    </message>
    <message>
        <source>TIFF</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>Print As TIFF</source>
        <translation>Stampa come TIFF</translation>
    </message>
    <message>
        <source>Quality of Image compression (JPEG)</source>
        <translation>Qualità di compressione (JPEG)</translation>
    </message>
    <message>
        <source>Method of compression</source>
        <translation>Metodo di compressione</translation>
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
        <translation>Multipagina</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>Print As GIF</source>
        <translation>Stampa come GIF</translation>
    </message>
    <message>
        <source>SWF</source>
        <translation>SWF</translation>
    </message>
    <message>
        <source>Print As SWF</source>
        <translation>Stampa come SWF</translation>
    </message>
    <message>
        <source>Quality of image </source>
        <translation>Qualità immagine </translation>
    </message>
    <message>
        <source>Animate</source>
        <translation>Animazione</translation>
    </message>
    <message>
        <source> Protect SWF</source>
        <translation> Proteggi SWF</translation>
    </message>
    <message>
        <source>Extract text to file</source>
        <translation>Estrai il testo in un file</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message>
        <source>Add Text Layer</source>
        <translation>Livello di testo</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Print As PDF</source>
        <translation>Stampa come PDF</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzate</translation>
    </message>
    <message>
        <source>RTF</source>
        <translation>RTF</translation>
    </message>
    <message>
        <source>Print As RTF</source>
        <translation>Stampa come RTF</translation>
    </message>
    <message>
        <source>XLS</source>
        <translation>XLS</translation>
    </message>
    <message>
        <source>Print As MS Office  Excel</source>
        <translation>Stampa come MS Office Excel</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>Print As HTML</source>
        <translation>Stampa come HTML</translation>
    </message>
    <message>
        <source>Quality of Image  </source>
        <translation>Qualità immagine  </translation>
    </message>
    <message>
        <source>DjVu</source>
        <translation>DjVu</translation>
    </message>
    <message>
        <source>Print As DjVu</source>
        <translation>Stampa come DjVu</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nome file</translation>
    </message>
    <message>
        <source>Add &quot;1&quot; to first file name</source>
        <translation>Aggiungi «1» al primo nome file</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizzato</translation>
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
        <translation>Abilitati</translation>
    </message>
    <message>
        <source>Run application</source>
        <translation>Avvia applicazione</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;Questa opzione consente a Vellumio di aprire il &lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;documento stampato per visualizzarlo.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Send to EMail</source>
        <translation>Invia per e-mail</translation>
    </message>
    <message>
        <source>Sends printed files via email.</source>
        <translation>Invia i file stampati per e-mail.</translation>
    </message>
    <message>
        <source>TCP delivery</source>
        <translation>Invio via TCP</translation>
    </message>
    <message>
        <source>Sends printed files via TCP protocol</source>
        <translation>Invia i file stampati tramite il protocollo TCP</translation>
    </message>
    <message>
        <source>FTP delivery</source>
        <translation>Invio via FTP</translation>
    </message>
    <message>
        <source>Sends printed files via FTP protocol</source>
        <translation>Invia i file stampati tramite il protocollo FTP</translation>
    </message>
    <message>
        <source>Draw watermarks Image</source>
        <translation>Filigrana con immagine</translation>
    </message>
    <message>
        <source>Enables printing of chosen image as watermark</source>
        <translation>Attiva la stampa dell&apos;immagine scelta come filigrana</translation>
    </message>
    <message>
        <source>Draw watermarks Text</source>
        <translation>Filigrana con testo</translation>
    </message>
    <message>
        <source>Enables printing of chosen text as watermark</source>
        <translation>Attiva la stampa del testo scelto come filigrana</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Cancel Print</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Show this dialog next time</source>
        <translation>Mostra questa finestra la prossima volta</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>Salva file come...</translation>
    </message>
    <message>
        <source>
This directory doesn&apos;t exist.

Please choose correct directory</source>
        <translation>
Questa cartella non esiste.

Sceglierne una esistente.</translation>
    </message>
    <message>
        <source> already exists.
</source>
        <translation> esiste già.
</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Sostituirlo?</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>Non si dispone dei permessi di scrittura in questa cartella.
Sceglierne un&apos;altra.</translation>
    </message>
    <message>
        <source>SWF password</source>
        <translation>Password SWF</translation>
    </message>
    <message>
        <source>Output file</source>
        <translation>File di output</translation>
    </message>
    <message>
        <source>Number of the first file</source>
        <translation>Numero del primo file</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>Scegli il file di output</translation>
    </message>
</context>
<context>
    <name>pdfprotect</name>
    <message>
        <source> Advanced PDF Settings </source>
        <translation> Impostazioni PDF avanzate </translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Document Info</source>
        <translation>Informazioni documento</translation>
    </message>
    <message>
        <source>PDF Information</source>
        <translation>Informazioni PDF</translation>
    </message>
    <message>
        <source>Title </source>
        <translation>Titolo </translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Oggetto</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autore</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Parole chiave</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Applicazione</translation>
    </message>
    <message>
        <source>Producer</source>
        <translation>Produttore PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sicurezza</translation>
    </message>
    <message>
        <source>No Encryption</source>
        <translation>Nessuna cifratura</translation>
    </message>
    <message>
        <source>Password Encryption</source>
        <translation>Cifratura con password</translation>
    </message>
    <message>
        <source>Protection</source>
        <translation>Protezione</translation>
    </message>
    <message>
        <source>User Password</source>
        <translation>Password utente</translation>
    </message>
    <message>
        <source>Owner Password</source>
        <translation>Password proprietario</translation>
    </message>
    <message>
        <source>Repeat Password</source>
        <translation>Ripeti password</translation>
    </message>
    <message>
        <source>Show chars</source>
        <translation>Mostra</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Consentito</translation>
    </message>
    <message>
        <source>Printing the document</source>
        <translation>Stampa del documento</translation>
    </message>
    <message>
        <source>Modifying document</source>
        <translation>Modifica del documento</translation>
    </message>
    <message>
        <source>Print a high resolution</source>
        <translation>Stampa ad alta risoluzione</translation>
    </message>
    <message>
        <source>Modify annoations or form fields</source>
        <translation>Modifica annotazioni o campi modulo</translation>
    </message>
    <message>
        <source>Extract text and graphics</source>
        <translation>Estrazione di testo e grafica</translation>
    </message>
    <message>
        <source>Fill in existing form or signature fields</source>
        <translation>Compilazione di moduli e firme</translation>
    </message>
    <message>
        <source>Advanced extract text and graphics</source>
        <translation>Estrazione avanzata di testo e grafica</translation>
    </message>
    <message>
        <source>Assemble the document</source>
        <translation>Assemblaggio del documento</translation>
    </message>
    <message>
        <source>High Encryption Level (128 bits) </source>
        <translation>Livello di cifratura elevato (128 bit) </translation>
    </message>
    <message>
        <source>Password entered does not match.</source>
        <translation>Le password inserite non corrispondono.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Cifratura</translation>
    </message>
    <message>
        <source>Repeat user password</source>
        <translation>Ripeti password utente</translation>
    </message>
    <message>
        <source>Repeat owner password</source>
        <translation>Ripeti password proprietario</translation>
    </message>
</context>
</TS>
