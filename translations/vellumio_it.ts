<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>Agent</name>
    <message>
        <source>Vellumio cannot take print jobs</source>
        <translation>Vellumio non può accettare lavori di stampa</translation>
    </message>
    <message>
        <source>Vellumio cannot wait for print jobs</source>
        <translation>Vellumio non può attendere lavori di stampa</translation>
    </message>
    <message>
        <source>%1 is missing: install the printer again</source>
        <translation>%1 non è presente: installare di nuovo la stampante</translation>
    </message>
    <message>
        <source>Vellumio stopped taking print jobs</source>
        <translation>Vellumio ha smesso di accettare lavori di stampa</translation>
    </message>
    <message>
        <source>the spool folder cannot be watched: %1</source>
        <translation>impossibile sorvegliare la cartella di spool: %1</translation>
    </message>
    <message>
        <source>the settings file %1 cannot be written, so the dialog&apos;s choices would be lost</source>
        <translation>impossibile scrivere il file delle impostazioni %1, quindi le scelte fatte nella finestra andrebbero perse</translation>
    </message>
    <message>
        <source>Vellumio did not print &quot;%1&quot;</source>
        <translation>Vellumio non ha stampato «%1»</translation>
    </message>
    <message>
        <source>The print dialog ended unexpectedly, so the job was cancelled.</source>
        <translation>La finestra di stampa si è chiusa in modo imprevisto, quindi il lavoro è stato annullato.</translation>
    </message>
    <message>
        <source>the print dialog %1 cannot be started: %2</source>
        <translation>impossibile avviare la finestra di stampa %1: %2</translation>
    </message>
    <message>
        <source>rendering was interrupted twice</source>
        <translation>il rendering è stato interrotto due volte</translation>
    </message>
    <message>
        <source>Vellumio printed &quot;%1&quot;</source>
        <translation>Vellumio ha stampato «%1»</translation>
    </message>
    <message>
        <source>The result is %1; it cannot be opened, as %2 (package %3) is missing.</source>
        <translation>Il risultato è %1; non può essere aperto perché manca %2 (pacchetto %3).</translation>
    </message>
    <message>
        <source>The finished job %1 cannot be removed from %2</source>
        <translation>Impossibile rimuovere il lavoro completato %1 da %2</translation>
    </message>
    <message>
        <source>Vellumio could not print &quot;%1&quot;</source>
        <translation>Vellumio non è riuscito a stampare «%1»</translation>
    </message>
    <message>
        <source>%1. The job is kept: &quot;%2&quot; prints it again.</source>
        <translation>%1. Il lavoro è conservato: «%2» lo stampa di nuovo.</translation>
    </message>
    <message>
        <source>%1. The job cannot be kept and is dropped.</source>
        <translation>%1. Il lavoro non può essere conservato e viene scartato.</translation>
    </message>
    <message>
        <source>Shows the Vellumio dialog for each of your print jobs and renders them.</source>
        <translation>Mostra la finestra di Vellumio per ciascuno dei lavori di stampa e ne esegue il rendering.</translation>
    </message>
    <message>
        <source>Process the jobs waiting now, then exit.</source>
        <translation>Elabora i lavori ora in attesa, poi esce.</translation>
    </message>
    <message>
        <source>Put the jobs that failed back into the queue.</source>
        <translation>Rimette in coda i lavori non riusciti.</translation>
    </message>
    <message>
        <source>Show the dialog again for the next jobs (after &quot;Show this dialog next time&quot; was unticked).</source>
        <translation>Mostra di nuovo la finestra per i prossimi lavori (dopo che «Mostra questa finestra la prossima volta» è stato deselezionato).</translation>
    </message>
    <message>
        <source>the dialog is shown again for the next print jobs</source>
        <translation>la finestra verrà mostrata di nuovo per i prossimi lavori di stampa</translation>
    </message>
    <message>
        <source>failed jobs back in the queue: %1</source>
        <translation>lavori non riusciti rimessi in coda: %1</translation>
    </message>
    <message>
        <source>another %1 already serves this user</source>
        <translation>un altro %1 è già attivo per questo utente</translation>
    </message>
    <message>
        <source>no desktop session (%1 or %2) to show the dialog in</source>
        <translation>nessuna sessione desktop (%1 o %2) in cui mostrare la finestra</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>no notification service and no %1</source>
        <translation>nessun servizio di notifica e nessun %1</translation>
    </message>
</context>
<context>
    <name>Render</name>
    <message>
        <source>page %1: %2</source>
        <translation>pagina %1: %2</translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>non è stato scritto nulla</translation>
    </message>
    <message>
        <source>the character %1 is not allowed</source>
        <translation>il carattere %1 non è consentito</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>è più lunga di %1 caratteri</translation>
    </message>
    <message>
        <source>The PDF user password cannot be used with 128-bit encryption: %1.</source>
        <translation>La password utente del PDF non può essere usata con la crittografia a 128 bit: %1.</translation>
    </message>
    <message>
        <source>The PDF owner password cannot be used with 128-bit encryption: %1.</source>
        <translation>La password proprietario del PDF non può essere usata con la crittografia a 128 bit: %1.</translation>
    </message>
    <message>
        <source>Rendering was stopped.</source>
        <translation>Il rendering è stato interrotto.</translation>
    </message>
    <message>
        <source>Writing %1 failed: %2</source>
        <translation>Scrittura di %1 non riuscita: %2</translation>
    </message>
    <message>
        <source>A job file could not be written: %1</source>
        <translation>Impossibile scrivere un file del lavoro: %1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>Impossibile avviare %1: %2</translation>
    </message>
    <message>
        <source>%1 did not finish in time</source>
        <translation>%1 non è terminato in tempo</translation>
    </message>
    <message>
        <source>%1 failed with status %2</source>
        <translation>%1 non è riuscito (stato %2)</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 non è riuscito: %2</translation>
    </message>
    <message>
        <source>The output folder disappeared while the job rendered: %1</source>
        <translation>La cartella di destinazione è scomparsa durante il rendering del lavoro: %1</translation>
    </message>
    <message>
        <source>The output folder&apos;s disk is full: %1</source>
        <translation>Il disco della cartella di destinazione è pieno: %1</translation>
    </message>
    <message>
        <source>The output folder cannot be written: %1: %2</source>
        <translation>Impossibile scrivere nella cartella di destinazione: %1: %2</translation>
    </message>
    <message>
        <source>The files could not be moved into %1: %2</source>
        <translation>Impossibile spostare i file in %1: %2</translation>
    </message>
    <message>
        <source>%1 is not installed (Debian package %2)</source>
        <translation>%1 non è installato (pacchetto Debian %2)</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be read</source>
        <translation>Impossibile leggere il PostScript %1 del lavoro</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be converted: %2</source>
        <translation>Impossibile convertire il PostScript %1 del lavoro: %2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read</source>
        <translation>Impossibile leggere il PDF %1 del lavoro</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: its pages could not be counted</source>
        <translation>Impossibile leggere il PDF %1 del lavoro: non è stato possibile contarne le pagine</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: %2</source>
        <translation>Impossibile leggere il PDF %1 del lavoro: %2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 has no pages</source>
        <translation>Il PDF %1 del lavoro non ha pagine</translation>
    </message>
    <message>
        <source>No output folder is set.</source>
        <translation>Nessuna cartella di destinazione impostata.</translation>
    </message>
    <message>
        <source>The output folder does not exist: %1</source>
        <translation>La cartella di destinazione non esiste: %1</translation>
    </message>
    <message>
        <source>The job has no file name.</source>
        <translation>Il lavoro non ha un nome file.</translation>
    </message>
    <message>
        <source>The file name is too long: %1</source>
        <translation>Il nome file è troppo lungo: %1</translation>
    </message>
    <message>
        <source>The format is unknown.</source>
        <translation>Il formato è sconosciuto.</translation>
    </message>
</context>
<context>
    <name>SpoolFolder</name>
    <message>
        <source>the printer is not installed: there is no spool folder %1</source>
        <translation>la stampante non è installata: non esiste la cartella di spool %1</translation>
    </message>
    <message>
        <source>the spool folder %1 is not a folder of root closed to others</source>
        <translation>la cartella di spool %1 non è una cartella di root chiusa agli altri</translation>
    </message>
    <message>
        <source>%1 is not this user&apos;s own folder with mode %2</source>
        <translation>%1 non è una cartella propria di questo utente con modalità %2</translation>
    </message>
    <message>
        <source>the job&apos;s folder is missing or not the user&apos;s own</source>
        <translation>la cartella del lavoro manca o non appartiene all&apos;utente</translation>
    </message>
    <message>
        <source>the job&apos;s description is missing or damaged</source>
        <translation>la descrizione del lavoro manca o è danneggiata</translation>
    </message>
    <message>
        <source>the job&apos;s document is missing</source>
        <translation>il documento del lavoro manca</translation>
    </message>
    <message>
        <source>the job&apos;s document is incomplete</source>
        <translation>il documento del lavoro è incompleto</translation>
    </message>
</context>
</TS>
