<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru">
<context>
    <name>Agent</name>
    <message>
        <source>Vellumio cannot take print jobs</source>
        <translation>Vellumio не может принимать задания печати</translation>
    </message>
    <message>
        <source>Vellumio cannot wait for print jobs</source>
        <translation>Vellumio не может ожидать задания печати</translation>
    </message>
    <message>
        <source>%1 is missing: install the printer again</source>
        <translation>%1 отсутствует: установите принтер заново</translation>
    </message>
    <message>
        <source>Vellumio stopped taking print jobs</source>
        <translation>Vellumio перестал принимать задания печати</translation>
    </message>
    <message>
        <source>the spool folder cannot be watched: %1</source>
        <translation>невозможно следить за папкой очереди: %1</translation>
    </message>
    <message>
        <source>the settings file %1 cannot be written, so the dialog&apos;s choices would be lost</source>
        <translation>невозможно записать файл настроек %1, поэтому выбор, сделанный в окне, был бы потерян</translation>
    </message>
    <message>
        <source>Vellumio did not print &quot;%1&quot;</source>
        <translation>Vellumio не напечатал «%1»</translation>
    </message>
    <message>
        <source>The print dialog ended unexpectedly, so the job was cancelled.</source>
        <translation>Окно печати неожиданно закрылось, поэтому задание отменено.</translation>
    </message>
    <message>
        <source>the print dialog %1 cannot be started: %2</source>
        <translation>невозможно запустить окно печати %1: %2</translation>
    </message>
    <message>
        <source>rendering was interrupted twice</source>
        <translation>обработка дважды прерывалась</translation>
    </message>
    <message>
        <source>Vellumio printed &quot;%1&quot;</source>
        <translation>Vellumio напечатал «%1»</translation>
    </message>
    <message>
        <source>The result is %1; it cannot be opened, as %2 (package %3) is missing.</source>
        <translation>Результат: %1; его невозможно открыть, так как отсутствует %2 (пакет %3).</translation>
    </message>
    <message>
        <source>The finished job %1 cannot be removed from %2</source>
        <translation>Невозможно удалить завершённое задание %1 из %2</translation>
    </message>
    <message>
        <source>Vellumio could not print &quot;%1&quot;</source>
        <translation>Vellumio не удалось напечатать «%1»</translation>
    </message>
    <message>
        <source>%1. The job is kept: &quot;%2&quot; prints it again.</source>
        <translation>%1. Задание сохранено: «%2» напечатает его снова.</translation>
    </message>
    <message>
        <source>%1. The job cannot be kept and is dropped.</source>
        <translation>%1. Задание невозможно сохранить, оно удалено.</translation>
    </message>
    <message>
        <source>Shows the Vellumio dialog for each of your print jobs and renders them.</source>
        <translation>Показывает окно Vellumio для каждого вашего задания печати и обрабатывает его.</translation>
    </message>
    <message>
        <source>Process the jobs waiting now, then exit.</source>
        <translation>Обрабатывает ожидающие задания и завершает работу.</translation>
    </message>
    <message>
        <source>Put the jobs that failed back into the queue.</source>
        <translation>Возвращает неудавшиеся задания в очередь.</translation>
    </message>
    <message>
        <source>Show the dialog again for the next jobs (after &quot;Show this dialog next time&quot; was unticked).</source>
        <translation>Снова показывает окно для следующих заданий (после того как был снят флажок «Показывать это окно в следующий раз»).</translation>
    </message>
    <message>
        <source>the dialog is shown again for the next print jobs</source>
        <translation>окно снова будет показываться для следующих заданий печати</translation>
    </message>
    <message>
        <source>failed jobs back in the queue: %1</source>
        <translation>неудавшихся заданий возвращено в очередь: %1</translation>
    </message>
    <message>
        <source>another %1 already serves this user</source>
        <translation>другой процесс %1 уже обслуживает этого пользователя</translation>
    </message>
    <message>
        <source>no desktop session (%1 or %2) to show the dialog in</source>
        <translation>нет сеанса рабочего стола (%1 или %2), в котором можно показать окно</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>no notification service and no %1</source>
        <translation>нет службы уведомлений и нет %1</translation>
    </message>
</context>
<context>
    <name>Render</name>
    <message>
        <source>page %1: %2</source>
        <translation>страница %1: %2</translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>ничего не было записано</translation>
    </message>
    <message>
        <source>the character %1 is not allowed</source>
        <translation>символ %1 недопустим</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>он длиннее %1 символов</translation>
    </message>
    <message>
        <source>The PDF user password cannot be used with 128-bit encryption: %1.</source>
        <translation>Пароль пользователя PDF нельзя использовать со 128-битным шифрованием: %1.</translation>
    </message>
    <message>
        <source>The PDF owner password cannot be used with 128-bit encryption: %1.</source>
        <translation>Пароль владельца PDF нельзя использовать со 128-битным шифрованием: %1.</translation>
    </message>
    <message>
        <source>Rendering was stopped.</source>
        <translation>Обработка была остановлена.</translation>
    </message>
    <message>
        <source>Writing %1 failed: %2</source>
        <translation>Не удалось записать %1: %2</translation>
    </message>
    <message>
        <source>A job file could not be written: %1</source>
        <translation>Не удалось записать файл задания: %1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>Не удалось запустить %1: %2</translation>
    </message>
    <message>
        <source>%1 did not finish in time</source>
        <translation>%1 не завершился вовремя</translation>
    </message>
    <message>
        <source>%1 failed with status %2</source>
        <translation>%1 завершился с ошибкой, код %2</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 завершился с ошибкой: %2</translation>
    </message>
    <message>
        <source>The output folder disappeared while the job rendered: %1</source>
        <translation>Папка вывода исчезла во время обработки задания: %1</translation>
    </message>
    <message>
        <source>The output folder&apos;s disk is full: %1</source>
        <translation>Диск папки вывода заполнен: %1</translation>
    </message>
    <message>
        <source>The output folder cannot be written: %1: %2</source>
        <translation>Невозможно записать в папку вывода: %1: %2</translation>
    </message>
    <message>
        <source>The files could not be moved into %1: %2</source>
        <translation>Не удалось переместить файлы в %1: %2</translation>
    </message>
    <message>
        <source>%1 is not installed (Debian package %2)</source>
        <translation>%1 не установлен (пакет Debian %2)</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be read</source>
        <translation>Невозможно прочитать PostScript задания %1</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be converted: %2</source>
        <translation>Невозможно преобразовать PostScript задания %1: %2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read</source>
        <translation>Невозможно прочитать PDF задания %1</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: its pages could not be counted</source>
        <translation>Невозможно прочитать PDF задания %1: не удалось подсчитать его страницы</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: %2</source>
        <translation>Невозможно прочитать PDF задания %1: %2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 has no pages</source>
        <translation>В PDF задания %1 нет страниц</translation>
    </message>
    <message>
        <source>No output folder is set.</source>
        <translation>Папка вывода не задана.</translation>
    </message>
    <message>
        <source>The output folder does not exist: %1</source>
        <translation>Папка вывода не существует: %1</translation>
    </message>
    <message>
        <source>The job has no file name.</source>
        <translation>У задания нет имени файла.</translation>
    </message>
    <message>
        <source>The file name is too long: %1</source>
        <translation>Слишком длинное имя файла: %1</translation>
    </message>
    <message>
        <source>The format is unknown.</source>
        <translation>Неизвестный формат.</translation>
    </message>
</context>
<context>
    <name>SpoolFolder</name>
    <message>
        <source>the printer is not installed: there is no spool folder %1</source>
        <translation>принтер не установлен: папка очереди %1 не существует</translation>
    </message>
    <message>
        <source>the spool folder %1 is not a folder of root closed to others</source>
        <translation>папка очереди %1 не является папкой root, закрытой для других</translation>
    </message>
    <message>
        <source>%1 is not this user&apos;s own folder with mode %2</source>
        <translation>%1 не является собственной папкой этого пользователя с режимом %2</translation>
    </message>
    <message>
        <source>the job&apos;s folder is missing or not the user&apos;s own</source>
        <translation>папка задания отсутствует или не принадлежит пользователю</translation>
    </message>
    <message>
        <source>the job&apos;s description is missing or damaged</source>
        <translation>описание задания отсутствует или повреждено</translation>
    </message>
    <message>
        <source>the job&apos;s document is missing</source>
        <translation>документ задания отсутствует</translation>
    </message>
    <message>
        <source>the job&apos;s document is incomplete</source>
        <translation>документ задания неполон</translation>
    </message>
</context>
</TS>
