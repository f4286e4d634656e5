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
    <message>
        <source>the program does not run on these settings</source>
        <translation>the program does not run on these settings</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Cannot delete %1</source>
        <translation>Cannot delete %1</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>Cannot write %1</translation>
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
    <message>
        <source>Start recording, in the program that runs already if there is one.</source>
        <translation>Start recording, in the program that runs already if there is one.</translation>
    </message>
    <message>
        <source>Stop the recording of the program that runs already.</source>
        <translation>Stop the recording of the program that runs already.</translation>
    </message>
    <message>
        <source>Pause the recording of the program that runs already, or go on with it.</source>
        <translation>Pause the recording of the program that runs already, or go on with it.</translation>
    </message>
    <message>
        <source>End the program that runs already, without a question.</source>
        <translation>End the program that runs already, without a question.</translation>
    </message>
    <message>
        <source>Start without a window.</source>
        <translation>Start without a window.</translation>
    </message>
    <message>
        <source>options --%1 and --%2 cannot be used together</source>
        <translation>options --%1 and --%2 cannot be used together</translation>
    </message>
</context>
<context>
    <name>DurationText</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
</context>
<context>
    <name>FooterState</name>
    <message>
        <source>Next: %1, as soon as possible</source>
        <translation>Next: %1, as soon as possible</translation>
    </message>
    <message>
        <source>Next: %1 on %2</source>
        <translation>Next: %1 on %2</translation>
    </message>
    <message>
        <source>Next: %1 in %2</source>
        <translation>Next: %1 in %2</translation>
    </message>
    <message>
        <source>The recording starts</source>
        <translation>The recording starts</translation>
    </message>
    <message>
        <source>%1 is about to start</source>
        <translation>%1 is about to start</translation>
    </message>
    <message>
        <source>%1 starts in %2</source>
        <translation>%1 starts in %2</translation>
    </message>
    <message>
        <source>%1 starts when this recording has ended</source>
        <translation>%1 starts when this recording has ended</translation>
    </message>
    <message>
        <source>This recording will end for %1</source>
        <translation>This recording will end for %1</translation>
    </message>
    <message>
        <source>Ends in %1 for %2</source>
        <translation>Ends in %1 for %2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Paused: %1</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Recording: %1</translation>
    </message>
    <message>
        <source>%1 is being saved</source>
        <translation>%1 is being saved</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>%1 has been recorded</source>
        <translation>%1 has been recorded</translation>
    </message>
    <message>
        <source>%1 has been stopped</source>
        <translation>%1 has been stopped</translation>
    </message>
    <message>
        <source>%1 has been recorded in part</source>
        <translation>%1 has been recorded in part</translation>
    </message>
    <message>
        <source>%1 has not been recorded</source>
        <translation>%1 has not been recorded</translation>
    </message>
    <message>
        <source>%1 could not be recorded</source>
        <translation>%1 could not be recorded</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>Reason: %1.</translation>
    </message>
    <message>
        <source>The file is %1.</source>
        <translation>The file is %1.</translation>
    </message>
    <message>
        <source>The rest is recorded into a new file.</source>
        <translation>The rest is recorded into a new file.</translation>
    </message>
    <message>
        <source>The computer cannot go to sleep</source>
        <translation>The computer cannot go to sleep</translation>
    </message>
    <message>
        <source>The computer cannot hibernate</source>
        <translation>The computer cannot hibernate</translation>
    </message>
    <message>
        <source>The computer cannot be restarted</source>
        <translation>The computer cannot be restarted</translation>
    </message>
    <message>
        <source>The computer cannot be shut down</source>
        <translation>The computer cannot be shut down</translation>
    </message>
    <message>
        <source>The computer does not go to sleep</source>
        <translation>The computer does not go to sleep</translation>
    </message>
    <message>
        <source>The computer does not hibernate</source>
        <translation>The computer does not hibernate</translation>
    </message>
    <message>
        <source>The computer is not restarted</source>
        <translation>The computer is not restarted</translation>
    </message>
    <message>
        <source>The computer is not shut down</source>
        <translation>The computer is not shut down</translation>
    </message>
    <message>
        <source>%1 starts at %2.</source>
        <translation>%1 starts at %2.</translation>
    </message>
    <message>
        <source>%1 is about to be recorded</source>
        <translation>%1 is about to be recorded</translation>
    </message>
    <message>
        <source>The recording starts at %1.</source>
        <translation>The recording starts at %1.</translation>
    </message>
    <message>
        <source>%1 is being recorded</source>
        <translation>%1 is being recorded</translation>
    </message>
    <message>
        <source>Your recording ends in a moment</source>
        <translation>Your recording ends in a moment</translation>
    </message>
    <message>
        <source>%1 waits for its screen</source>
        <translation>%1 waits for its screen</translation>
    </message>
    <message>
        <source>It is recorded as soon as the screen is connected.</source>
        <translation>It is recorded as soon as the screen is connected.</translation>
    </message>
    <message>
        <source>%1 does not start</source>
        <translation>%1 does not start</translation>
    </message>
    <message>
        <source>The disk is full: %1 are free.</source>
        <translation>The disk is full: %1 are free.</translation>
    </message>
    <message>
        <source>The recording is finished.</source>
        <translation>The recording is finished.</translation>
    </message>
    <message>
        <source>There is a problem with %1</source>
        <translation>There is a problem with %1</translation>
    </message>
    <message>
        <source>your recording</source>
        <translation>your recording</translation>
    </message>
    <message>
        <source>The disk may be too small for the scheduled tasks</source>
        <translation>The disk may be too small for the scheduled tasks</translation>
    </message>
    <message>
        <source>They are likely to need %1, and %2 can be used.</source>
        <translation>They are likely to need %1, and %2 can be used.</translation>
    </message>
    <message>
        <source>The program runs on</source>
        <translation>The program runs on</translation>
    </message>
    <message>
        <source>Its icon shows the window again. You can change this on the page &quot;General&quot;.</source>
        <translation>Its icon shows the window again. You can change this on the page &quot;General&quot;.</translation>
    </message>
    <message>
        <source>Not everything works on this desktop</source>
        <translation>Not everything works on this desktop</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Skip</translation>
    </message>
    <message>
        <source>Keep recording</source>
        <translation>Keep recording</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Show in folder</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Now</translation>
    </message>
    <message>
        <source>The computer goes to sleep in %1</source>
        <translation>The computer goes to sleep in %1</translation>
    </message>
    <message>
        <source>The computer hibernates in %1</source>
        <translation>The computer hibernates in %1</translation>
    </message>
    <message>
        <source>The computer restarts in %1</source>
        <translation>The computer restarts in %1</translation>
    </message>
    <message>
        <source>The computer shuts down in %1</source>
        <translation>The computer shuts down in %1</translation>
    </message>
    <message>
        <source>Your recording</source>
        <translation>Your recording</translation>
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
        <translation>it started late</translation>
    </message>
    <message>
        <source>an earlier part of it broke off</source>
        <translation>an earlier part of it broke off</translation>
    </message>
    <message>
        <source>the recorder broke down</source>
        <translation>the recorder broke down</translation>
    </message>
    <message>
        <source>the program ended unexpectedly</source>
        <translation>the program ended unexpectedly</translation>
    </message>
    <message>
        <source>a task was due</source>
        <translation>a task was due</translation>
    </message>
    <message>
        <source>the computer was shut down</source>
        <translation>the computer was shut down</translation>
    </message>
    <message>
        <source>the computer was asleep</source>
        <translation>the computer was asleep</translation>
    </message>
    <message>
        <source>the program was not running</source>
        <translation>the program was not running</translation>
    </message>
    <message>
        <source>the schedule was off</source>
        <translation>the schedule was off</translation>
    </message>
    <message>
        <source>the clock was set</source>
        <translation>the clock was set</translation>
    </message>
    <message>
        <source>another recording was running</source>
        <translation>another recording was running</translation>
    </message>
    <message>
        <source>the screen was not connected</source>
        <translation>the screen was not connected</translation>
    </message>
    <message>
        <source>you skipped it</source>
        <translation>you skipped it</translation>
    </message>
    <message>
        <source>the recorder is not installed</source>
        <translation>the recorder is not installed</translation>
    </message>
    <message>
        <source>the disk was nearly full</source>
        <translation>the disk was nearly full</translation>
    </message>
    <message>
        <source>the disk was full</source>
        <translation>the disk was full</translation>
    </message>
    <message>
        <source>the display was gone</source>
        <translation>the display was gone</translation>
    </message>
    <message>
        <source>the program was ended</source>
        <translation>the program was ended</translation>
    </message>
    <message>
        <source>the file existed already</source>
        <translation>the file existed already</translation>
    </message>
    <message>
        <source>the folder did not exist</source>
        <translation>the folder did not exist</translation>
    </message>
    <message>
        <source>the folder could not be written to</source>
        <translation>the folder could not be written to</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>the desktop did not allow it</translation>
    </message>
    <message>
        <source>no encoder works on this computer</source>
        <translation>no encoder works on this computer</translation>
    </message>
    <message>
        <source>nothing was recorded</source>
        <translation>nothing was recorded</translation>
    </message>
    <message>
        <source>the conversion to MP4 failed</source>
        <translation>the conversion to MP4 failed</translation>
    </message>
    <message>
        <source>the recorder reported an error</source>
        <translation>the recorder reported an error</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Complete</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>Incomplete</translation>
    </message>
    <message>
        <source>Stopped by you</source>
        <translation>Stopped by you</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Missed</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Failed</translation>
    </message>
    <message>
        <source>Recording now</source>
        <translation>Recording now</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::AreaOverlay</name>
    <message>
        <source>Area of the screen</source>
        <translation>Area of the screen</translation>
    </message>
    <message>
        <source>Draw the area with the mouse, or move it with the arrow keys and resize it with Shift and the arrow keys. Enter takes it, Escape cancels.</source>
        <translation>Draw the area with the mouse, or move it with the arrow keys and resize it with Shift and the arrow keys. Enter takes it, Escape cancels.</translation>
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
    <name>Zentor::Desktop::DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>Show the window</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::FigureLabel</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
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
    <message>
        <source>Start &amp;with the desktop</source>
        <translation>Start &amp;with the desktop</translation>
    </message>
    <message>
        <source>&amp;Keep running when the window is closed</source>
        <translation>&amp;Keep running when the window is closed</translation>
    </message>
    <message>
        <source>While tasks are pending or a recording runs, the program stays in the tray. Where there is none, its window is minimized.</source>
        <translation>While tasks are pending or a recording runs, the program stays in the tray. Where there is none, its window is minimized.</translation>
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
        <source>The recording that is running will be stopped.</source>
        <translation>The recording that is running will be stopped.</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) are still to come. They will not be recorded when the program is not running.</source>
        <translation>
            <numerusform>%n task is still to come. It will not be recorded when the program is not running.</numerusform>
            <numerusform>%n tasks are still to come. They will not be recorded when the program is not running.</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quit</translation>
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
    <name>Zentor::Desktop::PanelAreaTip</name>
    <message>
        <source>No area has been selected yet: all of screen 1 (%1) is recorded. You can select an area on the page &quot;Recording&quot;.</source>
        <translation>No area has been selected yet: all of screen 1 (%1) is recorded. You can select an area on the page &quot;Recording&quot;.</translation>
    </message>
    <message>
        <source>Records %1, the area that is selected on the page &quot;Recording&quot;.</source>
        <translation>Records %1, the area that is selected on the page &quot;Recording&quot;.</translation>
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
    <name>Zentor::Desktop::PictureCard</name>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>&amp;Frames per second:</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Quality:</translation>
    </message>
    <message>
        <source>Fil&amp;e format:</source>
        <translation>Fil&amp;e format:</translation>
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
        <translation>Record the mouse &amp;pointer</translation>
    </message>
    <message>
        <source>Small: about %1 an hour</source>
        <translation>Small: about %1 an hour</translation>
    </message>
    <message>
        <source>Normal: about %1 an hour</source>
        <translation>Normal: about %1 an hour</translation>
    </message>
    <message>
        <source>High: about %1 an hour</source>
        <translation>High: about %1 an hour</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingControl</name>
    <message>
        <source>A task is about to start.</source>
        <translation>A task is about to start.</translation>
    </message>
    <message>
        <source>The desktop shows no notifications. The page &quot;Recordings&quot; tells what was recorded, and what was not.</source>
        <translation>The desktop shows no notifications. The page &quot;Recordings&quot; tells what was recorded, and what was not.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingFooter</name>
    <message>
        <source>Recording</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>Recorded</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Size of the file</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Free space</translation>
    </message>
    <message>
        <source>Dropped frames</source>
        <translation>Dropped frames</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Start recording</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stop</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>S&amp;kip</translation>
    </message>
    <message>
        <source>Skip this task</source>
        <translation>Skip this task</translation>
    </message>
    <message>
        <source>&amp;Keep recording</source>
        <translation>&amp;Keep recording</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancel</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>&amp;Now</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>until %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 free</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) dropped</source>
        <translation>
            <numerusform>%n frame dropped</numerusform>
            <numerusform>%n frames dropped</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Resume</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingPage</name>
    <message>
        <source>Recording</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>Choose what is recorded, and how.</source>
        <translation>Choose what is recorded, and how.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsModel</name>
    <message>
        <source>the file is gone</source>
        <translation>the file is gone</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsPage</name>
    <message>
        <source>Recordings</source>
        <translation>Recordings</translation>
    </message>
    <message>
        <source>What was recorded, and what was not.</source>
        <translation>What was recorded, and what was not.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. Start a recording with the button below, or plan one on the page Schedule; it is listed here then.</source>
        <translation>Nothing has been recorded yet. Start a recording with the button below, or plan one on the page Schedule; it is listed here then.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Open</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>Show in &amp;folder</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Repair</translation>
    </message>
    <message>
        <source>Adds what a crash has kept from the end of the file, so that players can seek in it.</source>
        <translation>Adds what a crash has kept from the end of the file, so that players can seek in it.</translation>
    </message>
    <message>
        <source>Move to &amp;trash</source>
        <translation>Move to &amp;trash</translation>
    </message>
    <message>
        <source>Remove from &amp;list</source>
        <translation>Remove from &amp;list</translation>
    </message>
    <message>
        <source>There is no file of this recording.</source>
        <translation>There is no file of this recording.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Cannot open %1</translation>
    </message>
    <message>
        <source>Repairing: %1</source>
        <translation>Repairing: %1</translation>
    </message>
    <message>
        <source>Repaired: %1</source>
        <translation>Repaired: %1</translation>
    </message>
    <message>
        <source>%1 could not be repaired</source>
        <translation>%1 could not be repaired</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; will be moved to the trash. Are you sure?</source>
        <translation>The recording &quot;%1&quot; will be moved to the trash. Are you sure?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will be removed from the list. Are you sure?</source>
        <translation>&quot;%1&quot; will be removed from the list. Are you sure?</translation>
    </message>
    <message>
        <source>Move to trash</source>
        <translation>Move to trash</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash</source>
        <translation>%1 could not be moved to the trash</translation>
    </message>
    <message>
        <source>Removed from the list: %1</source>
        <translation>Removed from the list: %1</translation>
    </message>
    <message>
        <source>Moved to the trash: %1</source>
        <translation>Moved to the trash: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Schedule</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Recording schedule</translation>
    </message>
    <message>
        <source>Choose when a recording stops by itself, and which recordings start by themselves.</source>
        <translation>Choose when a recording stops by itself, and which recordings start by themselves.</translation>
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
<context>
    <name>Zentor::Desktop::SoundCard</name>
    <message>
        <source>Record the sound of:</source>
        <translation>Record the sound of:</translation>
    </message>
    <message>
        <source>Sound devices</source>
        <translation>Sound devices</translation>
    </message>
    <message>
        <source>All sound in one trac&amp;k</source>
        <translation>All sound in one trac&amp;k</translation>
    </message>
    <message>
        <source>Otherwise each device has a track of its own, for editing. Most players play only the first.</source>
        <translation>Otherwise each device has a track of its own, for editing. Most players play only the first.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceList</name>
    <message>
        <source>Looking for sound devices...</source>
        <translation>Looking for sound devices…</translation>
    </message>
    <message>
        <source>The sound devices of this computer cannot be listed.</source>
        <translation>The sound devices of this computer cannot be listed.</translation>
    </message>
    <message>
        <source>There are no sound devices on this computer.</source>
        <translation>There are no sound devices on this computer.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceRow</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (not connected)</translation>
    </message>
    <message>
        <source>Level of %1</source>
        <translation>Level of %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SourceCard</name>
    <message>
        <source>Record a s&amp;creen</source>
        <translation>Record a s&amp;creen</translation>
    </message>
    <message>
        <source>Screen that is recorded</source>
        <translation>Screen that is recorded</translation>
    </message>
    <message>
        <source>Record the selected &amp;area</source>
        <translation>Record the selected &amp;area</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>&amp;Left:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Top:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Width:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Height:</translation>
    </message>
    <message>
        <source>Left edge of the area in pixels</source>
        <translation>Left edge of the area in pixels</translation>
    </message>
    <message>
        <source>Top edge of the area in pixels</source>
        <translation>Top edge of the area in pixels</translation>
    </message>
    <message>
        <source>Width of the area in pixels</source>
        <translation>Width of the area in pixels</translation>
    </message>
    <message>
        <source>Height of the area in pixels</source>
        <translation>Height of the area in pixels</translation>
    </message>
    <message>
        <source>Choose o&amp;n the screen...</source>
        <translation>Choose o&amp;n the screen…</translation>
    </message>
    <message>
        <source>Show &amp;outline</source>
        <translation>Show &amp;outline</translation>
    </message>
    <message>
        <source>Screen %1, %2</source>
        <translation>Screen %1, %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>Screen %1 (not connected)</source>
        <translation>Screen %1 (not connected)</translation>
    </message>
    <message>
        <source>No area has been selected yet: all of screen 1 is recorded instead, also by tasks with &quot;Selected area&quot;.</source>
        <translation>No area has been selected yet: all of screen 1 is recorded instead, also by tasks with &quot;Selected area&quot;.</translation>
    </message>
    <message>
        <source>Tasks with &quot;Selected area&quot; record this area, too.</source>
        <translation>Tasks with &quot;Selected area&quot; record this area, too.</translation>
    </message>
    <message>
        <source>The screen that is to be recorded is not connected.</source>
        <translation>The screen that is to be recorded is not connected.</translation>
    </message>
    <message>
        <source>The selected area is not on any screen.</source>
        <translation>The selected area is not on any screen.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrayIcon</name>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Start recording</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>S&amp;top</translation>
    </message>
    <message>
        <source>Show &amp;window</source>
        <translation>Show &amp;window</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>Not recording</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Paused</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Recording</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Resume</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pause</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrialCard</name>
    <message>
        <source>See and hear what a recording with these settings is like.</source>
        <translation>See and hear what a recording with these settings is like.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Try fi&amp;ve seconds</source>
        <translation>Try fi&amp;ve seconds</translation>
    </message>
    <message>
        <source>Trial recording</source>
        <translation>Trial recording</translation>
    </message>
    <message>
        <source>The trial recording was cancelled.</source>
        <translation>The trial recording was cancelled.</translation>
    </message>
    <message>
        <source>The trial recording was made, but there is no program that opens it: %1</source>
        <translation>The trial recording was made, but there is no program that opens it: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened. The recorder says: %1</source>
        <translation>The trial recording was made and opened. The recorder says: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened.</source>
        <translation>The trial recording was made and opened.</translation>
    </message>
    <message>
        <source>The recorder px-recorder cannot be started. Is it installed completely?</source>
        <translation>The recorder px-recorder cannot be started. Is it installed completely?</translation>
    </message>
    <message>
        <source>Nothing could be recorded. The recorder says: %1</source>
        <translation>Nothing could be recorded. The recorder says: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::Inhibitors</name>
    <message>
        <source>The computer cannot be kept from going to sleep while it records.</source>
        <translation>The computer cannot be kept from going to sleep while it records.</translation>
    </message>
    <message>
        <source>The computer cannot be kept from being shut down before the file is closed.</source>
        <translation>The computer cannot be kept from being shut down before the file is closed.</translation>
    </message>
    <message>
        <source>The screen cannot be kept from going dark while it is recorded.</source>
        <translation>The screen cannot be kept from going dark while it is recorded.</translation>
    </message>
    <message>
        <source>A recording is running.</source>
        <translation>A recording is running.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecorderProcess</name>
    <message>
        <source>%1 is of another version</source>
        <translation>%1 is of another version</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1 cannot be started: %2</translation>
    </message>
    <message>
        <source>The recorder crashed (signal %1).</source>
        <translation>The recorder crashed (signal %1).</translation>
    </message>
    <message>
        <source>The recorder ended unexpectedly (exit status %1).</source>
        <translation>The recorder ended unexpectedly (exit status %1).</translation>
    </message>
    <message>
        <source>The recorder did not start in time.</source>
        <translation>The recorder did not start in time.</translation>
    </message>
    <message>
        <source>The recorder stopped responding.</source>
        <translation>The recorder stopped responding.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecordingsList</name>
    <message>
        <source>The list of recordings %1 cannot be read: %2</source>
        <translation>The list of recordings %1 cannot be read: %2</translation>
    </message>
    <message>
        <source>The list of recordings %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>The list of recordings %1 is damaged, and it cannot be kept under another name: %2</translation>
    </message>
    <message>
        <source>Some entries of the list of recordings could not be used. What the file held is kept in %1.</source>
        <translation>Some entries of the list of recordings could not be used. What the file held is kept in %1.</translation>
    </message>
    <message>
        <source>The list of recordings could not be understood, so it begins anew. What it held is kept in %1.</source>
        <translation>The list of recordings could not be understood, so it begins anew. What it held is kept in %1.</translation>
    </message>
    <message>
        <source>%1: the list of recordings is not saved in %2</source>
        <translation>%1: the list of recordings is not saved in %2</translation>
    </message>
</context>
</TS>
