<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
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
        <translation>設定で選択した範囲を録画します。選択していない場合は、最初の画面全体を録画します。</translation>
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
</TS>
