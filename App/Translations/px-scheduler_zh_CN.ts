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
    <message>
        <source>the program does not run on these settings</source>
        <translation>没有使用这些设置运行的程序</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Cannot delete %1</source>
        <translation>无法删除：%1</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>无法写入：%1</translation>
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
    <message>
        <source>Start recording, in the program that runs already if there is one.</source>
        <translation>开始录制；如果程序已在运行，则在该程序中开始。</translation>
    </message>
    <message>
        <source>Stop the recording of the program that runs already.</source>
        <translation>停止已在运行的程序的录制。</translation>
    </message>
    <message>
        <source>Pause the recording of the program that runs already, or go on with it.</source>
        <translation>暂停或继续已在运行的程序的录制。</translation>
    </message>
    <message>
        <source>End the program that runs already, without a question.</source>
        <translation>不经询问结束已在运行的程序。</translation>
    </message>
    <message>
        <source>Start without a window.</source>
        <translation>启动时不显示窗口。</translation>
    </message>
    <message>
        <source>options --%1 and --%2 cannot be used together</source>
        <translation>选项 --%1 和 --%2 不能同时使用</translation>
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
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 小时 %2 分钟</translation>
    </message>
</context>
<context>
    <name>FooterState</name>
    <message>
        <source>Next: %1, as soon as possible</source>
        <translation>下一个：%1，尽快开始</translation>
    </message>
    <message>
        <source>Next: %1 on %2</source>
        <translation>下一个：%1，%2</translation>
    </message>
    <message>
        <source>Next: %1 in %2</source>
        <translation>下一个：%1，%2后</translation>
    </message>
    <message>
        <source>The recording starts</source>
        <translation>正在开始录制</translation>
    </message>
    <message>
        <source>%1 is about to start</source>
        <translation>%1即将开始录制</translation>
    </message>
    <message>
        <source>%1 starts in %2</source>
        <translation>%1将在 %2后开始录制</translation>
    </message>
    <message>
        <source>%1 starts when this recording has ended</source>
        <translation>此录制结束后，%1将开始录制</translation>
    </message>
    <message>
        <source>This recording will end for %1</source>
        <translation>为录制%1，此录制将结束</translation>
    </message>
    <message>
        <source>Ends in %1 for %2</source>
        <translation>%1后结束，以录制%2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>正在录制</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>已暂停：%1</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>正在录制：%1</translation>
    </message>
    <message>
        <source>%1 is being saved</source>
        <translation>正在保存%1的录制内容</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>%1 has been recorded</source>
        <translation>%1录制已完成</translation>
    </message>
    <message>
        <source>%1 has been stopped</source>
        <translation>%1录制已停止</translation>
    </message>
    <message>
        <source>%1 has been recorded in part</source>
        <translation>%1录制只完成了一部分</translation>
    </message>
    <message>
        <source>%1 has not been recorded</source>
        <translation>%1未录制</translation>
    </message>
    <message>
        <source>%1 could not be recorded</source>
        <translation>未能录制%1</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>原因：%1。</translation>
    </message>
    <message>
        <source>The file is %1.</source>
        <translation>文件为 %1。</translation>
    </message>
    <message>
        <source>The rest is recorded into a new file.</source>
        <translation>其余部分将录制到新文件中。</translation>
    </message>
    <message>
        <source>The computer cannot go to sleep</source>
        <translation>计算机无法进入睡眠状态</translation>
    </message>
    <message>
        <source>The computer cannot hibernate</source>
        <translation>计算机无法休眠</translation>
    </message>
    <message>
        <source>The computer cannot be restarted</source>
        <translation>计算机无法重启</translation>
    </message>
    <message>
        <source>The computer cannot be shut down</source>
        <translation>计算机无法关机</translation>
    </message>
    <message>
        <source>The computer does not go to sleep</source>
        <translation>计算机不会进入睡眠状态</translation>
    </message>
    <message>
        <source>The computer does not hibernate</source>
        <translation>计算机不会休眠</translation>
    </message>
    <message>
        <source>The computer is not restarted</source>
        <translation>计算机不会重启</translation>
    </message>
    <message>
        <source>The computer is not shut down</source>
        <translation>计算机不会关机</translation>
    </message>
    <message>
        <source>%1 starts at %2.</source>
        <translation>%1将于 %2 开始录制。</translation>
    </message>
    <message>
        <source>%1 is about to be recorded</source>
        <translation>即将录制%1</translation>
    </message>
    <message>
        <source>The recording starts at %1.</source>
        <translation>录制将于 %1 开始。</translation>
    </message>
    <message>
        <source>%1 is being recorded</source>
        <translation>正在录制%1</translation>
    </message>
    <message>
        <source>Your recording ends in a moment</source>
        <translation>您的录制即将结束</translation>
    </message>
    <message>
        <source>%1 waits for its screen</source>
        <translation>%1正在等待屏幕连接</translation>
    </message>
    <message>
        <source>It is recorded as soon as the screen is connected.</source>
        <translation>屏幕连接后将立即开始录制。</translation>
    </message>
    <message>
        <source>%1 does not start</source>
        <translation>%1不会开始录制</translation>
    </message>
    <message>
        <source>The disk is full: %1 are free.</source>
        <translation>磁盘已满：可用空间为 %1。</translation>
    </message>
    <message>
        <source>The recording is finished.</source>
        <translation>录制已结束。</translation>
    </message>
    <message>
        <source>There is a problem with %1</source>
        <translation>%1录制出现问题</translation>
    </message>
    <message>
        <source>your recording</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>The disk may be too small for the scheduled tasks</source>
        <translation>磁盘空间可能不足以录制计划中的任务</translation>
    </message>
    <message>
        <source>They are likely to need %1, and %2 can be used.</source>
        <translation>预计需要 %1，可用空间为 %2。</translation>
    </message>
    <message>
        <source>The program runs on</source>
        <translation>程序继续运行</translation>
    </message>
    <message>
        <source>Its icon shows the window again. You can change this on the page &quot;General&quot;.</source>
        <translation>可通过其图标再次显示窗口。您可以在“常规”页面更改此设置。</translation>
    </message>
    <message>
        <source>Not everything works on this desktop</source>
        <translation>部分功能在此桌面环境中无法使用</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>跳过</translation>
    </message>
    <message>
        <source>Keep recording</source>
        <translation>继续录制</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>在文件夹中显示</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>立即</translation>
    </message>
    <message>
        <source>The computer goes to sleep in %1</source>
        <translation>计算机将在 %1后进入睡眠状态</translation>
    </message>
    <message>
        <source>The computer hibernates in %1</source>
        <translation>计算机将在 %1后休眠</translation>
    </message>
    <message>
        <source>The computer restarts in %1</source>
        <translation>计算机将在 %1后重启</translation>
    </message>
    <message>
        <source>The computer shuts down in %1</source>
        <translation>计算机将在 %1后关机</translation>
    </message>
    <message>
        <source>Your recording</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
</context>
<context>
    <name>RecordingTexts</name>
    <message>
        <source>it started late</source>
        <translation>开始得晚了</translation>
    </message>
    <message>
        <source>an earlier part of it broke off</source>
        <translation>之前的部分中断了</translation>
    </message>
    <message>
        <source>the recorder broke down</source>
        <translation>录制程序异常中止</translation>
    </message>
    <message>
        <source>the program ended unexpectedly</source>
        <translation>程序意外结束</translation>
    </message>
    <message>
        <source>a task was due</source>
        <translation>有任务到时开始</translation>
    </message>
    <message>
        <source>the computer was shut down</source>
        <translation>计算机已关机</translation>
    </message>
    <message>
        <source>the computer was asleep</source>
        <translation>计算机处于睡眠状态</translation>
    </message>
    <message>
        <source>the program was not running</source>
        <translation>程序未在运行</translation>
    </message>
    <message>
        <source>the schedule was off</source>
        <translation>录制计划已关闭</translation>
    </message>
    <message>
        <source>the clock was set</source>
        <translation>系统时间被更改</translation>
    </message>
    <message>
        <source>another recording was running</source>
        <translation>另一个录制正在进行</translation>
    </message>
    <message>
        <source>the screen was not connected</source>
        <translation>屏幕未连接</translation>
    </message>
    <message>
        <source>you skipped it</source>
        <translation>您跳过了它</translation>
    </message>
    <message>
        <source>the recorder is not installed</source>
        <translation>未安装录制程序</translation>
    </message>
    <message>
        <source>the disk was nearly full</source>
        <translation>磁盘几乎已满</translation>
    </message>
    <message>
        <source>the disk was full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>the display was gone</source>
        <translation>显示器已不可用</translation>
    </message>
    <message>
        <source>the program was ended</source>
        <translation>程序已退出</translation>
    </message>
    <message>
        <source>the file existed already</source>
        <translation>文件已存在</translation>
    </message>
    <message>
        <source>the folder did not exist</source>
        <translation>文件夹不存在</translation>
    </message>
    <message>
        <source>the folder could not be written to</source>
        <translation>无法写入文件夹</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>桌面环境不允许</translation>
    </message>
    <message>
        <source>no encoder works on this computer</source>
        <translation>此计算机上没有可用的编码器</translation>
    </message>
    <message>
        <source>nothing was recorded</source>
        <translation>没有录制到任何内容</translation>
    </message>
    <message>
        <source>the conversion to MP4 failed</source>
        <translation>转换为 MP4 失败</translation>
    </message>
    <message>
        <source>the recorder reported an error</source>
        <translation>录制程序报告了错误</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完整</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>不完整</translation>
    </message>
    <message>
        <source>Stopped by you</source>
        <translation>由您停止</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>已错过</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Recording now</source>
        <translation>正在录制</translation>
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
        <translation>屏幕区域</translation>
    </message>
    <message>
        <source>Draw the area with the mouse, or move it with the arrow keys and resize it with Shift and the arrow keys. Enter takes it, Escape cancels.</source>
        <translation>用鼠标绘制区域，或用方向键移动区域，用 Shift 和方向键调整其大小。按 Enter 确认，按 Esc 取消。</translation>
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
    <name>Zentor::Desktop::DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>显示窗口</translation>
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
    <message>
        <source>Start &amp;with the desktop</source>
        <translation>随桌面启动(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Keep running when the window is closed</source>
        <translation>关闭窗口后继续运行(&amp;K)</translation>
    </message>
    <message>
        <source>While tasks are pending or a recording runs, the program stays in the tray. Where there is none, its window is minimized.</source>
        <translation>有待执行的任务或正在录制时，程序会留在托盘中。没有托盘时，窗口会最小化。</translation>
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
        <source>The recording that is running will be stopped.</source>
        <translation>正在进行的录制将停止。</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) are still to come. They will not be recorded when the program is not running.</source>
        <translation>
            <numerusform>还有 %n 个任务尚未开始。程序未运行时，这些任务不会录制。</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
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
    <name>Zentor::Desktop::PanelAreaTip</name>
    <message>
        <source>No area has been selected yet: all of screen 1 (%1) is recorded. You can select an area on the page &quot;Recording&quot;.</source>
        <translation>尚未选择区域：将录制整个屏幕 1（%1）。您可以在“录制”页面选择区域。</translation>
    </message>
    <message>
        <source>Records %1, the area that is selected on the page &quot;Recording&quot;.</source>
        <translation>录制在“录制”页面选择的区域（%1）。</translation>
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
    <name>Zentor::Desktop::PictureCard</name>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>每秒帧数(&amp;F)：</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>质量(&amp;Q)：</translation>
    </message>
    <message>
        <source>Fil&amp;e format:</source>
        <translation>文件格式(&amp;E)：</translation>
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
        <translation>录制鼠标指针(&amp;P)</translation>
    </message>
    <message>
        <source>Small: about %1 an hour</source>
        <translation>小体积：每小时约 %1</translation>
    </message>
    <message>
        <source>Normal: about %1 an hour</source>
        <translation>标准：每小时约 %1</translation>
    </message>
    <message>
        <source>High: about %1 an hour</source>
        <translation>高质量：每小时约 %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingControl</name>
    <message>
        <source>A task is about to start.</source>
        <translation>任务即将开始。</translation>
    </message>
    <message>
        <source>The desktop shows no notifications. The page &quot;Recordings&quot; tells what was recorded, and what was not.</source>
        <translation>桌面不显示通知。在“录制列表”页面上可以查看录制了什么、没有录制什么。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingFooter</name>
    <message>
        <source>Recording</source>
        <translation>正在录制</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>已录制</translation>
    </message>
    <message>
        <source>End</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>文件大小</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>可用空间</translation>
    </message>
    <message>
        <source>Dropped frames</source>
        <translation>丢失的帧</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>开始录制(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>跳过(&amp;K)</translation>
    </message>
    <message>
        <source>Skip this task</source>
        <translation>跳过此任务</translation>
    </message>
    <message>
        <source>&amp;Keep recording</source>
        <translation>继续录制(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>取消(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>立即(&amp;N)</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>至 %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>可用 %1</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) dropped</source>
        <translation>
            <numerusform>丢失 %n 帧</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>继续(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>暂停(&amp;P)</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingPage</name>
    <message>
        <source>Recording</source>
        <translation>录制</translation>
    </message>
    <message>
        <source>Choose what is recorded, and how.</source>
        <translation>选择录制的内容和方式。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsModel</name>
    <message>
        <source>the file is gone</source>
        <translation>文件已不存在</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsPage</name>
    <message>
        <source>Recordings</source>
        <translation>录制列表</translation>
    </message>
    <message>
        <source>What was recorded, and what was not.</source>
        <translation>查看哪些已录制，哪些未录制。</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. Start a recording with the button below, or plan one on the page Schedule; it is listed here then.</source>
        <translation>尚未录制任何内容。使用下方的按钮开始录制，或在“计划”页面安排录制，之后会在此处列出。</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>打开(&amp;O)</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>在文件夹中显示(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>修复(&amp;R)</translation>
    </message>
    <message>
        <source>Adds what a crash has kept from the end of the file, so that players can seek in it.</source>
        <translation>补上因崩溃而未能写入文件末尾的信息，使播放器可以跳转播放位置。</translation>
    </message>
    <message>
        <source>Move to &amp;trash</source>
        <translation>移到回收站(&amp;T)</translation>
    </message>
    <message>
        <source>Remove from &amp;list</source>
        <translation>从列表中移除(&amp;L)</translation>
    </message>
    <message>
        <source>There is no file of this recording.</source>
        <translation>此录制没有文件。</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>无法打开：%1</translation>
    </message>
    <message>
        <source>Repairing: %1</source>
        <translation>正在修复：%1</translation>
    </message>
    <message>
        <source>Repaired: %1</source>
        <translation>已修复：%1</translation>
    </message>
    <message>
        <source>%1 could not be repaired</source>
        <translation>未能修复：%1</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; will be moved to the trash. Are you sure?</source>
        <translation>录制“%1”将移到回收站。确定要继续吗？</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will be removed from the list. Are you sure?</source>
        <translation>“%1”将从列表中移除。确定要继续吗？</translation>
    </message>
    <message>
        <source>Move to trash</source>
        <translation>移到回收站</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash</source>
        <translation>未能将 %1 移到回收站</translation>
    </message>
    <message>
        <source>Removed from the list: %1</source>
        <translation>已从列表中移除：%1</translation>
    </message>
    <message>
        <source>Moved to the trash: %1</source>
        <translation>已移到回收站：%1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>计划</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>录制计划</translation>
    </message>
    <message>
        <source>Choose when a recording stops by itself, and which recordings start by themselves.</source>
        <translation>选择录制何时自动停止，以及哪些录制自动开始。</translation>
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
<context>
    <name>Zentor::Desktop::SoundCard</name>
    <message>
        <source>Record the sound of:</source>
        <translation>录制以下设备的声音：</translation>
    </message>
    <message>
        <source>Sound devices</source>
        <translation>声音设备</translation>
    </message>
    <message>
        <source>All sound in one trac&amp;k</source>
        <translation>将所有声音录到一个音轨(&amp;K)</translation>
    </message>
    <message>
        <source>Otherwise each device has a track of its own, for editing. Most players play only the first.</source>
        <translation>否则每个设备都有各自的音轨，便于编辑。大多数播放器只播放第一个音轨。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceList</name>
    <message>
        <source>Looking for sound devices...</source>
        <translation>正在查找声音设备…</translation>
    </message>
    <message>
        <source>The sound devices of this computer cannot be listed.</source>
        <translation>无法列出此计算机的声音设备。</translation>
    </message>
    <message>
        <source>There are no sound devices on this computer.</source>
        <translation>此计算机上没有声音设备。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceRow</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1（未连接）</translation>
    </message>
    <message>
        <source>Level of %1</source>
        <translation>%1 的音量</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SourceCard</name>
    <message>
        <source>Record a s&amp;creen</source>
        <translation>录制屏幕(&amp;C)</translation>
    </message>
    <message>
        <source>Screen that is recorded</source>
        <translation>要录制的屏幕</translation>
    </message>
    <message>
        <source>Record the selected &amp;area</source>
        <translation>录制所选区域(&amp;A)</translation>
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
        <translation>宽度(&amp;W)：</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>高度(&amp;H)：</translation>
    </message>
    <message>
        <source>Left edge of the area in pixels</source>
        <translation>区域左边缘（像素）</translation>
    </message>
    <message>
        <source>Top edge of the area in pixels</source>
        <translation>区域上边缘（像素）</translation>
    </message>
    <message>
        <source>Width of the area in pixels</source>
        <translation>区域宽度（像素）</translation>
    </message>
    <message>
        <source>Height of the area in pixels</source>
        <translation>区域高度（像素）</translation>
    </message>
    <message>
        <source>Choose o&amp;n the screen...</source>
        <translation>在屏幕上选择(&amp;N)…</translation>
    </message>
    <message>
        <source>Show &amp;outline</source>
        <translation>显示边框(&amp;O)</translation>
    </message>
    <message>
        <source>Screen %1, %2</source>
        <translation>屏幕 %1，%2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1：%2，%3</translation>
    </message>
    <message>
        <source>Screen %1 (not connected)</source>
        <translation>屏幕 %1（未连接）</translation>
    </message>
    <message>
        <source>No area has been selected yet: all of screen 1 is recorded instead, also by tasks with &quot;Selected area&quot;.</source>
        <translation>尚未选择区域：将改为录制整个屏幕 1，使用“所选区域”的任务也是如此。</translation>
    </message>
    <message>
        <source>Tasks with &quot;Selected area&quot; record this area, too.</source>
        <translation>使用“所选区域”的任务也录制此区域。</translation>
    </message>
    <message>
        <source>The screen that is to be recorded is not connected.</source>
        <translation>要录制的屏幕未连接。</translation>
    </message>
    <message>
        <source>The selected area is not on any screen.</source>
        <translation>所选区域不在任何屏幕上。</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrayIcon</name>
    <message>
        <source>&amp;Start recording</source>
        <translation>开始录制(&amp;S)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>停止(&amp;T)</translation>
    </message>
    <message>
        <source>Show &amp;window</source>
        <translation>显示窗口(&amp;W)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>未在录制</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>正在录制</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>继续(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>暂停(&amp;P)</translation>
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
        <translation>看一看、听一听使用这些设置的录制效果。</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Try fi&amp;ve seconds</source>
        <translation>试录五秒(&amp;V)</translation>
    </message>
    <message>
        <source>Trial recording</source>
        <translation>试录</translation>
    </message>
    <message>
        <source>The trial recording was cancelled.</source>
        <translation>试录已取消。</translation>
    </message>
    <message>
        <source>The trial recording was made, but there is no program that opens it: %1</source>
        <translation>试录已完成，但没有可打开它的程序：%1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened. The recorder says: %1</source>
        <translation>试录已完成并已打开。录制程序的消息：%1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened.</source>
        <translation>试录已完成并已打开。</translation>
    </message>
    <message>
        <source>The recorder px-recorder cannot be started. Is it installed completely?</source>
        <translation>无法启动录制程序 px-recorder。是否已完整安装？</translation>
    </message>
    <message>
        <source>Nothing could be recorded. The recorder says: %1</source>
        <translation>未能录制任何内容。录制程序的消息：%1</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::Inhibitors</name>
    <message>
        <source>The computer cannot be kept from going to sleep while it records.</source>
        <translation>录制期间无法阻止计算机进入睡眠状态。</translation>
    </message>
    <message>
        <source>The computer cannot be kept from being shut down before the file is closed.</source>
        <translation>无法阻止计算机在文件关闭之前关机。</translation>
    </message>
    <message>
        <source>The screen cannot be kept from going dark while it is recorded.</source>
        <translation>录制期间无法阻止屏幕变黑。</translation>
    </message>
    <message>
        <source>A recording is running.</source>
        <translation>正在进行录制。</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecorderProcess</name>
    <message>
        <source>%1 is of another version</source>
        <translation>%1 的版本不同</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>无法启动 %1：%2</translation>
    </message>
    <message>
        <source>The recorder crashed (signal %1).</source>
        <translation>录制程序崩溃（信号 %1）。</translation>
    </message>
    <message>
        <source>The recorder ended unexpectedly (exit status %1).</source>
        <translation>录制程序意外结束（退出状态 %1）。</translation>
    </message>
    <message>
        <source>The recorder did not start in time.</source>
        <translation>录制程序未能及时启动。</translation>
    </message>
    <message>
        <source>The recorder stopped responding.</source>
        <translation>录制程序停止响应。</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecordingsList</name>
    <message>
        <source>The list of recordings %1 cannot be read: %2</source>
        <translation>无法读取录制列表 %1：%2</translation>
    </message>
    <message>
        <source>The list of recordings %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>录制列表 %1 已损坏，且无法以其他名称保留：%2</translation>
    </message>
    <message>
        <source>Some entries of the list of recordings could not be used. What the file held is kept in %1.</source>
        <translation>录制列表的部分条目无法使用。文件的原有内容保留在 %1 中。</translation>
    </message>
    <message>
        <source>The list of recordings could not be understood, so it begins anew. What it held is kept in %1.</source>
        <translation>无法识别录制列表，因此重新开始。原有内容保留在 %1 中。</translation>
    </message>
    <message>
        <source>%1: the list of recordings is not saved in %2</source>
        <translation>%1：录制列表未保存到 %2</translation>
    </message>
</context>
</TS>
