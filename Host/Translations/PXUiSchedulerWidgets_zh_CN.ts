<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
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
        <translation>录制设置中选择的区域；未选择时，录制整个第一个屏幕。</translation>
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
</TS>
