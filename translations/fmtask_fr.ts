<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>FileSaveDialog</name>
    <message>
        <source>Vellumio</source>
        <translation>Vellumio</translation>
    </message>
    <message>
        <source>Please, define name and format of printed file and save.</source>
        <translation>Veuillez indiquer le nom et le format du fichier imprimé, puis enregistrer.</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>Enregistrer le fichier sous...</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>Vous n&apos;avez pas le droit d&apos;écrire dans ce dossier.
Veuillez en choisir un autre.</translation>
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
        <translation>Imprimer en BMP</translation>
    </message>
    <message>
        <source>PNG</source>
        <translation>PNG</translation>
    </message>
    <message>
        <source>Print As PNG</source>
        <translation>Imprimer en PNG</translation>
    </message>
    <message>
        <source>JPEG</source>
        <translation>JPEG</translation>
    </message>
    <message>
        <source>Print As JPEG</source>
        <translation>Imprimer en JPEG</translation>
    </message>
    <message>
        <source>Quality of Image compression </source>
        <translation>Qualité de compression de l&apos;image </translation>
    </message>
    <message>
        <source>JP2</source>
        <translation>JP2</translation>
    </message>
    <message>
        <source>Print As JPEG2000</source>
        <translation>Imprimer en JPEG2000</translation>
    </message>
    <message>
        <source>TIFF</source>
        <translation>TIFF</translation>
    </message>
    <message>
        <source>Print As TIFF</source>
        <translation>Imprimer en TIFF</translation>
    </message>
    <message>
        <source>Quality of Image compression (JPEG)</source>
        <translation>Qualité de compression (JPEG)</translation>
    </message>
    <message>
        <source>Method of compression</source>
        <translation>Méthode de compression</translation>
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
        <translation>Multipage</translation>
    </message>
    <message>
        <source>GIF</source>
        <translation>GIF</translation>
    </message>
    <message>
        <source>Print As GIF</source>
        <translation>Imprimer en GIF</translation>
    </message>
    <message>
        <source>SWF</source>
        <translation>SWF</translation>
    </message>
    <message>
        <source>Print As SWF</source>
        <translation>Imprimer en SWF</translation>
    </message>
    <message>
        <source>Quality of image </source>
        <translation>Qualité d&apos;image </translation>
    </message>
    <message>
        <source>Animate</source>
        <translation>Animer</translation>
    </message>
    <message>
        <source> Protect SWF</source>
        <translation> Protéger le SWF</translation>
    </message>
    <message>
        <source>Extract text to file</source>
        <translation>Extraire le texte dans un fichier</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Add Text Layer</source>
        <translation>Couche de texte</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Print As PDF</source>
        <translation>Imprimer en PDF</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Avancé</translation>
    </message>
    <message>
        <source>RTF</source>
        <translation>RTF</translation>
    </message>
    <message>
        <source>Print As RTF</source>
        <translation>Imprimer en RTF</translation>
    </message>
    <message>
        <source>XLS</source>
        <translation>XLS</translation>
    </message>
    <message>
        <source>Print As MS Office  Excel</source>
        <translation>Imprimer en MS Office Excel</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>Print As HTML</source>
        <translation>Imprimer en HTML</translation>
    </message>
    <message>
        <source>Quality of Image  </source>
        <translation>Qualité d&apos;image  </translation>
    </message>
    <message>
        <source>DjVu</source>
        <translation>DjVu</translation>
    </message>
    <message>
        <source>Print As DjVu</source>
        <translation>Imprimer en DjVu</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Add &quot;1&quot; to first file name</source>
        <translation>Ajouter « 1 » au premier fichier</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Personnalisé</translation>
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
        <translation>Activés</translation>
    </message>
    <message>
        <source>Run application</source>
        <translation>Lancer un logiciel</translation>
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
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;Cette option permet à Vellumio d&apos;ouvrir le &lt;/span&gt;&lt;/p&gt;
&lt;p style=&quot; margin-top:0px; margin-bottom:0px; margin-left:0px; margin-right:0px; -qt-block-indent:0; text-indent:0px;&quot;&gt;&lt;span style=&quot; font-size:8pt;&quot;&gt;document imprimé pour le consulter.&lt;/span&gt;&lt;/p&gt;&lt;/body&gt;&lt;/html&gt;</translation>
    </message>
    <message>
        <source>Send to EMail</source>
        <translation>Envoyer par e-mail</translation>
    </message>
    <message>
        <source>Sends printed files via email.</source>
        <translation>Envoie les fichiers imprimés par e-mail.</translation>
    </message>
    <message>
        <source>TCP delivery</source>
        <translation>Envoi par TCP</translation>
    </message>
    <message>
        <source>Sends printed files via TCP protocol</source>
        <translation>Envoie les fichiers imprimés par le protocole TCP</translation>
    </message>
    <message>
        <source>FTP delivery</source>
        <translation>Envoi par FTP</translation>
    </message>
    <message>
        <source>Sends printed files via FTP protocol</source>
        <translation>Envoie les fichiers imprimés par le protocole FTP</translation>
    </message>
    <message>
        <source>Draw watermarks Image</source>
        <translation>Filigrane image</translation>
    </message>
    <message>
        <source>Enables printing of chosen image as watermark</source>
        <translation>Active l&apos;impression de l&apos;image choisie en filigrane</translation>
    </message>
    <message>
        <source>Draw watermarks Text</source>
        <translation>Filigrane texte</translation>
    </message>
    <message>
        <source>Enables printing of chosen text as watermark</source>
        <translation>Active l&apos;impression du texte choisi en filigrane</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Cancel Print</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Show this dialog next time</source>
        <translation>Afficher cette fenêtre la prochaine fois</translation>
    </message>
    <message>
        <source>Save File As...</source>
        <translation>Enregistrer le fichier sous...</translation>
    </message>
    <message>
        <source>
This directory doesn&apos;t exist.

Please choose correct directory</source>
        <translation>
Ce dossier n&apos;existe pas.

Veuillez choisir un dossier existant.</translation>
    </message>
    <message>
        <source> already exists.
</source>
        <translation> existe déjà.
</translation>
    </message>
    <message>
        <source>Do you want to replace it?</source>
        <translation>Voulez-vous le remplacer ?</translation>
    </message>
    <message>
        <source>You have no permission to write in this directory.
Please, choose another one.</source>
        <translation>Vous n&apos;avez pas le droit d&apos;écrire dans ce dossier.
Veuillez en choisir un autre.</translation>
    </message>
    <message>
        <source>SWF password</source>
        <translation>Mot de passe SWF</translation>
    </message>
    <message>
        <source>Output file</source>
        <translation>Fichier de sortie</translation>
    </message>
    <message>
        <source>Number of the first file</source>
        <translation>Numéro du premier fichier</translation>
    </message>
    <message>
        <source>Choose the output file</source>
        <translation>Choisir le fichier de sortie</translation>
    </message>
</context>
<context>
    <name>pdfprotect</name>
    <message>
        <source> Advanced PDF Settings </source>
        <translation> Paramètres PDF avancés </translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Document Info</source>
        <translation>Infos du document</translation>
    </message>
    <message>
        <source>PDF Information</source>
        <translation>Informations PDF</translation>
    </message>
    <message>
        <source>Title </source>
        <translation>Titre </translation>
    </message>
    <message>
        <source>Subject</source>
        <translation>Sujet</translation>
    </message>
    <message>
        <source>Author</source>
        <translation>Auteur</translation>
    </message>
    <message>
        <source>Keywords</source>
        <translation>Mots-clés</translation>
    </message>
    <message>
        <source>Creator</source>
        <translation>Application</translation>
    </message>
    <message>
        <source>Producer</source>
        <translation>Producteur PDF</translation>
    </message>
    <message>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>No Encryption</source>
        <translation>Aucun chiffrement</translation>
    </message>
    <message>
        <source>Password Encryption</source>
        <translation>Chiffrement par mot de passe</translation>
    </message>
    <message>
        <source>Protection</source>
        <translation>Protection</translation>
    </message>
    <message>
        <source>User Password</source>
        <translation>Mot de passe utilisateur</translation>
    </message>
    <message>
        <source>Owner Password</source>
        <translation>Mot de passe propriétaire</translation>
    </message>
    <message>
        <source>Repeat Password</source>
        <translation>Confirmer le mot de passe</translation>
    </message>
    <message>
        <source>Show chars</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Allowed</source>
        <translation>Autorisé</translation>
    </message>
    <message>
        <source>Printing the document</source>
        <translation>Impression du document</translation>
    </message>
    <message>
        <source>Modifying document</source>
        <translation>Modification du document</translation>
    </message>
    <message>
        <source>Print a high resolution</source>
        <translation>Impression haute résolution</translation>
    </message>
    <message>
        <source>Modify annoations or form fields</source>
        <translation>Annotations et champs de formulaire</translation>
    </message>
    <message>
        <source>Extract text and graphics</source>
        <translation>Extraction du texte et des images</translation>
    </message>
    <message>
        <source>Fill in existing form or signature fields</source>
        <translation>Remplissage de formulaires, signature</translation>
    </message>
    <message>
        <source>Advanced extract text and graphics</source>
        <translation>Extraction avancée (texte, images)</translation>
    </message>
    <message>
        <source>Assemble the document</source>
        <translation>Assemblage du document</translation>
    </message>
    <message>
        <source>High Encryption Level (128 bits) </source>
        <translation>Niveau de chiffrement élevé (128 bits) </translation>
    </message>
    <message>
        <source>Password entered does not match.</source>
        <translation>Les mots de passe saisis ne correspondent pas.</translation>
    </message>
    <message>
        <source>Encryption</source>
        <translation>Chiffrement</translation>
    </message>
    <message>
        <source>Repeat user password</source>
        <translation>Confirmer le mot de passe utilisateur</translation>
    </message>
    <message>
        <source>Repeat owner password</source>
        <translation>Confirmer le mot de passe propriétaire</translation>
    </message>
</context>
</TS>
