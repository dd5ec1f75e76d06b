<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Agent</name>
    <message>
        <source>Vellumio cannot take print jobs</source>
        <translation>Vellumio 无法接收打印作业</translation>
    </message>
    <message>
        <source>Vellumio cannot wait for print jobs</source>
        <translation>Vellumio 无法等待打印作业</translation>
    </message>
    <message>
        <source>%1 is missing: install the printer again</source>
        <translation>缺少 %1：请重新安装打印机</translation>
    </message>
    <message>
        <source>Vellumio stopped taking print jobs</source>
        <translation>Vellumio 已停止接收打印作业</translation>
    </message>
    <message>
        <source>the spool folder cannot be watched: %1</source>
        <translation>无法监视打印队列文件夹：%1</translation>
    </message>
    <message>
        <source>the settings file %1 cannot be written, so the dialog&apos;s choices would be lost</source>
        <translation>无法写入设置文件 %1，对话框中的选择将会丢失</translation>
    </message>
    <message>
        <source>Vellumio did not print &quot;%1&quot;</source>
        <translation>Vellumio 未打印“%1”</translation>
    </message>
    <message>
        <source>The print dialog ended unexpectedly, so the job was cancelled.</source>
        <translation>打印对话框意外结束，因此已取消该作业。</translation>
    </message>
    <message>
        <source>the print dialog %1 cannot be started: %2</source>
        <translation>无法启动打印对话框 %1：%2</translation>
    </message>
    <message>
        <source>rendering was interrupted twice</source>
        <translation>渲染已中断两次</translation>
    </message>
    <message>
        <source>Vellumio printed &quot;%1&quot;</source>
        <translation>Vellumio 已打印“%1”</translation>
    </message>
    <message>
        <source>The result is %1; it cannot be opened, as %2 (package %3) is missing.</source>
        <translation>结果为 %1；由于缺少 %2（软件包 %3），无法打开它。</translation>
    </message>
    <message>
        <source>The finished job %1 cannot be removed from %2</source>
        <translation>无法将已完成的作业 %1 从 %2 中删除</translation>
    </message>
    <message>
        <source>Vellumio could not print &quot;%1&quot;</source>
        <translation>Vellumio 无法打印“%1”</translation>
    </message>
    <message>
        <source>%1. The job is kept: &quot;%2&quot; prints it again.</source>
        <translation>%1。该作业已保留：“%2”可再次打印它。</translation>
    </message>
    <message>
        <source>%1. The job cannot be kept and is dropped.</source>
        <translation>%1。无法保留该作业，已将其丢弃。</translation>
    </message>
    <message>
        <source>Shows the Vellumio dialog for each of your print jobs and renders them.</source>
        <translation>为您的每个打印作业显示 Vellumio 对话框并进行渲染。</translation>
    </message>
    <message>
        <source>Process the jobs waiting now, then exit.</source>
        <translation>处理当前等待的作业，然后退出。</translation>
    </message>
    <message>
        <source>Put the jobs that failed back into the queue.</source>
        <translation>将失败的作业放回队列。</translation>
    </message>
    <message>
        <source>Show the dialog again for the next jobs (after &quot;Show this dialog next time&quot; was unticked).</source>
        <translation>对之后的作业重新显示对话框（在取消勾选“下次仍显示此对话框”之后）。</translation>
    </message>
    <message>
        <source>the dialog is shown again for the next print jobs</source>
        <translation>之后的打印作业将重新显示对话框</translation>
    </message>
    <message>
        <source>failed jobs back in the queue: %1</source>
        <translation>已放回队列的失败作业：%1</translation>
    </message>
    <message>
        <source>another %1 already serves this user</source>
        <translation>另一个 %1 已在为此用户服务</translation>
    </message>
    <message>
        <source>no desktop session (%1 or %2) to show the dialog in</source>
        <translation>没有可显示对话框的桌面会话（%1 或 %2）</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>no notification service and no %1</source>
        <translation>没有通知服务，也没有 %1</translation>
    </message>
</context>
<context>
    <name>Render</name>
    <message>
        <source>page %1: %2</source>
        <translation>第 %1 页：%2</translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>未写入任何内容</translation>
    </message>
    <message>
        <source>the character %1 is not allowed</source>
        <translation>不允许使用字符 %1</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>长度超过 %1 个字符</translation>
    </message>
    <message>
        <source>The PDF user password cannot be used with 128-bit encryption: %1.</source>
        <translation>PDF 用户密码无法用于 128 位加密：%1。</translation>
    </message>
    <message>
        <source>The PDF owner password cannot be used with 128-bit encryption: %1.</source>
        <translation>PDF 所有者密码无法用于 128 位加密：%1。</translation>
    </message>
    <message>
        <source>Rendering was stopped.</source>
        <translation>渲染已停止。</translation>
    </message>
    <message>
        <source>Writing %1 failed: %2</source>
        <translation>写入 %1 失败：%2</translation>
    </message>
    <message>
        <source>A job file could not be written: %1</source>
        <translation>无法写入作业文件：%1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>无法启动 %1：%2</translation>
    </message>
    <message>
        <source>%1 did not finish in time</source>
        <translation>%1 未能及时完成</translation>
    </message>
    <message>
        <source>%1 failed with status %2</source>
        <translation>%1 失败，状态为 %2</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 失败：%2</translation>
    </message>
    <message>
        <source>The output folder disappeared while the job rendered: %1</source>
        <translation>渲染作业时输出文件夹消失了：%1</translation>
    </message>
    <message>
        <source>The output folder&apos;s disk is full: %1</source>
        <translation>输出文件夹所在磁盘已满：%1</translation>
    </message>
    <message>
        <source>The output folder cannot be written: %1: %2</source>
        <translation>无法写入输出文件夹：%1：%2</translation>
    </message>
    <message>
        <source>The files could not be moved into %1: %2</source>
        <translation>无法将文件移入 %1：%2</translation>
    </message>
    <message>
        <source>%1 is not installed (Debian package %2)</source>
        <translation>未安装 %1（Debian 软件包 %2）</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be read</source>
        <translation>无法读取作业的 PostScript %1</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be converted: %2</source>
        <translation>无法转换作业的 PostScript %1：%2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read</source>
        <translation>无法读取作业的 PDF %1</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: its pages could not be counted</source>
        <translation>无法读取作业的 PDF %1：无法统计其页数</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: %2</source>
        <translation>无法读取作业的 PDF %1：%2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 has no pages</source>
        <translation>作业的 PDF %1 没有页面</translation>
    </message>
    <message>
        <source>No output folder is set.</source>
        <translation>未设置输出文件夹。</translation>
    </message>
    <message>
        <source>The output folder does not exist: %1</source>
        <translation>输出文件夹不存在：%1</translation>
    </message>
    <message>
        <source>The job has no file name.</source>
        <translation>该作业没有文件名。</translation>
    </message>
    <message>
        <source>The file name is too long: %1</source>
        <translation>文件名过长：%1</translation>
    </message>
    <message>
        <source>The format is unknown.</source>
        <translation>格式未知。</translation>
    </message>
</context>
<context>
    <name>SpoolFolder</name>
    <message>
        <source>the printer is not installed: there is no spool folder %1</source>
        <translation>打印机未安装：不存在打印队列文件夹 %1</translation>
    </message>
    <message>
        <source>the spool folder %1 is not a folder of root closed to others</source>
        <translation>打印队列文件夹 %1 不是 root 所有且对其他用户关闭的文件夹</translation>
    </message>
    <message>
        <source>%1 is not this user&apos;s own folder with mode %2</source>
        <translation>%1 不是此用户自己的、模式为 %2 的文件夹</translation>
    </message>
    <message>
        <source>the job&apos;s folder is missing or not the user&apos;s own</source>
        <translation>作业文件夹缺失或不属于该用户</translation>
    </message>
    <message>
        <source>the job&apos;s description is missing or damaged</source>
        <translation>作业描述缺失或已损坏</translation>
    </message>
    <message>
        <source>the job&apos;s document is missing</source>
        <translation>作业文档缺失</translation>
    </message>
    <message>
        <source>the job&apos;s document is incomplete</source>
        <translation>作业文档不完整</translation>
    </message>
</context>
</TS>
