<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>Agent</name>
    <message>
        <source>Vellumio cannot take print jobs</source>
        <translation>Vellumio nie może przyjmować zadań drukowania</translation>
    </message>
    <message>
        <source>Vellumio cannot wait for print jobs</source>
        <translation>Vellumio nie może oczekiwać na zadania drukowania</translation>
    </message>
    <message>
        <source>%1 is missing: install the printer again</source>
        <translation>Brak %1: zainstaluj drukarkę ponownie</translation>
    </message>
    <message>
        <source>Vellumio stopped taking print jobs</source>
        <translation>Vellumio przestał przyjmować zadania drukowania</translation>
    </message>
    <message>
        <source>the spool folder cannot be watched: %1</source>
        <translation>nie można obserwować folderu kolejki: %1</translation>
    </message>
    <message>
        <source>the settings file %1 cannot be written, so the dialog&apos;s choices would be lost</source>
        <translation>nie można zapisać pliku ustawień %1, więc wybory dokonane w oknie zostałyby utracone</translation>
    </message>
    <message>
        <source>Vellumio did not print &quot;%1&quot;</source>
        <translation>Vellumio nie wydrukował „%1”</translation>
    </message>
    <message>
        <source>The print dialog ended unexpectedly, so the job was cancelled.</source>
        <translation>Okno drukowania zamknęło się nieoczekiwanie, więc zadanie zostało anulowane.</translation>
    </message>
    <message>
        <source>the print dialog %1 cannot be started: %2</source>
        <translation>nie można uruchomić okna drukowania %1: %2</translation>
    </message>
    <message>
        <source>rendering was interrupted twice</source>
        <translation>renderowanie zostało przerwane dwukrotnie</translation>
    </message>
    <message>
        <source>Vellumio printed &quot;%1&quot;</source>
        <translation>Vellumio wydrukował „%1”</translation>
    </message>
    <message>
        <source>The result is %1; it cannot be opened, as %2 (package %3) is missing.</source>
        <translation>Wynik to %1; nie można go otworzyć, ponieważ brakuje %2 (pakiet %3).</translation>
    </message>
    <message>
        <source>The finished job %1 cannot be removed from %2</source>
        <translation>Nie można usunąć ukończonego zadania %1 z %2</translation>
    </message>
    <message>
        <source>Vellumio could not print &quot;%1&quot;</source>
        <translation>Vellumio nie mógł wydrukować „%1”</translation>
    </message>
    <message>
        <source>%1. The job is kept: &quot;%2&quot; prints it again.</source>
        <translation>%1. Zadanie zostało zachowane: „%2” wydrukuje je ponownie.</translation>
    </message>
    <message>
        <source>%1. The job cannot be kept and is dropped.</source>
        <translation>%1. Nie można zachować zadania, zostaje ono odrzucone.</translation>
    </message>
    <message>
        <source>Shows the Vellumio dialog for each of your print jobs and renders them.</source>
        <translation>Wyświetla okno Vellumio dla każdego zadania drukowania i renderuje je.</translation>
    </message>
    <message>
        <source>Process the jobs waiting now, then exit.</source>
        <translation>Przetwarza oczekujące teraz zadania, a następnie kończy działanie.</translation>
    </message>
    <message>
        <source>Put the jobs that failed back into the queue.</source>
        <translation>Przywraca nieudane zadania do kolejki.</translation>
    </message>
    <message>
        <source>Show the dialog again for the next jobs (after &quot;Show this dialog next time&quot; was unticked).</source>
        <translation>Ponownie wyświetla okno dla kolejnych zadań (po odznaczeniu „Pokazuj to okno następnym razem”).</translation>
    </message>
    <message>
        <source>the dialog is shown again for the next print jobs</source>
        <translation>okno będzie ponownie wyświetlane dla kolejnych zadań drukowania</translation>
    </message>
    <message>
        <source>failed jobs back in the queue: %1</source>
        <translation>nieudane zadania przywrócone do kolejki: %1</translation>
    </message>
    <message>
        <source>another %1 already serves this user</source>
        <translation>inny proces %1 już obsługuje tego użytkownika</translation>
    </message>
    <message>
        <source>no desktop session (%1 or %2) to show the dialog in</source>
        <translation>brak sesji pulpitu (%1 lub %2), w której można wyświetlić okno</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>no notification service and no %1</source>
        <translation>brak usługi powiadomień i brak %1</translation>
    </message>
</context>
<context>
    <name>Render</name>
    <message>
        <source>page %1: %2</source>
        <translation>strona %1: %2</translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>nic nie zostało zapisane</translation>
    </message>
    <message>
        <source>the character %1 is not allowed</source>
        <translation>znak %1 jest niedozwolony</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>jest dłuższe niż %1 znaków</translation>
    </message>
    <message>
        <source>The PDF user password cannot be used with 128-bit encryption: %1.</source>
        <translation>Hasła użytkownika PDF nie można użyć z szyfrowaniem 128-bitowym: %1.</translation>
    </message>
    <message>
        <source>The PDF owner password cannot be used with 128-bit encryption: %1.</source>
        <translation>Hasła właściciela PDF nie można użyć z szyfrowaniem 128-bitowym: %1.</translation>
    </message>
    <message>
        <source>Rendering was stopped.</source>
        <translation>Renderowanie zostało przerwane.</translation>
    </message>
    <message>
        <source>Writing %1 failed: %2</source>
        <translation>Zapis %1 nie powiódł się: %2</translation>
    </message>
    <message>
        <source>A job file could not be written: %1</source>
        <translation>Nie można zapisać pliku zadania: %1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>Nie można uruchomić %1: %2</translation>
    </message>
    <message>
        <source>%1 did not finish in time</source>
        <translation>%1 nie zakończył pracy w wyznaczonym czasie</translation>
    </message>
    <message>
        <source>%1 failed with status %2</source>
        <translation>%1 zakończył się błędem, status %2</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 zakończył się błędem: %2</translation>
    </message>
    <message>
        <source>The output folder disappeared while the job rendered: %1</source>
        <translation>Folder wyjściowy zniknął podczas renderowania zadania: %1</translation>
    </message>
    <message>
        <source>The output folder&apos;s disk is full: %1</source>
        <translation>Dysk folderu wyjściowego jest pełny: %1</translation>
    </message>
    <message>
        <source>The output folder cannot be written: %1: %2</source>
        <translation>Nie można zapisywać w folderze wyjściowym: %1: %2</translation>
    </message>
    <message>
        <source>The files could not be moved into %1: %2</source>
        <translation>Nie można przenieść plików do %1: %2</translation>
    </message>
    <message>
        <source>%1 is not installed (Debian package %2)</source>
        <translation>%1 nie jest zainstalowany (pakiet Debiana %2)</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be read</source>
        <translation>Nie można odczytać pliku PostScript zadania %1</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be converted: %2</source>
        <translation>Nie można przekonwertować pliku PostScript zadania %1: %2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read</source>
        <translation>Nie można odczytać pliku PDF zadania %1</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: its pages could not be counted</source>
        <translation>Nie można odczytać pliku PDF zadania %1: nie udało się policzyć jego stron</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: %2</source>
        <translation>Nie można odczytać pliku PDF zadania %1: %2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 has no pages</source>
        <translation>Plik PDF zadania %1 nie ma stron</translation>
    </message>
    <message>
        <source>No output folder is set.</source>
        <translation>Nie ustawiono folderu wyjściowego.</translation>
    </message>
    <message>
        <source>The output folder does not exist: %1</source>
        <translation>Folder wyjściowy nie istnieje: %1</translation>
    </message>
    <message>
        <source>The job has no file name.</source>
        <translation>Zadanie nie ma nazwy pliku.</translation>
    </message>
    <message>
        <source>The file name is too long: %1</source>
        <translation>Nazwa pliku jest za długa: %1</translation>
    </message>
    <message>
        <source>The format is unknown.</source>
        <translation>Nieznany format.</translation>
    </message>
</context>
<context>
    <name>SpoolFolder</name>
    <message>
        <source>the printer is not installed: there is no spool folder %1</source>
        <translation>drukarka nie jest zainstalowana: brak folderu kolejki %1</translation>
    </message>
    <message>
        <source>the spool folder %1 is not a folder of root closed to others</source>
        <translation>folder kolejki %1 nie jest folderem użytkownika root niedostępnym dla innych</translation>
    </message>
    <message>
        <source>%1 is not this user&apos;s own folder with mode %2</source>
        <translation>%1 nie jest własnym folderem tego użytkownika z trybem %2</translation>
    </message>
    <message>
        <source>the job&apos;s folder is missing or not the user&apos;s own</source>
        <translation>brak folderu zadania lub nie należy on do użytkownika</translation>
    </message>
    <message>
        <source>the job&apos;s description is missing or damaged</source>
        <translation>brak opisu zadania lub jest on uszkodzony</translation>
    </message>
    <message>
        <source>the job&apos;s document is missing</source>
        <translation>brak dokumentu zadania</translation>
    </message>
    <message>
        <source>the job&apos;s document is incomplete</source>
        <translation>dokument zadania jest niekompletny</translation>
    </message>
</context>
</TS>
