<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>Agent</name>
    <message>
        <source>Vellumio cannot take print jobs</source>
        <translation>O Vellumio não pode receber trabalhos de impressão</translation>
    </message>
    <message>
        <source>Vellumio cannot wait for print jobs</source>
        <translation>O Vellumio não pode aguardar trabalhos de impressão</translation>
    </message>
    <message>
        <source>%1 is missing: install the printer again</source>
        <translation>%1 não foi encontrado: instale a impressora novamente</translation>
    </message>
    <message>
        <source>Vellumio stopped taking print jobs</source>
        <translation>O Vellumio parou de receber trabalhos de impressão</translation>
    </message>
    <message>
        <source>the spool folder cannot be watched: %1</source>
        <translation>a pasta de spool não pode ser monitorada: %1</translation>
    </message>
    <message>
        <source>the settings file %1 cannot be written, so the dialog&apos;s choices would be lost</source>
        <translation>o arquivo de configurações %1 não pode ser gravado, então as escolhas feitas na janela seriam perdidas</translation>
    </message>
    <message>
        <source>Vellumio did not print &quot;%1&quot;</source>
        <translation>O Vellumio não imprimiu “%1”</translation>
    </message>
    <message>
        <source>The print dialog ended unexpectedly, so the job was cancelled.</source>
        <translation>A janela de impressão foi fechada inesperadamente, por isso o trabalho foi cancelado.</translation>
    </message>
    <message>
        <source>the print dialog %1 cannot be started: %2</source>
        <translation>a janela de impressão %1 não pode ser iniciada: %2</translation>
    </message>
    <message>
        <source>rendering was interrupted twice</source>
        <translation>a renderização foi interrompida duas vezes</translation>
    </message>
    <message>
        <source>Vellumio printed &quot;%1&quot;</source>
        <translation>O Vellumio imprimiu “%1”</translation>
    </message>
    <message>
        <source>The result is %1; it cannot be opened, as %2 (package %3) is missing.</source>
        <translation>O resultado é %1; ele não pode ser aberto, pois %2 (pacote %3) não está instalado.</translation>
    </message>
    <message>
        <source>The finished job %1 cannot be removed from %2</source>
        <translation>O trabalho concluído %1 não pode ser removido de %2</translation>
    </message>
    <message>
        <source>Vellumio could not print &quot;%1&quot;</source>
        <translation>O Vellumio não conseguiu imprimir “%1”</translation>
    </message>
    <message>
        <source>%1. The job is kept: &quot;%2&quot; prints it again.</source>
        <translation>%1. O trabalho foi guardado: “%2” o imprime novamente.</translation>
    </message>
    <message>
        <source>%1. The job cannot be kept and is dropped.</source>
        <translation>%1. O trabalho não pode ser guardado e foi descartado.</translation>
    </message>
    <message>
        <source>Shows the Vellumio dialog for each of your print jobs and renders them.</source>
        <translation>Mostra a janela do Vellumio para cada um dos seus trabalhos de impressão e os renderiza.</translation>
    </message>
    <message>
        <source>Process the jobs waiting now, then exit.</source>
        <translation>Processa os trabalhos em espera agora e depois sai.</translation>
    </message>
    <message>
        <source>Put the jobs that failed back into the queue.</source>
        <translation>Coloca os trabalhos que falharam de volta na fila.</translation>
    </message>
    <message>
        <source>Show the dialog again for the next jobs (after &quot;Show this dialog next time&quot; was unticked).</source>
        <translation>Mostra a janela novamente para os próximos trabalhos (depois que “Mostrar esta janela da próxima vez” foi desmarcado).</translation>
    </message>
    <message>
        <source>the dialog is shown again for the next print jobs</source>
        <translation>a janela será mostrada novamente para os próximos trabalhos de impressão</translation>
    </message>
    <message>
        <source>failed jobs back in the queue: %1</source>
        <translation>trabalhos com falha de volta na fila: %1</translation>
    </message>
    <message>
        <source>another %1 already serves this user</source>
        <translation>outro %1 já atende este usuário</translation>
    </message>
    <message>
        <source>no desktop session (%1 or %2) to show the dialog in</source>
        <translation>nenhuma sessão de área de trabalho (%1 ou %2) para mostrar a janela</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>no notification service and no %1</source>
        <translation>nenhum serviço de notificação e nenhum %1</translation>
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
        <translation>nada foi gravado</translation>
    </message>
    <message>
        <source>the character %1 is not allowed</source>
        <translation>o caractere %1 não é permitido</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>ela tem mais de %1 caracteres</translation>
    </message>
    <message>
        <source>The PDF user password cannot be used with 128-bit encryption: %1.</source>
        <translation>A senha do usuário do PDF não pode ser usada com criptografia de 128 bits: %1.</translation>
    </message>
    <message>
        <source>The PDF owner password cannot be used with 128-bit encryption: %1.</source>
        <translation>A senha do proprietário do PDF não pode ser usada com criptografia de 128 bits: %1.</translation>
    </message>
    <message>
        <source>Rendering was stopped.</source>
        <translation>A renderização foi interrompida.</translation>
    </message>
    <message>
        <source>Writing %1 failed: %2</source>
        <translation>Falha ao gravar %1: %2</translation>
    </message>
    <message>
        <source>A job file could not be written: %1</source>
        <translation>Não foi possível gravar um arquivo do trabalho: %1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>Não foi possível iniciar %1: %2</translation>
    </message>
    <message>
        <source>%1 did not finish in time</source>
        <translation>%1 não terminou a tempo</translation>
    </message>
    <message>
        <source>%1 failed with status %2</source>
        <translation>%1 falhou com o status %2</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 falhou: %2</translation>
    </message>
    <message>
        <source>The output folder disappeared while the job rendered: %1</source>
        <translation>A pasta de saída desapareceu durante a renderização do trabalho: %1</translation>
    </message>
    <message>
        <source>The output folder&apos;s disk is full: %1</source>
        <translation>O disco da pasta de saída está cheio: %1</translation>
    </message>
    <message>
        <source>The output folder cannot be written: %1: %2</source>
        <translation>Não é possível gravar na pasta de saída: %1: %2</translation>
    </message>
    <message>
        <source>The files could not be moved into %1: %2</source>
        <translation>Não foi possível mover os arquivos para %1: %2</translation>
    </message>
    <message>
        <source>%1 is not installed (Debian package %2)</source>
        <translation>%1 não está instalado (pacote Debian %2)</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be read</source>
        <translation>O PostScript %1 do trabalho não pode ser lido</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be converted: %2</source>
        <translation>O PostScript %1 do trabalho não pode ser convertido: %2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read</source>
        <translation>O PDF %1 do trabalho não pode ser lido</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: its pages could not be counted</source>
        <translation>O PDF %1 do trabalho não pode ser lido: não foi possível contar as páginas</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: %2</source>
        <translation>O PDF %1 do trabalho não pode ser lido: %2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 has no pages</source>
        <translation>O PDF %1 do trabalho não tem páginas</translation>
    </message>
    <message>
        <source>No output folder is set.</source>
        <translation>Nenhuma pasta de saída foi definida.</translation>
    </message>
    <message>
        <source>The output folder does not exist: %1</source>
        <translation>A pasta de saída não existe: %1</translation>
    </message>
    <message>
        <source>The job has no file name.</source>
        <translation>O trabalho não tem nome de arquivo.</translation>
    </message>
    <message>
        <source>The file name is too long: %1</source>
        <translation>O nome do arquivo é longo demais: %1</translation>
    </message>
    <message>
        <source>The format is unknown.</source>
        <translation>O formato é desconhecido.</translation>
    </message>
</context>
<context>
    <name>SpoolFolder</name>
    <message>
        <source>the printer is not installed: there is no spool folder %1</source>
        <translation>a impressora não está instalada: não existe a pasta de spool %1</translation>
    </message>
    <message>
        <source>the spool folder %1 is not a folder of root closed to others</source>
        <translation>a pasta de spool %1 não é uma pasta do root fechada aos demais</translation>
    </message>
    <message>
        <source>%1 is not this user&apos;s own folder with mode %2</source>
        <translation>%1 não é uma pasta própria deste usuário com o modo %2</translation>
    </message>
    <message>
        <source>the job&apos;s folder is missing or not the user&apos;s own</source>
        <translation>a pasta do trabalho não existe ou não pertence ao usuário</translation>
    </message>
    <message>
        <source>the job&apos;s description is missing or damaged</source>
        <translation>a descrição do trabalho não existe ou está danificada</translation>
    </message>
    <message>
        <source>the job&apos;s document is missing</source>
        <translation>o documento do trabalho não existe</translation>
    </message>
    <message>
        <source>the job&apos;s document is incomplete</source>
        <translation>o documento do trabalho está incompleto</translation>
    </message>
</context>
</TS>
