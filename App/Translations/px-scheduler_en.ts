<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>cannot copy the settings file %1: %2</source>
        <translation>cannot copy the settings file %1: %2</translation>
    </message>
</context>
<context>
    <name>CaptureControllerWrapper</name>
    <message>
        <source>Could not start recording because there is not enough disk space. Free more disk space and try again. Or set a different disk drive for storing output videos in %1File Preferences%2. </source>
        <translation>Recording could not be started because there is not enough disk space. Free up some disk space and try again, or choose a different drive for your recordings in %1File Preferences%2.</translation>
    </message>
    <message>
        <source>File Preferences</source>
        <translation>File Preferences</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Keep the settings in &lt;file&gt; instead of the platform&apos;s configuration folder.</source>
        <translation>Keep the settings in &lt;file&gt; instead of the platform&apos;s configuration folder.</translation>
    </message>
    <message>
        <source>Use &lt;language&gt; in this run, for example de or pt_BR.</source>
        <translation>Use &lt;language&gt; in this run, for example de or pt_BR.</translation>
    </message>
    <message>
        <source>Use the theme light or dark in this run.</source>
        <translation>Use the theme light or dark in this run.</translation>
    </message>
    <message>
        <source>Walk through the window on a copy of the settings (of a sample without --settings), write a picture of each state into &lt;folder&gt;, and end.</source>
        <translation>Walk through the window on a copy of the settings (of a sample without --settings), write a picture of each state into &lt;folder&gt;, and end.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Show this help.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Show the version.</translation>
    </message>
    <message>
        <source>%1: %2 (try --help)</source>
        <translation>%1: %2 (try --help)</translation>
    </message>
    <message>
        <source>option --%1 needs a value</source>
        <translation>option --%1 needs a value</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>unexpected argument &apos;%1&apos;</translation>
    </message>
    <message>
        <source>unknown theme &apos;%1&apos;; the themes are light and dark</source>
        <translation>unknown theme &apos;%1&apos;; the themes are light and dark</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;; the languages are %2</source>
        <translation>unknown language &apos;%1&apos;; the languages are %2</translation>
    </message>
    <message>
        <source>Choose how screen recordings are timed.</source>
        <translation>Choose how screen recordings are timed.</translation>
    </message>
</context>
<context>
    <name>CreateRecordTaskWidget</name>
    <message>
        <source>New record:</source>
        <translation>New record:</translation>
    </message>
    <message>
        <source>Action on finish:</source>
        <translation>&amp;Action on finish:</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Create</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>File &amp;name:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>&amp;Date:</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>yyyy-MM-dd</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>&amp;Time:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>D&amp;uration:</translation>
    </message>
    <message>
        <source>Capture:</source>
        <translation>Capture:</translation>
    </message>
    <message>
        <source>Selected area</source>
        <translation>Selected area</translation>
    </message>
    <message>
        <source>Selected area tooltip</source>
        <translation>Records the area chosen in the settings; where none has been chosen, the whole of the first screen.
This version does not record yet.</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Fullscreen</translation>
    </message>
    <message>
        <source>Need select task name</source>
        <translation>Enter a name for the task.</translation>
    </message>
    <message>
        <source>Task with this title already exist</source>
        <translation>A task with this name already exists.</translation>
    </message>
    <message>
        <source>Curent capture time intersect with other capture time in the list</source>
        <translation>The time of this recording overlaps with another recording in the list.</translation>
    </message>
</context>
<context>
    <name>PowerAction</name>
    <message>
        <source>Do nothing</source>
        <translation>Do nothing</translation>
    </message>
    <message>
        <source>Quit the application</source>
        <translation>Quit the application</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>Sleep</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>Hibernate</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Restart</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>Shut down</translation>
    </message>
</context>
<context>
    <name>RecordSchedulerWidget</name>
    <message>
        <source>All tasks will be permanently deleted from the recording schedule. Are you sure you want to continue?</source>
        <translation>All tasks will be permanently deleted from the recording schedule. Are you sure you want to continue?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>The task hasn&apos;t been saved. Would you like to add this task to the recording schedule?</source>
        <translation>The task hasn&apos;t been saved. Would you like to add this task to the recording schedule?</translation>
    </message>
    <message>
        <source>Don&apos;t Add</source>
        <translation>Don&apos;t Add</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Do not schedule capture</source>
        <translation>Do not schedule &amp;capture</translation>
    </message>
    <message>
        <source>Stop capture after</source>
        <translation>Sto&amp;p capture after</translation>
    </message>
    <message>
        <source>Record on schedule</source>
        <translation>&amp;Record on schedule</translation>
    </message>
    <message>
        <source>Add record event</source>
        <translation>Add record event</translation>
    </message>
    <message>
        <source>Capture duration in limited capture:</source>
        <translation>&amp;Duration:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>When capture ends:</source>
        <translation>&amp;When capture ends:</translation>
    </message>
</context>
<context>
    <name>ScheduleRecordTableWidget</name>
    <message>
        <source>Task </source>
        <translation>Task </translation>
    </message>
    <message>
        <source>File name</source>
        <translation>File name</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Time</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Duration</translation>
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
        <translation>Delete</translation>
    </message>
    <message>
        <source>The task will be permanently deleted from the recording schedule. Are you sure you want to delete the task?</source>
        <translation>The task will be permanently deleted from the recording schedule. Are you sure you want to delete the task?</translation>
    </message>
    <message>
        <source>Always delete</source>
        <translation>Always delete</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The settings file %1 is not a file.</source>
        <translation>The settings file %1 is not a file.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder is missing and cannot be created either.</source>
        <translation>The settings file %1 cannot be created: its folder is missing and cannot be created either.</translation>
    </message>
    <message>
        <source>The settings file %1 is in use by another process.</source>
        <translation>The settings file %1 is in use by another process.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder cannot be written to.</source>
        <translation>The settings file %1 cannot be created: its folder cannot be written to.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <translation>The settings file %1 cannot be read: %2</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>The settings file %1 is damaged, and it cannot be kept under another name: %2</translation>
    </message>
    <message>
        <source>The settings file could not be understood, so the defaults are in use. What it held is kept in %1.</source>
        <translation>The settings file could not be understood, so the defaults are in use. What it held is kept in %1.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. Tasks left out: %2. What the file held is kept in %1.</source>
        <translation>Some of the settings could not be used. Tasks left out: %2. What the file held is kept in %1.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. What the file held is kept in %1.</source>
        <translation>Some of the settings could not be used. What the file held is kept in %1.</translation>
    </message>
    <message>
        <source>Another program has changed the settings file. Its version is kept in %1; the settings shown here stay in use.</source>
        <translation>Another program has changed the settings file. Its version is kept in %1; the settings shown here stay in use.</translation>
    </message>
    <message>
        <source>Only a part of the file could be read</source>
        <translation>Only a part of the file could be read</translation>
    </message>
    <message>
        <source>%2: your changes are not saved in %1</source>
        <translation>%2: your changes are not saved in %1</translation>
    </message>
    <message>
        <source>The file is in use by another process</source>
        <translation>The file is in use by another process</translation>
    </message>
    <message>
        <source>The folder cannot be written to</source>
        <translation>The folder cannot be written to</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::CalendarLook</name>
    <message>
        <source>Today</source>
        <translation>Today</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::FilesPage</name>
    <message>
        <source>&amp;Folder for recordings:</source>
        <translation>&amp;Folder for recordings:</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>Folder for recordings</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Browse…</translation>
    </message>
    <message>
        <source>Browse for the folder for recordings</source>
        <translation>Browse for the folder for recordings</translation>
    </message>
    <message>
        <source>Enter the full path of a folder.</source>
        <translation>Enter the full path of a folder.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>This is a file, not a folder.</translation>
    </message>
    <message>
        <source>You are not allowed to write into this folder.</source>
        <translation>You are not allowed to write into this folder.</translation>
    </message>
    <message>
        <source>The free space of this folder is unknown.</source>
        <translation>The free space of this folder is unknown.</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>Free space: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message>
        <source>Choose where recordings are kept.</source>
        <translation>Choose where recordings are kept.</translation>
    </message>
    <message>
        <source>This folder cannot be created.</source>
        <translation>This folder cannot be created.</translation>
    </message>
    <message>
        <source>This folder does not exist yet. It will be created with the first recording.</source>
        <translation>This folder does not exist yet. It will be created with the first recording.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::GeneralPage</name>
    <message>
        <source>In this run: %1 (chosen at the start)</source>
        <translation>In this run: %1 (chosen at the start)</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Language:</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <translation>System default (%1)</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Theme:</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>System default</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Light</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>&amp;Ask all questions again</source>
        <translation>&amp;Ask all questions again</translation>
    </message>
    <message>
        <source>Open settings &amp;folder</source>
        <translation>Open settings &amp;folder</translation>
    </message>
    <message>
        <source>&amp;Open log</source>
        <translation>&amp;Open log</translation>
    </message>
    <message>
        <source>There is no log of this run.</source>
        <translation>There is no log of this run.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Cannot open %1</translation>
    </message>
    <message>
        <source>Some questions are no longer asked.</source>
        <translation>Some questions are no longer asked.</translation>
    </message>
    <message>
        <source>Every question is asked, for example before a task is deleted.</source>
        <translation>Every question is asked, for example before a task is deleted.</translation>
    </message>
    <message>
        <source>All questions will be asked again</source>
        <translation>All questions will be asked again</translation>
    </message>
    <message>
        <source>When something goes wrong, your settings and the log of this run help to find out why.</source>
        <translation>When something goes wrong, your settings and the log of this run help to find out why.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Choose language and theme.</source>
        <translation>Choose language and theme.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::MainWindow</name>
    <message>
        <source>Recording Scheduler</source>
        <translation>Recording Scheduler</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Settings pages</translation>
    </message>
    <message>
        <source>Your changes are saved again.</source>
        <translation>Your changes are saved again.</translation>
    </message>
    <message>
        <source>Your changes could not be saved. They will be lost if you close the window now.</source>
        <translation>Your changes could not be saved. They will be lost if you close the window now.</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Close anyway</translation>
    </message>
    <message>
        <source>Ready to record</source>
        <translation>Ready to record</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Start recording</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Close notice</source>
        <translation>Close notice</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAnnouncer</name>
    <message>
        <source>Task added: %1</source>
        <translation>Task added: %1</translation>
    </message>
    <message>
        <source>All tasks deleted</source>
        <translation>All tasks deleted</translation>
    </message>
    <message>
        <source>Task deleted: %1</source>
        <translation>Task deleted: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelNameGuard</name>
    <message>
        <source>A name cannot contain line breaks or other control characters.</source>
        <translation>A name cannot contain line breaks or other control characters.</translation>
    </message>
    <message>
        <source>A name cannot contain: %1</source>
        <translation>A name cannot contain: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelTaskDetails</name>
    <message>
        <source>This task is over.</source>
        <translation>This task is over.</translation>
    </message>
    <message>
        <source>Afterwards: %1</source>
        <translation>Afterwards: %1</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>Ends at %1</translation>
    </message>
    <message>
        <source>Ends on the next day at %1</source>
        <translation>Ends on the next day at %1</translation>
    </message>
    <message>
        <source>Records screen %1, which is not connected</source>
        <translation>Records screen %1, which is not connected</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Records: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Schedule</translation>
    </message>
    <message>
        <source>Choose when a recording stops or starts by itself. Your choice is kept; this version does not record yet.</source>
        <translation>Choose when a recording stops or starts by itself. Your choice is kept; this version does not record yet.</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Recording schedule</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::ScreenshotTour</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>cannot create the folder %1</translation>
    </message>
    <message>
        <source>cannot reach: %1</source>
        <translation>cannot reach: %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>cannot write %1</translation>
    </message>
</context>
</TS>
