<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>FileSaveDialog</name>
    <message>
        <source>Vellumio</source>
        <translation>Vellumio</translation>
    </message>
    <message>
        <source>Please, define name and format of printed file and save.</source>
        <translation>Indique el nombre y el formato del archivo impreso y guárdelo.</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>Guardar archivo como...</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>No tiene permiso para escribir en esta carpeta.
Elija otra, por favor.</translation>
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
        <translation>Imprimir como BMP</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>Print As PNG</source>
        <translation>Imprimir como PNG</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Print As JPEG</source>
        <translation>Imprimir como JPEG</translation>
    </message>
    <message>
        <source>Quality of Image compression </source>
        <translation>Calidad de compresión de la imagen </translation>
    </message>
    <message>
        <source>JP2</source>
        <translation>JP2</translation>
    </message>
    <message>
        <source>Print As JPEG2000</source>
        <translation>Imprimir como JPEG2000</translation>
    </message>
    <message>
        <source>TIFF</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>Print As TIFF</source>
        <translation>Imprimir como TIFF</translation>
    </message>
    <message>
        <source>Quality of Image compression (JPEG)</source>
        <translation>Calidad de compresión (JPEG)</translation>
    </message>
    <message>
        <source>Method of compression</source>
        <translation>Método de compresión</translation>
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
        <translation>Multipágina</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>Print As GIF</source>
        <translation>Imprimir como GIF</translation>
    </message>
    <message>
        <source>SWF</source>
        <translation>SWF</translation>
    </message>
    <message>
        <source>Print As SWF</source>
        <translation>Imprimir como SWF</translation>
    </message>
    <message>
        <source>Quality of image </source>
        <translation>Calidad de imagen </translation>
    </message>
    <message>
        <source>Animate</source>
        <translation>Animar</translation>
    </message>
    <message>
        <source> Protect SWF</source>
        <translation> Proteger SWF</translation>
    </message>
    <message>
        <source>Extract text to file</source>
        <translation>Extraer texto a un archivo</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message>
        <source>Add Text Layer</source>
        <translation>Capa de texto</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Print As PDF</source>
        <translation>Imprimir como PDF</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avanzado</translation>
    </message>
    <message>
        <source>RTF</source>
        <translation>RTF</translation>
    </message>
    <message>
        <source>Print As RTF</source>
        <translation>Imprimir como RTF</translation>
    </message>
    <message>
        <source>XLS</source>
        <translation>XLS</translation>
    </message>
    <message>
        <source>Print As MS Office  Excel</source>
        <translation>Imprimir como MS Office Excel</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>Print As HTML</source>
        <translation>Imprimir como HTML</translation>
    </message>
    <message>
        <source>Quality of Image  </source>
        <translation>Calidad de imagen  </translation>
    </message>
    <message>
        <source>DjVu</source>
        <translation>DjVu</translation>
    </message>
    <message>
        <source>Print As DjVu</source>
        <translation>Imprimir como DjVu</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nombre de archivo</translation>
    </message>
    <message>
        <source>Add &quot;1&quot; to first file name</source>
        <translation>Añadir «1» al primer archivo</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personalizado</translation>
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
        <translation>Activados</translation>
    </message>
    <message>
        <source>Run application</source>
        <translation>Ejecutar aplicación</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;Esta opción permite que Vellumio abra el &lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;documento impreso para verlo.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Send to EMail</source>
        <translation>Enviar por correo</translation>
    </message>
    <message>
        <source>Sends printed files via email.</source>
        <translation>Envía los archivos impresos por correo electrónico.</translation>
    </message>
    <message>
        <source>TCP delivery</source>
        <translation>Envío por TCP</translation>
    </message>
    <message>
        <source>Sends printed files via TCP protocol</source>
        <translation>Envía los archivos impresos mediante el protocolo TCP</translation>
    </message>
    <message>
        <source>FTP delivery</source>
        <translation>Envío por FTP</translation>
    </message>
    <message>
        <source>Sends printed files via FTP protocol</source>
        <translation>Envía los archivos impresos mediante el protocolo FTP</translation>
    </message>
    <message>
        <source>Draw watermarks Image</source>
        <translation>Marca de agua de imagen</translation>
    </message>
    <message>
        <source>Enables printing of chosen image as watermark</source>
        <translation>Activa la impresión de la imagen elegida como marca de agua</translation>
    </message>
    <message>
        <source>Draw watermarks Text</source>
        <translation>Marca de agua de texto</translation>
    </message>
    <message>
        <source>Enables printing of chosen text as watermark</source>
        <translation>Activa la impresión del texto elegido como marca de agua</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Cancel Print</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Show this dialog next time</source>
        <translation>Mostrar este cuadro de diálogo la próxima vez</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>Guardar archivo como...</translation>
    </message>
    <message>
        <source>
This directory doesn&apos;t exist.

Please choose correct directory</source>
        <translation>
Esta carpeta no existe.

Elija una carpeta existente.</translation>
    </message>
    <message>
        <source> already exists.
</source>
        <translation> ya existe.
</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>No tiene permiso para escribir en esta carpeta.
Elija otra, por favor.</translation>
    </message>
    <message>
        <source>SWF password</source>
        <translation>Contraseña del SWF</translation>
    </message>
    <message>
        <source>Output file</source>
        <translation>Archivo de salida</translation>
    </message>
    <message>
        <source>Number of the first file</source>
        <translation>Número del primer archivo</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>Elegir el archivo de salida</translation>
    </message>
</context>
<context>
    <name>pdfprotect</name>
    <message>
        <source> Advanced PDF Settings </source>
        <translation> Configuración avanzada de PDF </translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Document Info</source>
        <translation>Información del documento</translation>
    </message>
    <message>
        <source>PDF Information</source>
        <translation>Información del PDF</translation>
    </message>
    <message>
        <source>Title </source>
        <translation>Título </translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Asunto</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Palabras clave</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Aplicación</translation>
    </message>
    <message>
        <source>Producer</source>
        <translation>Productor de PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Seguridad</translation>
    </message>
    <message>
        <source>No Encryption</source>
        <translation>Sin cifrado</translation>
    </message>
    <message>
        <source>Password Encryption</source>
        <translation>Cifrado con contraseña</translation>
    </message>
    <message>
        <source>Protection</source>
        <translation>Protección</translation>
    </message>
    <message>
        <source>User Password</source>
        <translation>Contraseña de usuario</translation>
    </message>
    <message>
        <source>Owner Password</source>
        <translation>Contraseña de propietario</translation>
    </message>
    <message>
        <source>Repeat Password</source>
        <translation>Repetir contraseña</translation>
    </message>
    <message>
        <source>Show chars</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Permitido</translation>
    </message>
    <message>
        <source>Printing the document</source>
        <translation>Imprimir el documento</translation>
    </message>
    <message>
        <source>Modifying document</source>
        <translation>Modificar el documento</translation>
    </message>
    <message>
        <source>Print a high resolution</source>
        <translation>Imprimir en alta resolución</translation>
    </message>
    <message>
        <source>Modify annoations or form fields</source>
        <translation>Modificar anotaciones o formularios</translation>
    </message>
    <message>
        <source>Extract text and graphics</source>
        <translation>Extraer texto y gráficos</translation>
    </message>
    <message>
        <source>Fill in existing form or signature fields</source>
        <translation>Rellenar formularios o firmas</translation>
    </message>
    <message>
        <source>Advanced extract text and graphics</source>
        <translation>Extraer texto y gráficos (avanzado)</translation>
    </message>
    <message>
        <source>Assemble the document</source>
        <translation>Ensamblar el documento</translation>
    </message>
    <message>
        <source>High Encryption Level (128 bits) </source>
        <translation>Nivel de cifrado alto (128 bits) </translation>
    </message>
    <message>
        <source>Password entered does not match.</source>
        <translation>Las contraseñas introducidas no coinciden.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Cifrado</translation>
    </message>
    <message>
        <source>Repeat user password</source>
        <translation>Repetir contraseña de usuario</translation>
    </message>
    <message>
        <source>Repeat owner password</source>
        <translation>Repetir contraseña de propietario</translation>
    </message>
</context>
</TS>
