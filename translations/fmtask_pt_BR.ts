<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>FileSaveDialog</name>
    <message>
        <source>Vellumio</source>
        <translation>Vellumio</translation>
    </message>
    <message>
        <source>Please, define name and format of printed file and save.</source>
        <translation>Defina o nome e o formato do arquivo impresso e salve.</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>Salvar arquivo como...</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>Você não tem permissão para gravar nesta pasta.
Escolha outra.</translation>
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
        <translation>Qualidade de compressão da imagem </translation>
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
        <translation>Qualidade de compressão (JPEG)</translation>
    </message>
    <message>
        <source>Method of compression</source>
        <translation>Método de compressão</translation>
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
        <translation>Qualidade da imagem </translation>
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
        <translation>Extrair texto para arquivo</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Cor</translation>
    </message>
    <message>
        <source>Add Text Layer</source>
        <translation>Camada de texto</translation>
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
        <translation>Avançado</translation>
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
        <translation>Qualidade da imagem  </translation>
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
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>Add &quot;1&quot; to first file name</source>
        <translation>Incluir &quot;1&quot; no primeiro arquivo</translation>
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
        <translation>Ativados</translation>
    </message>
    <message>
        <source>Run application</source>
        <translation>Executar aplicativo</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;Esta opção permite que o Vellumio abra o &lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;documento impresso para visualização.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Send to EMail</source>
        <translation>Enviar por e-mail</translation>
    </message>
    <message>
        <source>Sends printed files via email.</source>
        <translation>Envia os arquivos impressos por e-mail.</translation>
    </message>
    <message>
        <source>TCP delivery</source>
        <translation>Envio por TCP</translation>
    </message>
    <message>
        <source>Sends printed files via TCP protocol</source>
        <translation>Envia os arquivos impressos pelo protocolo TCP</translation>
    </message>
    <message>
        <source>FTP delivery</source>
        <translation>Envio por FTP</translation>
    </message>
    <message>
        <source>Sends printed files via FTP protocol</source>
        <translation>Envia os arquivos impressos pelo protocolo FTP</translation>
    </message>
    <message>
        <source>Draw watermarks Image</source>
        <translation>Marca d&apos;água de imagem</translation>
    </message>
    <message>
        <source>Enables printing of chosen image as watermark</source>
        <translation>Ativa a impressão da imagem escolhida como marca d&apos;água</translation>
    </message>
    <message>
        <source>Draw watermarks Text</source>
        <translation>Marca d&apos;água de texto</translation>
    </message>
    <message>
        <source>Enables printing of chosen text as watermark</source>
        <translation>Ativa a impressão do texto escolhido como marca d&apos;água</translation>
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
        <translation>Mostrar esta janela da próxima vez</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>Salvar arquivo como...</translation>
    </message>
    <message>
        <source>
This directory doesn&apos;t exist.

Please choose correct directory</source>
        <translation>
Esta pasta não existe.

Escolha uma pasta existente.</translation>
    </message>
    <message>
        <source> already exists.
</source>
        <translation> já existe.
</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Deseja substituí-lo?</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>Você não tem permissão para gravar nesta pasta.
Escolha outra.</translation>
    </message>
    <message>
        <source>SWF password</source>
        <translation>Senha do SWF</translation>
    </message>
    <message>
        <source>Output file</source>
        <translation>Arquivo de saída</translation>
    </message>
    <message>
        <source>Number of the first file</source>
        <translation>Número do primeiro arquivo</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>Escolher o arquivo de saída</translation>
    </message>
</context>
<context>
    <name>pdfprotect</name>
    <message>
        <source> Advanced PDF Settings </source>
        <translation> Configurações avançadas de PDF </translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Document Info</source>
        <translation>Informações do documento</translation>
    </message>
    <message>
        <source>PDF Information</source>
        <translation>Informações do PDF</translation>
    </message>
    <message>
        <source>Title </source>
        <translation>Título </translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Assunto</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Autor</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Palavras-chave</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Aplicativo</translation>
    </message>
    <message>
        <source>Producer</source>
        <translation>Produtor do PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Segurança</translation>
    </message>
    <message>
        <source>No Encryption</source>
        <translation>Sem criptografia</translation>
    </message>
    <message>
        <source>Password Encryption</source>
        <translation>Criptografia por senha</translation>
    </message>
    <message>
        <source>Protection</source>
        <translation>Proteção</translation>
    </message>
    <message>
        <source>User Password</source>
        <translation>Senha do usuário</translation>
    </message>
    <message>
        <source>Owner Password</source>
        <translation>Senha do proprietário</translation>
    </message>
    <message>
        <source>Repeat Password</source>
        <translation>Repetir a senha</translation>
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
        <translation>Imprimir o documento</translation>
    </message>
    <message>
        <source>Modifying document</source>
        <translation>Modificar o documento</translation>
    </message>
    <message>
        <source>Print a high resolution</source>
        <translation>Imprimir em alta resolução</translation>
    </message>
    <message>
        <source>Modify annoations or form fields</source>
        <translation>Modificar anotações ou formulários</translation>
    </message>
    <message>
        <source>Extract text and graphics</source>
        <translation>Extrair texto e imagens</translation>
    </message>
    <message>
        <source>Fill in existing form or signature fields</source>
        <translation>Preencher formulários ou assinaturas</translation>
    </message>
    <message>
        <source>Advanced extract text and graphics</source>
        <translation>Extração avançada de texto e imagens</translation>
    </message>
    <message>
        <source>Assemble the document</source>
        <translation>Montar o documento</translation>
    </message>
    <message>
        <source>High Encryption Level (128 bits) </source>
        <translation>Nível alto de criptografia (128 bits) </translation>
    </message>
    <message>
        <source>Password entered does not match.</source>
        <translation>As senhas digitadas não coincidem.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Criptografia</translation>
    </message>
    <message>
        <source>Repeat user password</source>
        <translation>Repetir a senha do usuário</translation>
    </message>
    <message>
        <source>Repeat owner password</source>
        <translation>Repetir a senha do proprietário</translation>
    </message>
</context>
</TS>
