<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Agent</name>
    <message>
        <source>Vellumio cannot take print jobs</source>
        <translation>Vellumio ne peut pas recevoir de tâches d&apos;impression</translation>
    </message>
    <message>
        <source>Vellumio cannot wait for print jobs</source>
        <translation>Vellumio ne peut pas attendre de tâches d&apos;impression</translation>
    </message>
    <message>
        <source>%1 is missing: install the printer again</source>
        <translation>%1 est introuvable&#xa0;: réinstallez l&apos;imprimante</translation>
    </message>
    <message>
        <source>Vellumio stopped taking print jobs</source>
        <translation>Vellumio ne reçoit plus de tâches d&apos;impression</translation>
    </message>
    <message>
        <source>the spool folder cannot be watched: %1</source>
        <translation>le dossier d&apos;attente ne peut pas être surveillé&#xa0;: %1</translation>
    </message>
    <message>
        <source>the settings file %1 cannot be written, so the dialog&apos;s choices would be lost</source>
        <translation>le fichier de réglages %1 ne peut pas être écrit, les choix faits dans la fenêtre seraient donc perdus</translation>
    </message>
    <message>
        <source>Vellumio did not print &quot;%1&quot;</source>
        <translation>Vellumio n&apos;a pas imprimé «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The print dialog ended unexpectedly, so the job was cancelled.</source>
        <translation>La boîte de dialogue d&apos;impression s&apos;est fermée de façon inattendue&#xa0;; la tâche a donc été annulée.</translation>
    </message>
    <message>
        <source>the print dialog %1 cannot be started: %2</source>
        <translation>la boîte de dialogue d&apos;impression %1 ne peut pas être lancée&#xa0;: %2</translation>
    </message>
    <message>
        <source>rendering was interrupted twice</source>
        <translation>le rendu a été interrompu deux fois</translation>
    </message>
    <message>
        <source>Vellumio printed &quot;%1&quot;</source>
        <translation>Vellumio a imprimé «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>The result is %1; it cannot be opened, as %2 (package %3) is missing.</source>
        <translation>Le résultat est %1&#xa0;; il ne peut pas être ouvert, car %2 (paquet %3) est absent.</translation>
    </message>
    <message>
        <source>The finished job %1 cannot be removed from %2</source>
        <translation>La tâche terminée %1 ne peut pas être retirée de %2</translation>
    </message>
    <message>
        <source>Vellumio could not print &quot;%1&quot;</source>
        <translation>Vellumio n&apos;a pas pu imprimer «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>%1. The job is kept: &quot;%2&quot; prints it again.</source>
        <translation>%1. La tâche est conservée&#xa0;: «&#xa0;%2&#xa0;» l&apos;imprime à nouveau.</translation>
    </message>
    <message>
        <source>%1. The job cannot be kept and is dropped.</source>
        <translation>%1. La tâche ne peut pas être conservée et est abandonnée.</translation>
    </message>
    <message>
        <source>Shows the Vellumio dialog for each of your print jobs and renders them.</source>
        <translation>Affiche la fenêtre Vellumio pour chacune de vos tâches d&apos;impression et en effectue le rendu.</translation>
    </message>
    <message>
        <source>Process the jobs waiting now, then exit.</source>
        <translation>Traite les tâches en attente, puis quitte.</translation>
    </message>
    <message>
        <source>Put the jobs that failed back into the queue.</source>
        <translation>Remet les tâches échouées dans la file d&apos;attente.</translation>
    </message>
    <message>
        <source>Show the dialog again for the next jobs (after &quot;Show this dialog next time&quot; was unticked).</source>
        <translation>Affiche de nouveau la fenêtre pour les prochaines tâches (après que «&#xa0;Afficher cette fenêtre la prochaine fois&#xa0;» a été décoché).</translation>
    </message>
    <message>
        <source>the dialog is shown again for the next print jobs</source>
        <translation>la fenêtre s&apos;affichera de nouveau pour les prochaines tâches d&apos;impression</translation>
    </message>
    <message>
        <source>failed jobs back in the queue: %1</source>
        <translation>tâches échouées remises dans la file d&apos;attente&#xa0;: %1</translation>
    </message>
    <message>
        <source>another %1 already serves this user</source>
        <translation>un autre %1 est déjà actif pour cet utilisateur</translation>
    </message>
    <message>
        <source>no desktop session (%1 or %2) to show the dialog in</source>
        <translation>aucune session de bureau (%1 ou %2) où afficher la fenêtre</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>no notification service and no %1</source>
        <translation>aucun service de notification et aucun %1</translation>
    </message>
</context>
<context>
    <name>Render</name>
    <message>
        <source>page %1: %2</source>
        <translation>page %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>rien n&apos;a été écrit</translation>
    </message>
    <message>
        <source>the character %1 is not allowed</source>
        <translation>le caractère %1 n&apos;est pas autorisé</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>il dépasse %1 caractères</translation>
    </message>
    <message>
        <source>The PDF user password cannot be used with 128-bit encryption: %1.</source>
        <translation>Le mot de passe utilisateur du PDF ne peut pas être utilisé avec le chiffrement 128 bits&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The PDF owner password cannot be used with 128-bit encryption: %1.</source>
        <translation>Le mot de passe propriétaire du PDF ne peut pas être utilisé avec le chiffrement 128 bits&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Rendering was stopped.</source>
        <translation>Le rendu a été interrompu.</translation>
    </message>
    <message>
        <source>Writing %1 failed: %2</source>
        <translation>L&apos;écriture de %1 a échoué&#xa0;: %2</translation>
    </message>
    <message>
        <source>A job file could not be written: %1</source>
        <translation>Un fichier de la tâche n&apos;a pas pu être écrit&#xa0;: %1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 n&apos;a pas pu être lancé&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 did not finish in time</source>
        <translation>%1 ne s&apos;est pas terminé à temps</translation>
    </message>
    <message>
        <source>%1 failed with status %2</source>
        <translation>%1 a échoué avec le code %2</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 a échoué&#xa0;: %2</translation>
    </message>
    <message>
        <source>The output folder disappeared while the job rendered: %1</source>
        <translation>Le dossier de sortie a disparu pendant le rendu de la tâche&#xa0;: %1</translation>
    </message>
    <message>
        <source>The output folder&apos;s disk is full: %1</source>
        <translation>Le disque du dossier de sortie est plein&#xa0;: %1</translation>
    </message>
    <message>
        <source>The output folder cannot be written: %1: %2</source>
        <translation>Impossible d&apos;écrire dans le dossier de sortie&#xa0;: %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The files could not be moved into %1: %2</source>
        <translation>Les fichiers n&apos;ont pas pu être déplacés dans %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 is not installed (Debian package %2)</source>
        <translation>%1 n&apos;est pas installé (paquet Debian %2)</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be read</source>
        <translation>Le PostScript %1 de la tâche ne peut pas être lu</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be converted: %2</source>
        <translation>Le PostScript %1 de la tâche ne peut pas être converti&#xa0;: %2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read</source>
        <translation>Le PDF %1 de la tâche ne peut pas être lu</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: its pages could not be counted</source>
        <translation>Le PDF %1 de la tâche ne peut pas être lu&#xa0;: ses pages n&apos;ont pas pu être comptées</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: %2</source>
        <translation>Le PDF %1 de la tâche ne peut pas être lu&#xa0;: %2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 has no pages</source>
        <translation>Le PDF %1 de la tâche ne contient aucune page</translation>
    </message>
    <message>
        <source>No output folder is set.</source>
        <translation>Aucun dossier de sortie n&apos;est défini.</translation>
    </message>
    <message>
        <source>The output folder does not exist: %1</source>
        <translation>Le dossier de sortie n&apos;existe pas&#xa0;: %1</translation>
    </message>
    <message>
        <source>The job has no file name.</source>
        <translation>La tâche n&apos;a pas de nom de fichier.</translation>
    </message>
    <message>
        <source>The file name is too long: %1</source>
        <translation>Le nom de fichier est trop long&#xa0;: %1</translation>
    </message>
    <message>
        <source>The format is unknown.</source>
        <translation>Le format est inconnu.</translation>
    </message>
</context>
<context>
    <name>SpoolFolder</name>
    <message>
        <source>the printer is not installed: there is no spool folder %1</source>
        <translation>l&apos;imprimante n&apos;est pas installée&#xa0;: le dossier d&apos;attente %1 n&apos;existe pas</translation>
    </message>
    <message>
        <source>the spool folder %1 is not a folder of root closed to others</source>
        <translation>le dossier d&apos;attente %1 n&apos;est pas un dossier de root fermé aux autres</translation>
    </message>
    <message>
        <source>%1 is not this user&apos;s own folder with mode %2</source>
        <translation>%1 n&apos;est pas un dossier propre à cet utilisateur avec le mode %2</translation>
    </message>
    <message>
        <source>the job&apos;s folder is missing or not the user&apos;s own</source>
        <translation>le dossier de la tâche est absent ou n&apos;appartient pas à l&apos;utilisateur</translation>
    </message>
    <message>
        <source>the job&apos;s description is missing or damaged</source>
        <translation>la description de la tâche est absente ou endommagée</translation>
    </message>
    <message>
        <source>the job&apos;s document is missing</source>
        <translation>le document de la tâche est absent</translation>
    </message>
    <message>
        <source>the job&apos;s document is incomplete</source>
        <translation>le document de la tâche est incomplet</translation>
    </message>
</context>
</TS>
