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
</context>
<context>
    <name>CaptureControllerWrapper</name>
    <message>
        <source>Could not start recording because there is not enough disk space. Free more disk space and try again. Or set a different disk drive for storing output videos in %1File Preferences%2. </source>
        <translation>ディスクの空き容量が不足しているため、録画を開始できませんでした。空き容量を増やしてからもう一度お試しください。または、%1ファイル設定%2で録画の保存先を別のドライブに変更してください。</translation>
    </message>
    <message>
        <source>File Preferences</source>
        <translation>ファイル設定</translation>
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
</context>
<context>
    <name>CreateRecordTaskWidget</name>
    <message>
        <source>New record:</source>
        <translation>新しい録画：</translation>
    </message>
    <message>
        <source>Action on finish:</source>
        <translation>終了時の動作(&amp;A)：</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>作成</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>ファイル名(&amp;N)：</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>日付(&amp;D)：</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>yyyy/MM/dd</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>時刻(&amp;T)：</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>録画時間(&amp;U)：</translation>
    </message>
    <message>
        <source>Capture:</source>
        <translation>範囲：</translation>
    </message>
    <message>
        <source>Selected area</source>
        <translation>選択した範囲</translation>
    </message>
    <message>
        <source>Selected area tooltip</source>
        <translation>設定で選択した範囲を録画します。選択していない場合は、最初の画面全体を録画します。
このバージョンではまだ録画できません。</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>全画面</translation>
    </message>
    <message>
        <source>Need select task name</source>
        <translation>タスクの名前を入力してください。</translation>
    </message>
    <message>
        <source>Task with this title already exist</source>
        <translation>同じ名前のタスクが既に存在します。</translation>
    </message>
    <message>
        <source>Curent capture time intersect with other capture time in the list</source>
        <translation>この録画の時間帯は、一覧にある別の録画と重なっています。</translation>
    </message>
</context>
<context>
    <name>PowerAction</name>
    <message>
        <source>Do nothing</source>
        <translation>何もしない</translation>
    </message>
    <message>
        <source>Quit the application</source>
        <translation>アプリを終了</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>スリープ</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>休止状態</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>再起動</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>シャットダウン</translation>
    </message>
</context>
<context>
    <name>RecordSchedulerWidget</name>
    <message>
        <source>All tasks will be permanently deleted from the recording schedule. Are you sure you want to continue?</source>
        <translation>すべてのタスクが録画スケジュールから完全に削除されます。続行してもよろしいですか？</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>The task hasn&apos;t been saved. Would you like to add this task to the recording schedule?</source>
        <translation>タスクが保存されていません。このタスクを録画スケジュールに追加しますか？</translation>
    </message>
    <message>
        <source>Don&apos;t Add</source>
        <translation>追加しない</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Do not schedule capture</source>
        <translation>録画を予約しない(&amp;C)</translation>
    </message>
    <message>
        <source>Stop capture after</source>
        <translation>指定時間後に録画を停止(&amp;P)</translation>
    </message>
    <message>
        <source>Record on schedule</source>
        <translation>スケジュールに従って録画(&amp;R)</translation>
    </message>
    <message>
        <source>Add record event</source>
        <translation>録画を追加</translation>
    </message>
    <message>
        <source>Capture duration in limited capture:</source>
        <translation>録画時間(&amp;U)：</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>When capture ends:</source>
        <translation>録画終了後(&amp;W)：</translation>
    </message>
</context>
<context>
    <name>ScheduleRecordTableWidget</name>
    <message>
        <source>Task </source>
        <translation>タスク</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>録画時間</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>yyyy/MM/dd</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>The task will be permanently deleted from the recording schedule. Are you sure you want to delete the task?</source>
        <translation>このタスクは録画スケジュールから完全に削除されます。タスクを削除してもよろしいですか？</translation>
    </message>
    <message>
        <source>Always delete</source>
        <translation>常に削除する</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The settings file %1 is not a file.</source>
        <translation>設定ファイル %1 はファイルではありません。</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder is missing and cannot be created either.</source>
        <translation>設定ファイル %1 を作成できません。フォルダーが存在せず、作成することもできません。</translation>
    </message>
    <message>
        <source>The settings file %1 is in use by another process.</source>
        <translation>設定ファイル %1 は別のプロセスが使用中です。</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder cannot be written to.</source>
        <translation>設定ファイル %1 を作成できません。フォルダーに書き込めません。</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <translation>設定ファイル %1 を読み込めません：%2</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>設定ファイル %1 は破損しており、別の名前で保管できません：%2</translation>
    </message>
    <message>
        <source>The settings file could not be understood, so the defaults are in use. What it held is kept in %1.</source>
        <translation>設定ファイルを解釈できなかったため、既定値を使用しています。元の内容は %1 に保管されています。</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. Tasks left out: %2. What the file held is kept in %1.</source>
        <translation>一部の設定を使用できませんでした。除外されたタスク：%2。ファイルの元の内容は %1 に保管されています。</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. What the file held is kept in %1.</source>
        <translation>一部の設定を使用できませんでした。ファイルの元の内容は %1 に保管されています。</translation>
    </message>
    <message>
        <source>Another program has changed the settings file. Its version is kept in %1; the settings shown here stay in use.</source>
        <translation>別のプログラムが設定ファイルを変更しました。変更された内容は %1 に保管され、ここに表示されている設定が引き続き使われます。</translation>
    </message>
    <message>
        <source>Only a part of the file could be read</source>
        <translation>ファイルの一部しか読み込めませんでした</translation>
    </message>
    <message>
        <source>%2: your changes are not saved in %1</source>
        <translation>%2: 変更は %1 に保存されていません</translation>
    </message>
    <message>
        <source>The file is in use by another process</source>
        <translation>ファイルは別のプロセスが使用中です</translation>
    </message>
    <message>
        <source>The folder cannot be written to</source>
        <translation>フォルダーに書き込めません</translation>
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
        <source>Ready to record</source>
        <translation>録画の準備ができました</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>録画を開始(&amp;S)</translation>
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
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>スケジュール</translation>
    </message>
    <message>
        <source>Choose when a recording stops or starts by itself. Your choice is kept; this version does not record yet.</source>
        <translation>録画を自動的に停止または開始するタイミングを選択します。選択は保存されますが、このバージョンではまだ録画されません。</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>録画スケジュール</translation>
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
</TS>
