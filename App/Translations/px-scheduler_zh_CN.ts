<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>cannot copy the settings file %1: %2</source>
        <translation>无法复制设置文件 %1：%2</translation>
    </message>
</context>
<context>
    <name>CaptureControllerWrapper</name>
    <message>
        <source>Could not start recording because there is not enough disk space. Free more disk space and try again. Or set a different disk drive for storing output videos in %1File Preferences%2. </source>
        <translation>磁盘空间不足，无法开始录制。请释放磁盘空间后重试，或在%1文件设置%2中为录制内容选择其他磁盘。</translation>
    </message>
    <message>
        <source>File Preferences</source>
        <translation>文件设置</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Keep the settings in &lt;file&gt; instead of the platform&apos;s configuration folder.</source>
        <translation>将设置保存在 &lt;file&gt; 中，而不是系统的配置文件夹中。</translation>
    </message>
    <message>
        <source>Use &lt;language&gt; in this run, for example de or pt_BR.</source>
        <translation>本次运行使用 &lt;language&gt;，例如 de 或 pt_BR。</translation>
    </message>
    <message>
        <source>Use the theme light or dark in this run.</source>
        <translation>本次运行使用主题 light 或 dark。</translation>
    </message>
    <message>
        <source>Walk through the window on a copy of the settings (of a sample without --settings), write a picture of each state into &lt;folder&gt;, and end.</source>
        <translation>使用设置的副本（没有 --settings 时使用示例）遍历窗口，将每个状态的图片写入 &lt;folder&gt;，然后结束。</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>%1: %2 (try --help)</source>
        <translation>%1：%2（请尝试 --help）</translation>
    </message>
    <message>
        <source>option --%1 needs a value</source>
        <translation>选项 --%1 需要一个值</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>意外的参数“%1”</translation>
    </message>
    <message>
        <source>unknown theme &apos;%1&apos;; the themes are light and dark</source>
        <translation>未知主题“%1”；可用主题为 light 和 dark</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;; the languages are %2</source>
        <translation>未知语言“%1”；可用语言为 %2</translation>
    </message>
    <message>
        <source>Choose how screen recordings are timed.</source>
        <translation>选择屏幕录制的时间安排。</translation>
    </message>
</context>
<context>
    <name>CreateRecordTaskWidget</name>
    <message>
        <source>New record:</source>
        <translation>新建录制：</translation>
    </message>
    <message>
        <source>Action on finish:</source>
        <translation>完成后操作(&amp;A)：</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>文件名(&amp;N)：</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>日期(&amp;D)：</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>yyyy-MM-dd</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>时间(&amp;T)：</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>时长(&amp;U)：</translation>
    </message>
    <message>
        <source>Capture:</source>
        <translation>录制区域：</translation>
    </message>
    <message>
        <source>Selected area</source>
        <translation>所选区域</translation>
    </message>
    <message>
        <source>Selected area tooltip</source>
        <translation>录制设置中选择的区域；未选择时，录制整个第一个屏幕。
此版本尚不能录制。</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Need select task name</source>
        <translation>请输入任务名称。</translation>
    </message>
    <message>
        <source>Task with this title already exist</source>
        <translation>已存在同名任务。</translation>
    </message>
    <message>
        <source>Curent capture time intersect with other capture time in the list</source>
        <translation>此录制的时间与列表中的其他录制重叠。</translation>
    </message>
</context>
<context>
    <name>PowerAction</name>
    <message>
        <source>Do nothing</source>
        <translation>不执行任何操作</translation>
    </message>
    <message>
        <source>Quit the application</source>
        <translation>退出应用</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>睡眠</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>休眠</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>重启</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>关机</translation>
    </message>
</context>
<context>
    <name>RecordSchedulerWidget</name>
    <message>
        <source>All tasks will be permanently deleted from the recording schedule. Are you sure you want to continue?</source>
        <translation>所有任务都将从录制计划中永久删除。确定要继续吗？</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>The task hasn&apos;t been saved. Would you like to add this task to the recording schedule?</source>
        <translation>任务尚未保存。是否将此任务添加到录制计划？</translation>
    </message>
    <message>
        <source>Don&apos;t Add</source>
        <translation>不添加</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Do not schedule capture</source>
        <translation>不计划录制(&amp;C)</translation>
    </message>
    <message>
        <source>Stop capture after</source>
        <translation>在指定时长后停止录制(&amp;P)</translation>
    </message>
    <message>
        <source>Record on schedule</source>
        <translation>按计划录制(&amp;R)</translation>
    </message>
    <message>
        <source>Add record event</source>
        <translation>添加录制</translation>
    </message>
    <message>
        <source>Capture duration in limited capture:</source>
        <translation>录制时长(&amp;U)：</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>When capture ends:</source>
        <translation>录制结束时(&amp;W)：</translation>
    </message>
</context>
<context>
    <name>ScheduleRecordTableWidget</name>
    <message>
        <source>Task </source>
        <translation>任务</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>yyyy-MM-dd</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>The task will be permanently deleted from the recording schedule. Are you sure you want to delete the task?</source>
        <translation>该任务将从录制计划中永久删除。确定要删除该任务吗？</translation>
    </message>
    <message>
        <source>Always delete</source>
        <translation>始终删除</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The settings file %1 is not a file.</source>
        <translation>设置文件 %1 不是文件。</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder is missing and cannot be created either.</source>
        <translation>无法创建设置文件 %1：其所在文件夹不存在，也无法创建。</translation>
    </message>
    <message>
        <source>The settings file %1 is in use by another process.</source>
        <translation>设置文件 %1 正被其他进程使用。</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder cannot be written to.</source>
        <translation>无法创建设置文件 %1：其所在文件夹不可写。</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <translation>无法读取设置文件 %1：%2</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>设置文件 %1 已损坏，且无法以其他名称保留：%2</translation>
    </message>
    <message>
        <source>The settings file could not be understood, so the defaults are in use. What it held is kept in %1.</source>
        <translation>无法识别设置文件，因此使用默认设置。原有内容保留在 %1 中。</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. Tasks left out: %2. What the file held is kept in %1.</source>
        <translation>部分设置无法使用。略去的任务数：%2。文件的原有内容保留在 %1 中。</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. What the file held is kept in %1.</source>
        <translation>部分设置无法使用。文件的原有内容保留在 %1 中。</translation>
    </message>
    <message>
        <source>Another program has changed the settings file. Its version is kept in %1; the settings shown here stay in use.</source>
        <translation>其他程序更改了设置文件。其版本保留在 %1 中；此处显示的设置继续生效。</translation>
    </message>
    <message>
        <source>Only a part of the file could be read</source>
        <translation>只能读取文件的一部分</translation>
    </message>
    <message>
        <source>%2: your changes are not saved in %1</source>
        <translation>%2：您的更改未保存到 %1</translation>
    </message>
    <message>
        <source>The file is in use by another process</source>
        <translation>文件正被另一个进程使用</translation>
    </message>
    <message>
        <source>The folder cannot be written to</source>
        <translation>无法写入该文件夹</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::CalendarLook</name>
    <message>
        <source>Today</source>
        <translation>今天</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::FilesPage</name>
    <message>
        <source>&amp;Folder for recordings:</source>
        <translation>录制文件夹(&amp;F)：</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>录制文件夹</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>浏览(&amp;B)…</translation>
    </message>
    <message>
        <source>Browse for the folder for recordings</source>
        <translation>浏览录制文件夹</translation>
    </message>
    <message>
        <source>Enter the full path of a folder.</source>
        <translation>请输入文件夹的完整路径。</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>这是文件，不是文件夹。</translation>
    </message>
    <message>
        <source>You are not allowed to write into this folder.</source>
        <translation>您没有此文件夹的写入权限。</translation>
    </message>
    <message>
        <source>The free space of this folder is unknown.</source>
        <translation>无法获知此文件夹的可用空间。</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>可用空间：%1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Choose where recordings are kept.</source>
        <translation>选择录制内容的保存位置。</translation>
    </message>
    <message>
        <source>This folder cannot be created.</source>
        <translation>无法创建此文件夹。</translation>
    </message>
    <message>
        <source>This folder does not exist yet. It will be created with the first recording.</source>
        <translation>此文件夹尚不存在，将在首次录制时创建。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::GeneralPage</name>
    <message>
        <source>In this run: %1 (chosen at the start)</source>
        <translation>本次运行：%1（启动时指定）</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>语言(&amp;L)：</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <translation>跟随系统（%1）</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>主题(&amp;T)：</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>跟随系统</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>&amp;Ask all questions again</source>
        <translation>重新显示所有询问(&amp;A)</translation>
    </message>
    <message>
        <source>Open settings &amp;folder</source>
        <translation>打开设置文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Open log</source>
        <translation>打开日志(&amp;O)</translation>
    </message>
    <message>
        <source>There is no log of this run.</source>
        <translation>没有本次运行的日志。</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>无法打开：%1</translation>
    </message>
    <message>
        <source>Some questions are no longer asked.</source>
        <translation>按照您的选择，部分询问不再显示。</translation>
    </message>
    <message>
        <source>Every question is asked, for example before a task is deleted.</source>
        <translation>所有询问都会显示，例如在删除任务之前。</translation>
    </message>
    <message>
        <source>All questions will be asked again</source>
        <translation>所有询问将重新显示</translation>
    </message>
    <message>
        <source>When something goes wrong, your settings and the log of this run help to find out why.</source>
        <translation>出现问题时，您的设置和本次运行的日志有助于查明原因。</translation>
    </message>
    <message>
        <source>General</source>
        <translation>常规</translation>
    </message>
    <message>
        <source>Choose language and theme.</source>
        <translation>选择应用程序的语言和外观。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::MainWindow</name>
    <message>
        <source>Recording Scheduler</source>
        <translation>录制计划</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>设置页面</translation>
    </message>
    <message>
        <source>Your changes are saved again.</source>
        <translation>更改已恢复保存。</translation>
    </message>
    <message>
        <source>Your changes could not be saved. They will be lost if you close the window now.</source>
        <translation>无法保存更改。现在关闭窗口，更改将会丢失。</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>仍然关闭</translation>
    </message>
    <message>
        <source>Ready to record</source>
        <translation>准备就绪，可以录制</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>开始录制(&amp;S)</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Close notice</source>
        <translation>关闭通知</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAnnouncer</name>
    <message>
        <source>Task added: %1</source>
        <translation>已添加任务：%1</translation>
    </message>
    <message>
        <source>All tasks deleted</source>
        <translation>已删除所有任务</translation>
    </message>
    <message>
        <source>Task deleted: %1</source>
        <translation>已删除任务：%1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelNameGuard</name>
    <message>
        <source>A name cannot contain line breaks or other control characters.</source>
        <translation>名称不能包含换行符或其他控制字符。</translation>
    </message>
    <message>
        <source>A name cannot contain: %1</source>
        <translation>名称不能包含：%1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelTaskDetails</name>
    <message>
        <source>This task is over.</source>
        <translation>此任务的时间已过。</translation>
    </message>
    <message>
        <source>Afterwards: %1</source>
        <translation>之后：%1</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>%1 结束</translation>
    </message>
    <message>
        <source>Ends on the next day at %1</source>
        <translation>次日 %1 结束</translation>
    </message>
    <message>
        <source>Records screen %1, which is not connected</source>
        <translation>录制未连接的屏幕 %1</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>录制：%1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>计划</translation>
    </message>
    <message>
        <source>Choose when a recording stops or starts by itself. Your choice is kept; this version does not record yet.</source>
        <translation>选择录制自动停止或开始的时间。您的选择会保留；此版本尚不能录制。</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>录制计划</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::ScreenshotTour</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>无法创建文件夹 %1</translation>
    </message>
    <message>
        <source>cannot reach: %1</source>
        <translation>无法到达：%1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>无法写入 %1</translation>
    </message>
</context>
</TS>
