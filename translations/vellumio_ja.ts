<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>Agent</name>
    <message>
        <source>Vellumio cannot take print jobs</source>
        <translation>Vellumio は印刷ジョブを受け付けられません</translation>
    </message>
    <message>
        <source>Vellumio cannot wait for print jobs</source>
        <translation>Vellumio は印刷ジョブを待機できません</translation>
    </message>
    <message>
        <source>%1 is missing: install the printer again</source>
        <translation>%1 がありません。プリンターをインストールし直してください</translation>
    </message>
    <message>
        <source>Vellumio stopped taking print jobs</source>
        <translation>Vellumio は印刷ジョブの受け付けを停止しました</translation>
    </message>
    <message>
        <source>the spool folder cannot be watched: %1</source>
        <translation>スプールフォルダーを監視できません: %1</translation>
    </message>
    <message>
        <source>the settings file %1 cannot be written, so the dialog&apos;s choices would be lost</source>
        <translation>設定ファイル %1 に書き込めないため、ダイアログでの選択が失われます</translation>
    </message>
    <message>
        <source>Vellumio did not print &quot;%1&quot;</source>
        <translation>Vellumio は「%1」を印刷しませんでした</translation>
    </message>
    <message>
        <source>The print dialog ended unexpectedly, so the job was cancelled.</source>
        <translation>印刷ダイアログが予期せず終了したため、ジョブはキャンセルされました。</translation>
    </message>
    <message>
        <source>the print dialog %1 cannot be started: %2</source>
        <translation>印刷ダイアログ %1 を起動できません: %2</translation>
    </message>
    <message>
        <source>rendering was interrupted twice</source>
        <translation>レンダリングが 2 回中断されました</translation>
    </message>
    <message>
        <source>Vellumio printed &quot;%1&quot;</source>
        <translation>Vellumio は「%1」を印刷しました</translation>
    </message>
    <message>
        <source>The result is %1; it cannot be opened, as %2 (package %3) is missing.</source>
        <translation>結果は %1 です。%2 (パッケージ %3) がないため開けません。</translation>
    </message>
    <message>
        <source>The finished job %1 cannot be removed from %2</source>
        <translation>完了したジョブ %1 を %2 から削除できません</translation>
    </message>
    <message>
        <source>Vellumio could not print &quot;%1&quot;</source>
        <translation>Vellumio は「%1」を印刷できませんでした</translation>
    </message>
    <message>
        <source>%1. The job is kept: &quot;%2&quot; prints it again.</source>
        <translation>%1。ジョブは保持されています。「%2」で再び印刷できます。</translation>
    </message>
    <message>
        <source>%1. The job cannot be kept and is dropped.</source>
        <translation>%1。ジョブを保持できないため破棄されます。</translation>
    </message>
    <message>
        <source>Shows the Vellumio dialog for each of your print jobs and renders them.</source>
        <translation>印刷ジョブごとに Vellumio ダイアログを表示し、レンダリングします。</translation>
    </message>
    <message>
        <source>Process the jobs waiting now, then exit.</source>
        <translation>現在待機中のジョブを処理して終了します。</translation>
    </message>
    <message>
        <source>Put the jobs that failed back into the queue.</source>
        <translation>失敗したジョブをキューに戻します。</translation>
    </message>
    <message>
        <source>Show the dialog again for the next jobs (after &quot;Show this dialog next time&quot; was unticked).</source>
        <translation>次のジョブからダイアログを再び表示します (「次回もこのダイアログを表示」のチェックを外した後)。</translation>
    </message>
    <message>
        <source>the dialog is shown again for the next print jobs</source>
        <translation>次の印刷ジョブからダイアログが再び表示されます</translation>
    </message>
    <message>
        <source>failed jobs back in the queue: %1</source>
        <translation>キューに戻した失敗ジョブ: %1</translation>
    </message>
    <message>
        <source>another %1 already serves this user</source>
        <translation>このユーザーには別の %1 が既に動作しています</translation>
    </message>
    <message>
        <source>no desktop session (%1 or %2) to show the dialog in</source>
        <translation>ダイアログを表示するデスクトップセッション (%1 または %2) がありません</translation>
    </message>
</context>
<context>
    <name>Notifier</name>
    <message>
        <source>no notification service and no %1</source>
        <translation>通知サービスも %1 もありません</translation>
    </message>
</context>
<context>
    <name>Render</name>
    <message>
        <source>page %1: %2</source>
        <translation>%1 ページ: %2</translation>
    </message>
    <message>
        <source>nothing was written</source>
        <translation>何も書き込まれませんでした</translation>
    </message>
    <message>
        <source>the character %1 is not allowed</source>
        <translation>文字 %1 は使用できません</translation>
    </message>
    <message>
        <source>it is longer than %1 characters</source>
        <translation>%1 文字を超えています</translation>
    </message>
    <message>
        <source>The PDF user password cannot be used with 128-bit encryption: %1.</source>
        <translation>PDF のユーザーパスワードは 128 ビット暗号化に使用できません: %1。</translation>
    </message>
    <message>
        <source>The PDF owner password cannot be used with 128-bit encryption: %1.</source>
        <translation>PDF の所有者パスワードは 128 ビット暗号化に使用できません: %1。</translation>
    </message>
    <message>
        <source>Rendering was stopped.</source>
        <translation>レンダリングが停止されました。</translation>
    </message>
    <message>
        <source>Writing %1 failed: %2</source>
        <translation>%1 の書き込みに失敗しました: %2</translation>
    </message>
    <message>
        <source>A job file could not be written: %1</source>
        <translation>ジョブのファイルを書き込めませんでした: %1</translation>
    </message>
    <message>
        <source>%1 could not be started: %2</source>
        <translation>%1 を起動できませんでした: %2</translation>
    </message>
    <message>
        <source>%1 did not finish in time</source>
        <translation>%1 が時間内に終了しませんでした</translation>
    </message>
    <message>
        <source>%1 failed with status %2</source>
        <translation>%1 がステータス %2 で失敗しました</translation>
    </message>
    <message>
        <source>%1 failed: %2</source>
        <translation>%1 が失敗しました: %2</translation>
    </message>
    <message>
        <source>The output folder disappeared while the job rendered: %1</source>
        <translation>ジョブのレンダリング中に出力フォルダーがなくなりました: %1</translation>
    </message>
    <message>
        <source>The output folder&apos;s disk is full: %1</source>
        <translation>出力フォルダーのディスクがいっぱいです: %1</translation>
    </message>
    <message>
        <source>The output folder cannot be written: %1: %2</source>
        <translation>出力フォルダーに書き込めません: %1: %2</translation>
    </message>
    <message>
        <source>The files could not be moved into %1: %2</source>
        <translation>ファイルを %1 に移動できませんでした: %2</translation>
    </message>
    <message>
        <source>%1 is not installed (Debian package %2)</source>
        <translation>%1 がインストールされていません (Debian パッケージ %2)</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be read</source>
        <translation>ジョブの PostScript %1 を読み取れません</translation>
    </message>
    <message>
        <source>The job&apos;s PostScript %1 cannot be converted: %2</source>
        <translation>ジョブの PostScript %1 を変換できません: %2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read</source>
        <translation>ジョブの PDF %1 を読み取れません</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: its pages could not be counted</source>
        <translation>ジョブの PDF %1 を読み取れません: ページ数を数えられませんでした</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 cannot be read: %2</source>
        <translation>ジョブの PDF %1 を読み取れません: %2</translation>
    </message>
    <message>
        <source>The job&apos;s PDF %1 has no pages</source>
        <translation>ジョブの PDF %1 にページがありません</translation>
    </message>
    <message>
        <source>No output folder is set.</source>
        <translation>出力フォルダーが設定されていません。</translation>
    </message>
    <message>
        <source>The output folder does not exist: %1</source>
        <translation>出力フォルダーが存在しません: %1</translation>
    </message>
    <message>
        <source>The job has no file name.</source>
        <translation>ジョブにファイル名がありません。</translation>
    </message>
    <message>
        <source>The file name is too long: %1</source>
        <translation>ファイル名が長すぎます: %1</translation>
    </message>
    <message>
        <source>The format is unknown.</source>
        <translation>形式が不明です。</translation>
    </message>
</context>
<context>
    <name>SpoolFolder</name>
    <message>
        <source>the printer is not installed: there is no spool folder %1</source>
        <translation>プリンターがインストールされていません: スプールフォルダー %1 がありません</translation>
    </message>
    <message>
        <source>the spool folder %1 is not a folder of root closed to others</source>
        <translation>スプールフォルダー %1 は、他のユーザーに閉じられた root のフォルダーではありません</translation>
    </message>
    <message>
        <source>%1 is not this user&apos;s own folder with mode %2</source>
        <translation>%1 はこのユーザー自身のモード %2 のフォルダーではありません</translation>
    </message>
    <message>
        <source>the job&apos;s folder is missing or not the user&apos;s own</source>
        <translation>ジョブのフォルダーがないか、ユーザー自身のものではありません</translation>
    </message>
    <message>
        <source>the job&apos;s description is missing or damaged</source>
        <translation>ジョブの説明がないか、破損しています</translation>
    </message>
    <message>
        <source>the job&apos;s document is missing</source>
        <translation>ジョブの文書がありません</translation>
    </message>
    <message>
        <source>the job&apos;s document is incomplete</source>
        <translation>ジョブの文書が不完全です</translation>
    </message>
</context>
</TS>
