<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>cannot copy the settings file %1: %2</source>
        <translation>設定ファイル %1 をコピーできません：%2</translation>
    </message>
    <message>
        <source>the program does not run on these settings</source>
        <translation>この設定で実行中のプログラムはありません</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Cannot delete %1</source>
        <translation>削除できません：%1</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>書き込めません：%1</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Keep the settings in &lt;file&gt; instead of the platform&apos;s configuration folder.</source>
        <translation>設定をシステムの設定フォルダーではなく &lt;file&gt; に保存します。</translation>
    </message>
    <message>
        <source>Use &lt;language&gt; in this run, for example de or pt_BR.</source>
        <translation>今回の実行で &lt;language&gt; を使用します。例：de、pt_BR</translation>
    </message>
    <message>
        <source>Use the theme light or dark in this run.</source>
        <translation>今回の実行でテーマ light または dark を使用します。</translation>
    </message>
    <message>
        <source>Walk through the window on a copy of the settings (of a sample without --settings), write a picture of each state into &lt;folder&gt;, and end.</source>
        <translation>設定のコピー（--settings がない場合はサンプル）でウィンドウを巡回し、各状態の画像を &lt;folder&gt; に書き込んで終了します。</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>%1: %2 (try --help)</source>
        <translation>%1: %2（--help を参照）</translation>
    </message>
    <message>
        <source>option --%1 needs a value</source>
        <translation>オプション --%1 には値が必要です</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>予期しない引数「%1」</translation>
    </message>
    <message>
        <source>unknown theme &apos;%1&apos;; the themes are light and dark</source>
        <translation>不明なテーマ「%1」。テーマは light と dark です</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;; the languages are %2</source>
        <translation>不明な言語「%1」。言語は %2 です</translation>
    </message>
    <message>
        <source>Choose how screen recordings are timed.</source>
        <translation>画面録画のタイミングを選択します。</translation>
    </message>
    <message>
        <source>Start recording, in the program that runs already if there is one.</source>
        <translation>録画を開始します。プログラムが既に実行中の場合は、そのプログラムで開始します。</translation>
    </message>
    <message>
        <source>Stop the recording of the program that runs already.</source>
        <translation>既に実行中のプログラムの録画を停止します。</translation>
    </message>
    <message>
        <source>Pause the recording of the program that runs already, or go on with it.</source>
        <translation>既に実行中のプログラムの録画を一時停止または再開します。</translation>
    </message>
    <message>
        <source>End the program that runs already, without a question.</source>
        <translation>既に実行中のプログラムを確認なしで終了します。</translation>
    </message>
    <message>
        <source>Start without a window.</source>
        <translation>ウィンドウを表示せずに起動します。</translation>
    </message>
    <message>
        <source>options --%1 and --%2 cannot be used together</source>
        <translation>オプション --%1 と --%2 は同時に使用できません</translation>
    </message>
</context>
<context>
    <name>DurationText</name>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 時間 %2 分</translation>
    </message>
</context>
<context>
    <name>FooterState</name>
    <message>
        <source>Next: %1, as soon as possible</source>
        <translation>次：%1（できるだけ早く）</translation>
    </message>
    <message>
        <source>Next: %1 on %2</source>
        <translation>次：%1（%2）</translation>
    </message>
    <message>
        <source>Next: %1 in %2</source>
        <translation>次：%1（%2後）</translation>
    </message>
    <message>
        <source>The recording starts</source>
        <translation>録画を開始しています</translation>
    </message>
    <message>
        <source>%1 is about to start</source>
        <translation>%1の録画がまもなく始まります</translation>
    </message>
    <message>
        <source>%1 starts in %2</source>
        <translation>%1の録画は %2後に始まります</translation>
    </message>
    <message>
        <source>%1 starts when this recording has ended</source>
        <translation>この録画が終わると%1の録画が始まります</translation>
    </message>
    <message>
        <source>This recording will end for %1</source>
        <translation>%1の録画のため、この録画は終了します</translation>
    </message>
    <message>
        <source>Ends in %1 for %2</source>
        <translation>%2の録画のため %1後に終了</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>録画中</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>一時停止中：%1</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>録画中：%1</translation>
    </message>
    <message>
        <source>%1 is being saved</source>
        <translation>%1の録画を保存しています</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>%1 has been recorded</source>
        <translation>%1の録画が完了しました</translation>
    </message>
    <message>
        <source>%1 has been stopped</source>
        <translation>%1の録画を停止しました</translation>
    </message>
    <message>
        <source>%1 has been recorded in part</source>
        <translation>%1の録画は一部のみ完了しました</translation>
    </message>
    <message>
        <source>%1 has not been recorded</source>
        <translation>%1は録画されませんでした</translation>
    </message>
    <message>
        <source>%1 could not be recorded</source>
        <translation>%1を録画できませんでした</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>理由：%1。</translation>
    </message>
    <message>
        <source>The file is %1.</source>
        <translation>ファイルは %1 です。</translation>
    </message>
    <message>
        <source>The rest is recorded into a new file.</source>
        <translation>残りは新しいファイルに録画されます。</translation>
    </message>
    <message>
        <source>The computer cannot go to sleep</source>
        <translation>コンピューターをスリープにできません</translation>
    </message>
    <message>
        <source>The computer cannot hibernate</source>
        <translation>コンピューターを休止状態にできません</translation>
    </message>
    <message>
        <source>The computer cannot be restarted</source>
        <translation>コンピューターを再起動できません</translation>
    </message>
    <message>
        <source>The computer cannot be shut down</source>
        <translation>コンピューターをシャットダウンできません</translation>
    </message>
    <message>
        <source>The computer does not go to sleep</source>
        <translation>コンピューターはスリープしません</translation>
    </message>
    <message>
        <source>The computer does not hibernate</source>
        <translation>コンピューターは休止状態になりません</translation>
    </message>
    <message>
        <source>The computer is not restarted</source>
        <translation>コンピューターは再起動しません</translation>
    </message>
    <message>
        <source>The computer is not shut down</source>
        <translation>コンピューターはシャットダウンしません</translation>
    </message>
    <message>
        <source>%1 starts at %2.</source>
        <translation>%1の録画は %2 に始まります。</translation>
    </message>
    <message>
        <source>%1 is about to be recorded</source>
        <translation>%1の録画がまもなく始まります</translation>
    </message>
    <message>
        <source>The recording starts at %1.</source>
        <translation>録画は %1 に始まります。</translation>
    </message>
    <message>
        <source>%1 is being recorded</source>
        <translation>%1を録画しています</translation>
    </message>
    <message>
        <source>Your recording ends in a moment</source>
        <translation>現在の録画はまもなく終了します</translation>
    </message>
    <message>
        <source>%1 waits for its screen</source>
        <translation>%1の録画は画面の接続を待っています</translation>
    </message>
    <message>
        <source>It is recorded as soon as the screen is connected.</source>
        <translation>画面が接続されるとすぐに録画されます。</translation>
    </message>
    <message>
        <source>%1 does not start</source>
        <translation>%1の録画は開始されません</translation>
    </message>
    <message>
        <source>The disk is full: %1 are free.</source>
        <translation>ディスクがいっぱいです。空き容量は %1 です。</translation>
    </message>
    <message>
        <source>The recording is finished.</source>
        <translation>録画が終了しました。</translation>
    </message>
    <message>
        <source>There is a problem with %1</source>
        <translation>%1の録画に問題があります</translation>
    </message>
    <message>
        <source>your recording</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>The disk may be too small for the scheduled tasks</source>
        <translation>予定されたタスクに対してディスクの容量が足りない可能性があります</translation>
    </message>
    <message>
        <source>They are likely to need %1, and %2 can be used.</source>
        <translation>必要な容量は %1 程度ですが、使用できるのは %2 です。</translation>
    </message>
    <message>
        <source>The program runs on</source>
        <translation>プログラムは引き続き実行されます</translation>
    </message>
    <message>
        <source>Its icon shows the window again. You can change this on the page &quot;General&quot;.</source>
        <translation>アイコンからウィンドウを再び表示できます。この動作は「全般」ページで変更できます。</translation>
    </message>
    <message>
        <source>Not everything works on this desktop</source>
        <translation>このデスクトップでは一部の機能が動作しません</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>スキップ</translation>
    </message>
    <message>
        <source>Keep recording</source>
        <translation>録画を続ける</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>フォルダーで表示</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>今すぐ</translation>
    </message>
    <message>
        <source>The computer goes to sleep in %1</source>
        <translation>コンピューターは %1後にスリープします</translation>
    </message>
    <message>
        <source>The computer hibernates in %1</source>
        <translation>コンピューターは %1後に休止状態になります</translation>
    </message>
    <message>
        <source>The computer restarts in %1</source>
        <translation>コンピューターは %1後に再起動します</translation>
    </message>
    <message>
        <source>The computer shuts down in %1</source>
        <translation>コンピューターは %1後にシャットダウンします</translation>
    </message>
    <message>
        <source>Your recording</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>「%1」</translation>
    </message>
</context>
<context>
    <name>RecordingTexts</name>
    <message>
        <source>it started late</source>
        <translation>開始が遅れました</translation>
    </message>
    <message>
        <source>an earlier part of it broke off</source>
        <translation>前の部分が途中で途切れました</translation>
    </message>
    <message>
        <source>the recorder broke down</source>
        <translation>レコーダーが異常終了しました</translation>
    </message>
    <message>
        <source>the program ended unexpectedly</source>
        <translation>プログラムが予期せず終了しました</translation>
    </message>
    <message>
        <source>a task was due</source>
        <translation>タスクの開始時刻になりました</translation>
    </message>
    <message>
        <source>the computer was shut down</source>
        <translation>コンピューターがシャットダウンされました</translation>
    </message>
    <message>
        <source>the computer was asleep</source>
        <translation>コンピューターがスリープしていました</translation>
    </message>
    <message>
        <source>the program was not running</source>
        <translation>プログラムが実行されていませんでした</translation>
    </message>
    <message>
        <source>the schedule was off</source>
        <translation>スケジュールがオフになっていました</translation>
    </message>
    <message>
        <source>the clock was set</source>
        <translation>時計が変更されました</translation>
    </message>
    <message>
        <source>another recording was running</source>
        <translation>別の録画が進行中でした</translation>
    </message>
    <message>
        <source>the screen was not connected</source>
        <translation>画面が接続されていませんでした</translation>
    </message>
    <message>
        <source>you skipped it</source>
        <translation>ユーザーがスキップしました</translation>
    </message>
    <message>
        <source>the recorder is not installed</source>
        <translation>レコーダーがインストールされていません</translation>
    </message>
    <message>
        <source>the disk was nearly full</source>
        <translation>ディスクの空き容量がほとんどありませんでした</translation>
    </message>
    <message>
        <source>the disk was full</source>
        <translation>ディスクがいっぱいでした</translation>
    </message>
    <message>
        <source>the display was gone</source>
        <translation>ディスプレイが利用できなくなりました</translation>
    </message>
    <message>
        <source>the program was ended</source>
        <translation>プログラムが終了されました</translation>
    </message>
    <message>
        <source>the file existed already</source>
        <translation>ファイルが既に存在していました</translation>
    </message>
    <message>
        <source>the folder did not exist</source>
        <translation>フォルダーが存在しませんでした</translation>
    </message>
    <message>
        <source>the folder could not be written to</source>
        <translation>フォルダーに書き込めませんでした</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>デスクトップに許可されませんでした</translation>
    </message>
    <message>
        <source>no encoder works on this computer</source>
        <translation>このコンピューターで動作するエンコーダーがありません</translation>
    </message>
    <message>
        <source>nothing was recorded</source>
        <translation>何も録画されませんでした</translation>
    </message>
    <message>
        <source>the conversion to MP4 failed</source>
        <translation>MP4 への変換に失敗しました</translation>
    </message>
    <message>
        <source>the recorder reported an error</source>
        <translation>レコーダーがエラーを報告しました</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>一部のみ</translation>
    </message>
    <message>
        <source>Stopped by you</source>
        <translation>手動で停止</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>未録画</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Recording now</source>
        <translation>録画中</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::AreaOverlay</name>
    <message>
        <source>Area of the screen</source>
        <translation>画面の範囲</translation>
    </message>
    <message>
        <source>Draw the area with the mouse, or move it with the arrow keys and resize it with Shift and the arrow keys. Enter takes it, Escape cancels.</source>
        <translation>マウスで範囲を描くか、矢印キーで移動し、Shift と矢印キーでサイズを変更します。Enter で確定、Esc でキャンセルします。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::CalendarLook</name>
    <message>
        <source>Today</source>
        <translation>今日</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>ウィンドウを表示</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::FigureLabel</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::FilesPage</name>
    <message>
        <source>&amp;Folder for recordings:</source>
        <translation>録画の保存フォルダー(&amp;F)：</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>録画の保存フォルダー</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>参照(&amp;B)…</translation>
    </message>
    <message>
        <source>Browse for the folder for recordings</source>
        <translation>録画の保存フォルダーを参照</translation>
    </message>
    <message>
        <source>Enter the full path of a folder.</source>
        <translation>フォルダーのフルパスを入力してください。</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>これはフォルダーではなくファイルです。</translation>
    </message>
    <message>
        <source>You are not allowed to write into this folder.</source>
        <translation>このフォルダーに書き込む権限がありません。</translation>
    </message>
    <message>
        <source>The free space of this folder is unknown.</source>
        <translation>このフォルダーの空き容量は不明です。</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>空き容量：%1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Choose where recordings are kept.</source>
        <translation>録画の保存先を選択します。</translation>
    </message>
    <message>
        <source>This folder cannot be created.</source>
        <translation>このフォルダーは作成できません。</translation>
    </message>
    <message>
        <source>This folder does not exist yet. It will be created with the first recording.</source>
        <translation>このフォルダーはまだありません。最初の録画のときに作成されます。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::GeneralPage</name>
    <message>
        <source>In this run: %1 (chosen at the start)</source>
        <translation>今回の実行：%1（起動時に指定）</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>言語(&amp;L)：</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <translation>システムの設定（%1）</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>テーマ(&amp;T)：</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>システムの設定</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>&amp;Ask all questions again</source>
        <translation>すべての質問を再表示(&amp;A)</translation>
    </message>
    <message>
        <source>Open settings &amp;folder</source>
        <translation>設定フォルダーを開く(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open log</source>
        <translation>ログを開く(&amp;O)</translation>
    </message>
    <message>
        <source>There is no log of this run.</source>
        <translation>今回の実行のログはありません。</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>開けません：%1</translation>
    </message>
    <message>
        <source>Some questions are no longer asked.</source>
        <translation>選択により、一部の質問は表示されなくなっています。</translation>
    </message>
    <message>
        <source>Every question is asked, for example before a task is deleted.</source>
        <translation>タスクを削除する前など、すべての質問が表示されます。</translation>
    </message>
    <message>
        <source>All questions will be asked again</source>
        <translation>すべての質問が再び表示されます</translation>
    </message>
    <message>
        <source>When something goes wrong, your settings and the log of this run help to find out why.</source>
        <translation>問題が起きたときは、設定と今回の実行のログが原因を調べる手がかりになります。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>Choose language and theme.</source>
        <translation>アプリケーションの言語と外観を選択します。</translation>
    </message>
    <message>
        <source>Start &amp;with the desktop</source>
        <translation>デスクトップと同時に起動(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Keep running when the window is closed</source>
        <translation>ウィンドウを閉じても実行を続ける(&amp;K)</translation>
    </message>
    <message>
        <source>While tasks are pending or a recording runs, the program stays in the tray. Where there is none, its window is minimized.</source>
        <translation>予定されたタスクがある間や録画中は、プログラムはトレイに残ります。トレイがない場合は、ウィンドウが最小化されます。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::MainWindow</name>
    <message>
        <source>Recording Scheduler</source>
        <translation>録画スケジューラー</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>設定ページ</translation>
    </message>
    <message>
        <source>Your changes are saved again.</source>
        <translation>変更は再び保存されるようになりました。</translation>
    </message>
    <message>
        <source>Your changes could not be saved. They will be lost if you close the window now.</source>
        <translation>変更を保存できませんでした。今ウィンドウを閉じると、変更は失われます。</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>それでも閉じる</translation>
    </message>
    <message>
        <source>The recording that is running will be stopped.</source>
        <translation>進行中の録画は停止されます。</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) are still to come. They will not be recorded when the program is not running.</source>
        <translation>
            <numerusform>これから録画するタスクが %n 件あります。プログラムが実行されていないと録画されません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Close notice</source>
        <translation>通知を閉じる</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAnnouncer</name>
    <message>
        <source>Task added: %1</source>
        <translation>タスクを追加しました：%1</translation>
    </message>
    <message>
        <source>All tasks deleted</source>
        <translation>すべてのタスクを削除しました</translation>
    </message>
    <message>
        <source>Task deleted: %1</source>
        <translation>タスクを削除しました：%1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAreaTip</name>
    <message>
        <source>No area has been selected yet: all of screen 1 (%1) is recorded. You can select an area on the page &quot;Recording&quot;.</source>
        <translation>範囲がまだ選択されていないため、画面 1（%1）全体を録画します。範囲は「録画」ページで選択できます。</translation>
    </message>
    <message>
        <source>Records %1, the area that is selected on the page &quot;Recording&quot;.</source>
        <translation>「録画」ページで選択した範囲（%1）を録画します。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelNameGuard</name>
    <message>
        <source>A name cannot contain line breaks or other control characters.</source>
        <translation>名前に改行などの制御文字は使用できません。</translation>
    </message>
    <message>
        <source>A name cannot contain: %1</source>
        <translation>名前に使用できない文字：%1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelTaskDetails</name>
    <message>
        <source>This task is over.</source>
        <translation>このタスクは終了しています。</translation>
    </message>
    <message>
        <source>Afterwards: %1</source>
        <translation>終了後：%1</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>%1 に終了</translation>
    </message>
    <message>
        <source>Ends on the next day at %1</source>
        <translation>翌日 %1 に終了</translation>
    </message>
    <message>
        <source>Records screen %1, which is not connected</source>
        <translation>接続されていない画面 %1 を録画</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>録画する範囲：%1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PictureCard</name>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>1 秒あたりのフレーム数(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>品質(&amp;Q)：</translation>
    </message>
    <message>
        <source>Fil&amp;e format:</source>
        <translation>ファイル形式(&amp;E)：</translation>
    </message>
    <message>
        <source>Matroska (.mkv)</source>
        <translation>Matroska (.mkv)</translation>
    </message>
    <message>
        <source>MP4 (.mp4)</source>
        <translation>MP4 (.mp4)</translation>
    </message>
    <message>
        <source>Record the mouse &amp;pointer</source>
        <translation>マウスポインターを録画(&amp;P)</translation>
    </message>
    <message>
        <source>Small: about %1 an hour</source>
        <translation>小サイズ：1 時間あたり約 %1</translation>
    </message>
    <message>
        <source>Normal: about %1 an hour</source>
        <translation>標準：1 時間あたり約 %1</translation>
    </message>
    <message>
        <source>High: about %1 an hour</source>
        <translation>高品質：1 時間あたり約 %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingControl</name>
    <message>
        <source>A task is about to start.</source>
        <translation>タスクがまもなく始まります。</translation>
    </message>
    <message>
        <source>The desktop shows no notifications. The page &quot;Recordings&quot; tells what was recorded, and what was not.</source>
        <translation>このデスクトップは通知を表示しません。録画できたものとできなかったものは「録画一覧」ページで確認できます。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingFooter</name>
    <message>
        <source>Recording</source>
        <translation>録画中</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>録画済み</translation>
    </message>
    <message>
        <source>End</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>ファイルサイズ</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>空き容量</translation>
    </message>
    <message>
        <source>Dropped frames</source>
        <translation>欠落したフレーム</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>録画を開始(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>スキップ(&amp;K)</translation>
    </message>
    <message>
        <source>Skip this task</source>
        <translation>このタスクをスキップ</translation>
    </message>
    <message>
        <source>&amp;Keep recording</source>
        <translation>録画を続ける(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>今すぐ(&amp;N)</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>%1 まで</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>空き %1</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) dropped</source>
        <translation>
            <numerusform>%n フレーム欠落</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>再開(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>一時停止(&amp;P)</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingPage</name>
    <message>
        <source>Recording</source>
        <translation>録画</translation>
    </message>
    <message>
        <source>Choose what is recorded, and how.</source>
        <translation>録画する対象と方法を選択します。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsModel</name>
    <message>
        <source>the file is gone</source>
        <translation>ファイルがありません</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsPage</name>
    <message>
        <source>Recordings</source>
        <translation>録画一覧</translation>
    </message>
    <message>
        <source>What was recorded, and what was not.</source>
        <translation>録画されたものと、録画されなかったものを表示します。</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. Start a recording with the button below, or plan one on the page Schedule; it is listed here then.</source>
        <translation>まだ何も録画されていません。下のボタンで録画を開始するか、「スケジュール」ページで予約すると、ここに表示されます。</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>開く(&amp;O)</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>フォルダーで表示(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>修復(&amp;R)</translation>
    </message>
    <message>
        <source>Adds what a crash has kept from the end of the file, so that players can seek in it.</source>
        <translation>異常終了のためにファイルの末尾に書き込まれなかった情報を追加し、プレーヤーでシークできるようにします。</translation>
    </message>
    <message>
        <source>Move to &amp;trash</source>
        <translation>ごみ箱に移動(&amp;T)</translation>
    </message>
    <message>
        <source>Remove from &amp;list</source>
        <translation>一覧から削除(&amp;L)</translation>
    </message>
    <message>
        <source>There is no file of this recording.</source>
        <translation>この録画のファイルはありません。</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>開けません：%1</translation>
    </message>
    <message>
        <source>Repairing: %1</source>
        <translation>修復しています：%1</translation>
    </message>
    <message>
        <source>Repaired: %1</source>
        <translation>修復しました：%1</translation>
    </message>
    <message>
        <source>%1 could not be repaired</source>
        <translation>修復できませんでした：%1</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; will be moved to the trash. Are you sure?</source>
        <translation>録画「%1」はごみ箱に移動されます。よろしいですか？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will be removed from the list. Are you sure?</source>
        <translation>「%1」は一覧から削除されます。よろしいですか？</translation>
    </message>
    <message>
        <source>Move to trash</source>
        <translation>ごみ箱に移動</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash</source>
        <translation>%1 をごみ箱に移動できませんでした</translation>
    </message>
    <message>
        <source>Removed from the list: %1</source>
        <translation>一覧から削除しました：%1</translation>
    </message>
    <message>
        <source>Moved to the trash: %1</source>
        <translation>ごみ箱に移動しました：%1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>スケジュール</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>録画スケジュール</translation>
    </message>
    <message>
        <source>Choose when a recording stops by itself, and which recordings start by themselves.</source>
        <translation>録画を自動で停止するタイミングと、自動で開始する録画を選択します。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::ScreenshotTour</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>フォルダー %1 を作成できません</translation>
    </message>
    <message>
        <source>cannot reach: %1</source>
        <translation>到達できません：%1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>%1 を書き込めません</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundCard</name>
    <message>
        <source>Record the sound of:</source>
        <translation>音声を録音するデバイス：</translation>
    </message>
    <message>
        <source>Sound devices</source>
        <translation>サウンドデバイス</translation>
    </message>
    <message>
        <source>All sound in one trac&amp;k</source>
        <translation>すべての音声を 1 つのトラックに録音(&amp;K)</translation>
    </message>
    <message>
        <source>Otherwise each device has a track of its own, for editing. Most players play only the first.</source>
        <translation>オフの場合は、編集用にデバイスごとに別々のトラックになります。ほとんどのプレーヤーは最初のトラックのみを再生します。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceList</name>
    <message>
        <source>Looking for sound devices...</source>
        <translation>サウンドデバイスを探しています…</translation>
    </message>
    <message>
        <source>The sound devices of this computer cannot be listed.</source>
        <translation>このコンピューターのサウンドデバイスの一覧を取得できません。</translation>
    </message>
    <message>
        <source>There are no sound devices on this computer.</source>
        <translation>このコンピューターにはサウンドデバイスがありません。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceRow</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1（未接続）</translation>
    </message>
    <message>
        <source>Level of %1</source>
        <translation>%1 のレベル</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SourceCard</name>
    <message>
        <source>Record a s&amp;creen</source>
        <translation>画面を録画(&amp;C)</translation>
    </message>
    <message>
        <source>Screen that is recorded</source>
        <translation>録画する画面</translation>
    </message>
    <message>
        <source>Record the selected &amp;area</source>
        <translation>選択した範囲を録画(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>左(&amp;L)：</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>上(&amp;T)：</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>幅(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>高さ(&amp;H)：</translation>
    </message>
    <message>
        <source>Left edge of the area in pixels</source>
        <translation>範囲の左端（ピクセル）</translation>
    </message>
    <message>
        <source>Top edge of the area in pixels</source>
        <translation>範囲の上端（ピクセル）</translation>
    </message>
    <message>
        <source>Width of the area in pixels</source>
        <translation>範囲の幅（ピクセル）</translation>
    </message>
    <message>
        <source>Height of the area in pixels</source>
        <translation>範囲の高さ（ピクセル）</translation>
    </message>
    <message>
        <source>Choose o&amp;n the screen...</source>
        <translation>画面上で選択(&amp;N)…</translation>
    </message>
    <message>
        <source>Show &amp;outline</source>
        <translation>枠を表示(&amp;O)</translation>
    </message>
    <message>
        <source>Screen %1, %2</source>
        <translation>画面 %1、%2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1：%2、%3</translation>
    </message>
    <message>
        <source>Screen %1 (not connected)</source>
        <translation>画面 %1（未接続）</translation>
    </message>
    <message>
        <source>No area has been selected yet: all of screen 1 is recorded instead, also by tasks with &quot;Selected area&quot;.</source>
        <translation>範囲がまだ選択されていないため、代わりに画面 1 全体を録画します。「選択した範囲」のタスクも同様です。</translation>
    </message>
    <message>
        <source>Tasks with &quot;Selected area&quot; record this area, too.</source>
        <translation>「選択した範囲」のタスクもこの範囲を録画します。</translation>
    </message>
    <message>
        <source>The screen that is to be recorded is not connected.</source>
        <translation>録画する画面が接続されていません。</translation>
    </message>
    <message>
        <source>The selected area is not on any screen.</source>
        <translation>選択した範囲はどの画面上にもありません。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrayIcon</name>
    <message>
        <source>&amp;Start recording</source>
        <translation>録画を開始(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>Show &amp;window</source>
        <translation>ウィンドウを表示(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>録画していません</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>録画中</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>再開(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>一時停止(&amp;P)</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrialCard</name>
    <message>
        <source>See and hear what a recording with these settings is like.</source>
        <translation>この設定で録画したときの映像と音声を確認できます。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Try fi&amp;ve seconds</source>
        <translation>5 秒間試す(&amp;V)</translation>
    </message>
    <message>
        <source>Trial recording</source>
        <translation>テスト録画</translation>
    </message>
    <message>
        <source>The trial recording was cancelled.</source>
        <translation>テスト録画はキャンセルされました。</translation>
    </message>
    <message>
        <source>The trial recording was made, but there is no program that opens it: %1</source>
        <translation>テスト録画は作成されましたが、開くためのプログラムがありません：%1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened. The recorder says: %1</source>
        <translation>テスト録画を作成して開きました。レコーダーからのメッセージ：%1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened.</source>
        <translation>テスト録画を作成して開きました。</translation>
    </message>
    <message>
        <source>The recorder px-recorder cannot be started. Is it installed completely?</source>
        <translation>レコーダー px-recorder を起動できません。完全にインストールされていますか？</translation>
    </message>
    <message>
        <source>Nothing could be recorded. The recorder says: %1</source>
        <translation>何も録画できませんでした。レコーダーからのメッセージ：%1</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::Inhibitors</name>
    <message>
        <source>The computer cannot be kept from going to sleep while it records.</source>
        <translation>録画中にコンピューターがスリープするのを防ぐことができません。</translation>
    </message>
    <message>
        <source>The computer cannot be kept from being shut down before the file is closed.</source>
        <translation>ファイルが閉じられる前にコンピューターがシャットダウンされるのを防ぐことができません。</translation>
    </message>
    <message>
        <source>The screen cannot be kept from going dark while it is recorded.</source>
        <translation>録画中に画面が消えるのを防ぐことができません。</translation>
    </message>
    <message>
        <source>A recording is running.</source>
        <translation>録画が進行中です。</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecorderProcess</name>
    <message>
        <source>%1 is of another version</source>
        <translation>%1 はバージョンが異なります</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1 を起動できません：%2</translation>
    </message>
    <message>
        <source>The recorder crashed (signal %1).</source>
        <translation>レコーダーがクラッシュしました（シグナル %1）。</translation>
    </message>
    <message>
        <source>The recorder ended unexpectedly (exit status %1).</source>
        <translation>レコーダーが予期せず終了しました（終了ステータス %1）。</translation>
    </message>
    <message>
        <source>The recorder did not start in time.</source>
        <translation>レコーダーが時間内に起動しませんでした。</translation>
    </message>
    <message>
        <source>The recorder stopped responding.</source>
        <translation>レコーダーが応答しなくなりました。</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecordingsList</name>
    <message>
        <source>The list of recordings %1 cannot be read: %2</source>
        <translation>録画一覧 %1 を読み込めません：%2</translation>
    </message>
    <message>
        <source>The list of recordings %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>録画一覧 %1 は破損しており、別の名前で保管できません：%2</translation>
    </message>
    <message>
        <source>Some entries of the list of recordings could not be used. What the file held is kept in %1.</source>
        <translation>録画一覧の一部の項目を使用できませんでした。ファイルの元の内容は %1 に保管されています。</translation>
    </message>
    <message>
        <source>The list of recordings could not be understood, so it begins anew. What it held is kept in %1.</source>
        <translation>録画一覧を解釈できなかったため、新しく作り直されます。元の内容は %1 に保管されています。</translation>
    </message>
    <message>
        <source>%1: the list of recordings is not saved in %2</source>
        <translation>%1: 録画一覧は %2 に保存されていません</translation>
    </message>
</context>
</TS>
