<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Agent</name>
    <message>
        <source>Vellumio cannot take print jobs</source>
        <translation>Vellumio no puede aceptar trabajos de impresión</translation>
    </message>
    <message>
        <source>Vellumio cannot wait for print jobs</source>
        <translation>Vellumio no puede esperar trabajos de impresión</translation>
    </message>
    <message>
        <source>%1 is missing: install the printer again</source>
        <translation>Falta %1: vuelva a instalar la impresora</translation>
    </message>
    <message>
        <source>Vellumio stopped taking print jobs</source>
        <translation>Vellumio dejó de aceptar trabajos de impresión</translation>
    </message>
    <message>
        <source>the spool folder cannot be watched: %1</source>
        <translation>no se puede vigilar la carpeta de cola: %1</translation>
    </message>
    <message>
        <source>the settings file %1 cannot be written, so the dialog&apos;s choices would be lost</source>
        <translation>no se puede escribir el archivo de configuración %1, por lo que se perderían las opciones elegidas en el cuadro de diálogo</translation>
    </message>
    <message>
        <source>Vellumio did not print &quot;%1&quot;</source>
        <translation>Vellumio no imprimió «%1»</translation>
    </message>
    <message>
        <source>The print dialog ended unexpectedly, so the job was cancelled.</source>
        <translation>El cuadro de diálogo de impresión se cerró inesperadamente, por lo que se canceló el trabajo.</translation>
    </message>
    <message>
        <source>the print dialog %1 cannot be started: %2</source>
        <translation>no se puede iniciar el cuadro de diálogo de impresión %1: %2</translation>
    </message>
    <message>
        <source>rendering was interrupted twice</source>
        <translation>el procesamiento se interrumpió dos veces</translation>
    </message>
    <message>
        <source>Vellumio printed &quot;%1&quot;</source>
        <translation>Vellumio imprimió «%1»</translation>
    </message>
    <message>
        <source>The result is %1; it cannot be opened, as %2 (package %3) is missing.</source>
        <translation>El resultado es %1; no se puede abrir porque falta %2 (paquete %3).</translation>
    </message>
    <message>
        <source>The finished job %1 cannot be removed from %2</source>
        <translation>No se puede quitar el trabajo terminado %1 de %2</translation>
    </message>
    <message>
        <source>Vellumio could not print &quot;%1&quot;</source>
        <translation>Vellumio no pudo imprimir «%1»</translation>
    </message>
    <message>
        <source>%1. The job is kept: &quot;%2&quot; prints it again.</source>
        <translation>%1. El trabajo se conserva: «%2» lo vuelve a imprimir.</translation>
    </message>
    <message>
        <source>%1. The job cannot be kept and is dropped.</source>
        <translation>%1. El trabajo no se puede conservar y se descarta.</translation>
    </message>
    <message>
        <source>Shows the Vellumio dialog for each of your print jobs and renders them.</source>
        <translation>Muestra el cuadro de diálogo de Vellumio para cada uno de sus trabajos de impresión y los procesa.</translation>
    </message>
    <message>
        <source>Process the jobs waiting now, then exit.</source>
        <translation>Procesa los trabajos que esperan ahora y luego sale.</translation>
    </message>
    <message>
        <source>Put the jobs that failed back into the queue.</source>
        <translation>Devuelve a la cola los trabajos que fallaron.</translation>
    </message>
    <message>
        <source>Show the dialog again for the next jobs (after &quot;Show this dialog next time&quot; was unticked).</source>
        <translation>Vuelve a mostrar el cuadro de diálogo para los próximos trabajos (después de desmarcar «Mostrar este cuadro de diálogo la próxima vez»).</translation>
    </message>
    <message>
        <source>the dialog is shown again for the next print jobs</source>
        <translation>el cuadro de diálogo se volverá a mostrar para los próximos trabajos de impresión</translation>
    </message>
    <message>
        <source>failed jobs back in the queue: %1</source>
        <translation>trabajos fallidos devueltos a la cola: %1</translation>
    </message>
    <message>
        <source>another %1 already serves this user</source>
        <translation>otro %1 ya atiende a este usuario</translation>
    </message>
    <message>
        <source>no desktop session (%1 or %2) to show the dialog in</source>
        <translation>no hay ninguna sesión de escritorio (%1 o %2) en la que mostrar el cuadro de diálogo</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>no notification service and no %1</source>
        <translation>no hay servicio de notificaciones ni %1</translation>
    </message>
</context>
<context>
    <name>Render</name>
    <message>
        <source>page %1: %2</source>
        <translation>página %1: %2</translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>no se escribió nada</translation>
    </message>
    <message>
        <source>the character %1 is not allowed</source>
        <translation>el carácter %1 no está permitido</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>tiene más de %1 caracteres</translation>
    </message>
    <message>
        <source>The PDF user password cannot be used with 128-bit encryption: %1.</source>
        <translation>La contraseña de usuario del PDF no se puede usar con el cifrado de 128 bits: %1.</translation>
    </message>
    <message>
        <source>The PDF owner password cannot be used with 128-bit encryption: %1.</source>
        <translation>La contraseña de propietario del PDF no se puede usar con el cifrado de 128 bits: %1.</translation>
    </message>
    <message>
        <source>Rendering was stopped.</source>
        <translation>Se detuvo el procesamiento.</translation>
    </message>
    <message>
        <source>Writing %1 failed: %2</source>
        <translation>Error al escribir %1: %2</translation>
    </message>
    <message>
        <source>A job file could not be written: %1</source>
        <translation>No se pudo escribir un archivo del trabajo: %1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>No se pudo iniciar %1: %2</translation>
    </message>
    <message>
        <source>%1 did not finish in time</source>
        <translation>%1 no terminó a tiempo</translation>
    </message>
    <message>
        <source>%1 failed with status %2</source>
        <translation>%1 falló con el estado %2</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 falló: %2</translation>
    </message>
    <message>
        <source>The output folder disappeared while the job rendered: %1</source>
        <translation>La carpeta de salida desapareció mientras se procesaba el trabajo: %1</translation>
    </message>
    <message>
        <source>The output folder&apos;s disk is full: %1</source>
        <translation>El disco de la carpeta de salida está lleno: %1</translation>
    </message>
    <message>
        <source>The output folder cannot be written: %1: %2</source>
        <translation>No se puede escribir en la carpeta de salida: %1: %2</translation>
    </message>
    <message>
        <source>The files could not be moved into %1: %2</source>
        <translation>No se pudieron mover los archivos a %1: %2</translation>
    </message>
    <message>
        <source>%1 is not installed (Debian package %2)</source>
        <translation>%1 no está instalado (paquete de Debian %2)</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be read</source>
        <translation>No se puede leer el PostScript %1 del trabajo</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be converted: %2</source>
        <translation>No se puede convertir el PostScript %1 del trabajo: %2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read</source>
        <translation>No se puede leer el PDF %1 del trabajo</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: its pages could not be counted</source>
        <translation>No se puede leer el PDF %1 del trabajo: no se pudieron contar sus páginas</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: %2</source>
        <translation>No se puede leer el PDF %1 del trabajo: %2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 has no pages</source>
        <translation>El PDF %1 del trabajo no tiene páginas</translation>
    </message>
    <message>
        <source>No output folder is set.</source>
        <translation>No hay ninguna carpeta de salida definida.</translation>
    </message>
    <message>
        <source>The output folder does not exist: %1</source>
        <translation>La carpeta de salida no existe: %1</translation>
    </message>
    <message>
        <source>The job has no file name.</source>
        <translation>El trabajo no tiene nombre de archivo.</translation>
    </message>
    <message>
        <source>The file name is too long: %1</source>
        <translation>El nombre de archivo es demasiado largo: %1</translation>
    </message>
    <message>
        <source>The format is unknown.</source>
        <translation>El formato es desconocido.</translation>
    </message>
</context>
<context>
    <name>SpoolFolder</name>
    <message>
        <source>the printer is not installed: there is no spool folder %1</source>
        <translation>la impresora no está instalada: no existe la carpeta de cola %1</translation>
    </message>
    <message>
        <source>the spool folder %1 is not a folder of root closed to others</source>
        <translation>la carpeta de cola %1 no es una carpeta de root cerrada a los demás</translation>
    </message>
    <message>
        <source>%1 is not this user&apos;s own folder with mode %2</source>
        <translation>%1 no es una carpeta propia de este usuario con el modo %2</translation>
    </message>
    <message>
        <source>the job&apos;s folder is missing or not the user&apos;s own</source>
        <translation>la carpeta del trabajo falta o no pertenece al usuario</translation>
    </message>
    <message>
        <source>the job&apos;s description is missing or damaged</source>
        <translation>la descripción del trabajo falta o está dañada</translation>
    </message>
    <message>
        <source>the job&apos;s document is missing</source>
        <translation>falta el documento del trabajo</translation>
    </message>
    <message>
        <source>the job&apos;s document is incomplete</source>
        <translation>el documento del trabajo está incompleto</translation>
    </message>
</context>
</TS>
