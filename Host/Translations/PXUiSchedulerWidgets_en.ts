<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
        <translation>Records the area chosen in the settings; where none has been chosen, the whole of the first screen.</translation>
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
</TS>
