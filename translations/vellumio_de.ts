<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Agent</name>
    <message>
        <source>Vellumio cannot take print jobs</source>
        <translation>Vellumio kann keine Druckaufträge annehmen</translation>
    </message>
    <message>
        <source>Vellumio cannot wait for print jobs</source>
        <translation>Vellumio kann nicht auf Druckaufträge warten</translation>
    </message>
    <message>
        <source>%1 is missing: install the printer again</source>
        <translation>%1 fehlt: Installieren Sie den Drucker erneut</translation>
    </message>
    <message>
        <source>Vellumio stopped taking print jobs</source>
        <translation>Vellumio nimmt keine Druckaufträge mehr an</translation>
    </message>
    <message>
        <source>the spool folder cannot be watched: %1</source>
        <translation>der Spool-Ordner kann nicht überwacht werden: %1</translation>
    </message>
    <message>
        <source>the settings file %1 cannot be written, so the dialog&apos;s choices would be lost</source>
        <translation>die Einstellungsdatei %1 kann nicht geschrieben werden, daher gingen die Angaben im Dialog verloren</translation>
    </message>
    <message>
        <source>Vellumio did not print &quot;%1&quot;</source>
        <translation>Vellumio hat „%1“ nicht gedruckt</translation>
    </message>
    <message>
        <source>The print dialog ended unexpectedly, so the job was cancelled.</source>
        <translation>Der Druckdialog wurde unerwartet beendet, daher wurde der Auftrag abgebrochen.</translation>
    </message>
    <message>
        <source>the print dialog %1 cannot be started: %2</source>
        <translation>der Druckdialog %1 kann nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>rendering was interrupted twice</source>
        <translation>das Rendern wurde zweimal unterbrochen</translation>
    </message>
    <message>
        <source>Vellumio printed &quot;%1&quot;</source>
        <translation>Vellumio hat „%1“ gedruckt</translation>
    </message>
    <message>
        <source>The result is %1; it cannot be opened, as %2 (package %3) is missing.</source>
        <translation>Das Ergebnis ist %1; es kann nicht geöffnet werden, da %2 (Paket %3) fehlt.</translation>
    </message>
    <message>
        <source>The finished job %1 cannot be removed from %2</source>
        <translation>Der fertige Auftrag %1 kann nicht aus %2 entfernt werden</translation>
    </message>
    <message>
        <source>Vellumio could not print &quot;%1&quot;</source>
        <translation>Vellumio konnte „%1“ nicht drucken</translation>
    </message>
    <message>
        <source>%1. The job is kept: &quot;%2&quot; prints it again.</source>
        <translation>%1. Der Auftrag wird aufbewahrt: „%2“ druckt ihn erneut.</translation>
    </message>
    <message>
        <source>%1. The job cannot be kept and is dropped.</source>
        <translation>%1. Der Auftrag kann nicht aufbewahrt werden und wird verworfen.</translation>
    </message>
    <message>
        <source>Shows the Vellumio dialog for each of your print jobs and renders them.</source>
        <translation>Zeigt für jeden Ihrer Druckaufträge den Vellumio-Dialog und rendert die Aufträge.</translation>
    </message>
    <message>
        <source>Process the jobs waiting now, then exit.</source>
        <translation>Verarbeitet die jetzt wartenden Aufträge und beendet sich dann.</translation>
    </message>
    <message>
        <source>Put the jobs that failed back into the queue.</source>
        <translation>Stellt die fehlgeschlagenen Aufträge zurück in die Warteschlange.</translation>
    </message>
    <message>
        <source>Show the dialog again for the next jobs (after &quot;Show this dialog next time&quot; was unticked).</source>
        <translation>Zeigt den Dialog für die nächsten Aufträge wieder an (nachdem „Diesen Dialog wieder anzeigen“ abgewählt wurde).</translation>
    </message>
    <message>
        <source>the dialog is shown again for the next print jobs</source>
        <translation>der Dialog wird für die nächsten Druckaufträge wieder angezeigt</translation>
    </message>
    <message>
        <source>failed jobs back in the queue: %1</source>
        <translation>fehlgeschlagene Aufträge zurück in der Warteschlange: %1</translation>
    </message>
    <message>
        <source>another %1 already serves this user</source>
        <translation>für diesen Benutzer läuft bereits ein anderer %1</translation>
    </message>
    <message>
        <source>no desktop session (%1 or %2) to show the dialog in</source>
        <translation>keine Desktop-Sitzung (%1 oder %2), in der der Dialog angezeigt werden kann</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>no notification service and no %1</source>
        <translation>kein Benachrichtigungsdienst und kein %1 vorhanden</translation>
    </message>
</context>
<context>
    <name>Render</name>
    <message>
        <source>page %1: %2</source>
        <translation>Seite %1: %2</translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>es wurde nichts geschrieben</translation>
    </message>
    <message>
        <source>the character %1 is not allowed</source>
        <translation>das Zeichen %1 ist nicht erlaubt</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>es ist länger als %1 Zeichen</translation>
    </message>
    <message>
        <source>The PDF user password cannot be used with 128-bit encryption: %1.</source>
        <translation>Das Benutzerkennwort des PDF kann nicht mit 128-Bit-Verschlüsselung verwendet werden: %1.</translation>
    </message>
    <message>
        <source>The PDF owner password cannot be used with 128-bit encryption: %1.</source>
        <translation>Das Besitzerkennwort des PDF kann nicht mit 128-Bit-Verschlüsselung verwendet werden: %1.</translation>
    </message>
    <message>
        <source>Rendering was stopped.</source>
        <translation>Das Rendern wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Writing %1 failed: %2</source>
        <translation>Das Schreiben von %1 ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>A job file could not be written: %1</source>
        <translation>Eine Auftragsdatei konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 konnte nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>%1 did not finish in time</source>
        <translation>%1 wurde nicht rechtzeitig fertig</translation>
    </message>
    <message>
        <source>%1 failed with status %2</source>
        <translation>%1 ist mit Status %2 fehlgeschlagen</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 ist fehlgeschlagen: %2</translation>
    </message>
    <message>
        <source>The output folder disappeared while the job rendered: %1</source>
        <translation>Der Ausgabeordner ist während des Renderns verschwunden: %1</translation>
    </message>
    <message>
        <source>The output folder&apos;s disk is full: %1</source>
        <translation>Der Datenträger des Ausgabeordners ist voll: %1</translation>
    </message>
    <message>
        <source>The output folder cannot be written: %1: %2</source>
        <translation>In den Ausgabeordner kann nicht geschrieben werden: %1: %2</translation>
    </message>
    <message>
        <source>The files could not be moved into %1: %2</source>
        <translation>Die Dateien konnten nicht nach %1 verschoben werden: %2</translation>
    </message>
    <message>
        <source>%1 is not installed (Debian package %2)</source>
        <translation>%1 ist nicht installiert (Debian-Paket %2)</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be read</source>
        <translation>Das PostScript %1 des Auftrags kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be converted: %2</source>
        <translation>Das PostScript %1 des Auftrags kann nicht umgewandelt werden: %2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read</source>
        <translation>Das PDF %1 des Auftrags kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: its pages could not be counted</source>
        <translation>Das PDF %1 des Auftrags kann nicht gelesen werden: Seine Seiten konnten nicht gezählt werden</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: %2</source>
        <translation>Das PDF %1 des Auftrags kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 has no pages</source>
        <translation>Das PDF %1 des Auftrags hat keine Seiten</translation>
    </message>
    <message>
        <source>No output folder is set.</source>
        <translation>Es ist kein Ausgabeordner festgelegt.</translation>
    </message>
    <message>
        <source>The output folder does not exist: %1</source>
        <translation>Der Ausgabeordner existiert nicht: %1</translation>
    </message>
    <message>
        <source>The job has no file name.</source>
        <translation>Der Auftrag hat keinen Dateinamen.</translation>
    </message>
    <message>
        <source>The file name is too long: %1</source>
        <translation>Der Dateiname ist zu lang: %1</translation>
    </message>
    <message>
        <source>The format is unknown.</source>
        <translation>Das Format ist unbekannt.</translation>
    </message>
</context>
<context>
    <name>SpoolFolder</name>
    <message>
        <source>the printer is not installed: there is no spool folder %1</source>
        <translation>der Drucker ist nicht installiert: Es gibt keinen Spool-Ordner %1</translation>
    </message>
    <message>
        <source>the spool folder %1 is not a folder of root closed to others</source>
        <translation>der Spool-Ordner %1 ist kein für andere gesperrter Ordner von root</translation>
    </message>
    <message>
        <source>%1 is not this user&apos;s own folder with mode %2</source>
        <translation>%1 ist kein eigener Ordner dieses Benutzers mit Modus %2</translation>
    </message>
    <message>
        <source>the job&apos;s folder is missing or not the user&apos;s own</source>
        <translation>der Ordner des Auftrags fehlt oder gehört nicht dem Benutzer</translation>
    </message>
    <message>
        <source>the job&apos;s description is missing or damaged</source>
        <translation>die Beschreibung des Auftrags fehlt oder ist beschädigt</translation>
    </message>
    <message>
        <source>the job&apos;s document is missing</source>
        <translation>das Dokument des Auftrags fehlt</translation>
    </message>
    <message>
        <source>the job&apos;s document is incomplete</source>
        <translation>das Dokument des Auftrags ist unvollständig</translation>
    </message>
</context>
</TS>
