<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>cannot copy the settings file %1: %2</source>
        <translation>Die Einstellungsdatei %1 kann nicht kopiert werden: %2</translation>
    </message>
</context>
<context>
    <name>CaptureControllerWrapper</name>
    <message>
        <source>Could not start recording because there is not enough disk space. Free more disk space and try again. Or set a different disk drive for storing output videos in %1File Preferences%2. </source>
        <translation>Die Aufnahme konnte nicht gestartet werden, weil nicht genügend Speicherplatz frei ist. Geben Sie Speicherplatz frei und versuchen Sie es erneut, oder wählen Sie in den %1Dateieinstellungen%2 ein anderes Laufwerk für Ihre Aufnahmen.</translation>
    </message>
    <message>
        <source>File Preferences</source>
        <translation>Dateieinstellungen</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Keep the settings in &lt;file&gt; instead of the platform&apos;s configuration folder.</source>
        <translation>Die Einstellungen in &lt;file&gt; statt im Konfigurationsordner des Systems aufbewahren.</translation>
    </message>
    <message>
        <source>Use &lt;language&gt; in this run, for example de or pt_BR.</source>
        <translation>In diesem Lauf die Sprache &lt;language&gt; verwenden, zum Beispiel de oder pt_BR.</translation>
    </message>
    <message>
        <source>Use the theme light or dark in this run.</source>
        <translation>In diesem Lauf das Design light oder dark verwenden.</translation>
    </message>
    <message>
        <source>Walk through the window on a copy of the settings (of a sample without --settings), write a picture of each state into &lt;folder&gt;, and end.</source>
        <translation>Mit einer Kopie der Einstellungen (ohne --settings eines Beispiels) durch das Fenster gehen, von jedem Zustand ein Bild in &lt;folder&gt; ablegen und enden.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version anzeigen.</translation>
    </message>
    <message>
        <source>%1: %2 (try --help)</source>
        <translation>%1: %2 (siehe --help)</translation>
    </message>
    <message>
        <source>option --%1 needs a value</source>
        <translation>Option --%1 braucht einen Wert</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>unerwartetes Argument „%1“</translation>
    </message>
    <message>
        <source>unknown theme &apos;%1&apos;; the themes are light and dark</source>
        <translation>unbekanntes Design „%1“; es gibt light und dark</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;; the languages are %2</source>
        <translation>unbekannte Sprache „%1“; es gibt %2</translation>
    </message>
    <message>
        <source>Choose how screen recordings are timed.</source>
        <translation>Legen Sie fest, wann Bildschirmaufnahmen beginnen und enden.</translation>
    </message>
</context>
<context>
    <name>CreateRecordTaskWidget</name>
    <message>
        <source>New record:</source>
        <translation>Neue Aufnahme:</translation>
    </message>
    <message>
        <source>Action on finish:</source>
        <translation>Aktion nach &amp;Ende:</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Erstellen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Datei&amp;name:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>D&amp;atum:</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>dd.MM.yyyy</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>&amp;Uhrzeit:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>&amp;Dauer:</translation>
    </message>
    <message>
        <source>Capture:</source>
        <translation>Aufnehmen:</translation>
    </message>
    <message>
        <source>Selected area</source>
        <translation>Ausgewählter Bereich</translation>
    </message>
    <message>
        <source>Selected area tooltip</source>
        <translation>Nimmt den in den Einstellungen gewählten Bereich auf; wo keiner gewählt ist, den ganzen ersten Bildschirm.
Diese Version nimmt noch nicht auf.</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Ganzer Bildschirm</translation>
    </message>
    <message>
        <source>Need select task name</source>
        <translation>Geben Sie einen Namen für die Aufgabe ein.</translation>
    </message>
    <message>
        <source>Task with this title already exist</source>
        <translation>Eine Aufgabe mit diesem Namen ist bereits vorhanden.</translation>
    </message>
    <message>
        <source>Curent capture time intersect with other capture time in the list</source>
        <translation>Die Zeit dieser Aufnahme überschneidet sich mit einer anderen Aufnahme in der Liste.</translation>
    </message>
</context>
<context>
    <name>PowerAction</name>
    <message>
        <source>Do nothing</source>
        <translation>Nichts tun</translation>
    </message>
    <message>
        <source>Quit the application</source>
        <translation>Anwendung beenden</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>Energie sparen</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>Ruhezustand</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Neu starten</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>Herunterfahren</translation>
    </message>
</context>
<context>
    <name>RecordSchedulerWidget</name>
    <message>
        <source>All tasks will be permanently deleted from the recording schedule. Are you sure you want to continue?</source>
        <translation>Alle Aufgaben werden endgültig aus dem Aufnahmezeitplan gelöscht. Möchten Sie wirklich fortfahren?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Fortfahren</translation>
    </message>
    <message>
        <source>The task hasn&apos;t been saved. Would you like to add this task to the recording schedule?</source>
        <translation>Die Aufgabe wurde noch nicht gespeichert. Möchten Sie sie dem Aufnahmezeitplan hinzufügen?</translation>
    </message>
    <message>
        <source>Don&apos;t Add</source>
        <translation>Nicht hinzufügen</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Do not schedule capture</source>
        <translation>&amp;Keine zeitliche Steuerung</translation>
    </message>
    <message>
        <source>Stop capture after</source>
        <translation>Aufnahme &amp;beenden nach</translation>
    </message>
    <message>
        <source>Record on schedule</source>
        <translation>Nach &amp;Zeitplan aufnehmen</translation>
    </message>
    <message>
        <source>Add record event</source>
        <translation>Aufnahme hinzufügen</translation>
    </message>
    <message>
        <source>Capture duration in limited capture:</source>
        <translation>Aufnahme&amp;dauer:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>When capture ends:</source>
        <translation>&amp;Nach der Aufnahme:</translation>
    </message>
</context>
<context>
    <name>ScheduleRecordTableWidget</name>
    <message>
        <source>Task </source>
        <translation>Aufgabe </translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dateiname</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>dd.MM.yyyy</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>The task will be permanently deleted from the recording schedule. Are you sure you want to delete the task?</source>
        <translation>Die Aufgabe wird endgültig aus dem Aufnahmezeitplan gelöscht. Möchten Sie die Aufgabe wirklich löschen?</translation>
    </message>
    <message>
        <source>Always delete</source>
        <translation>Immer löschen</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The settings file %1 is not a file.</source>
        <translation>Die Einstellungsdatei %1 ist keine Datei.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder is missing and cannot be created either.</source>
        <translation>Die Einstellungsdatei %1 kann nicht angelegt werden: Ihr Ordner fehlt und kann ebenfalls nicht angelegt werden.</translation>
    </message>
    <message>
        <source>The settings file %1 is in use by another process.</source>
        <translation>Die Einstellungsdatei %1 wird von einem anderen Prozess verwendet.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder cannot be written to.</source>
        <translation>Die Einstellungsdatei %1 kann nicht angelegt werden: In ihren Ordner kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <translation>Die Einstellungsdatei %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>Die Einstellungsdatei %1 ist beschädigt und kann nicht unter einem anderen Namen aufbewahrt werden: %2</translation>
    </message>
    <message>
        <source>The settings file could not be understood, so the defaults are in use. What it held is kept in %1.</source>
        <translation>Die Einstellungsdatei war nicht zu verstehen, deshalb gelten die Voreinstellungen. Ihr Inhalt wird in %1 aufbewahrt.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. Tasks left out: %2. What the file held is kept in %1.</source>
        <translation>Ein Teil der Einstellungen war nicht zu verwenden. Weggelassene Aufgaben: %2. Der Inhalt der Datei wird in %1 aufbewahrt.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. What the file held is kept in %1.</source>
        <translation>Ein Teil der Einstellungen war nicht zu verwenden. Der Inhalt der Datei wird in %1 aufbewahrt.</translation>
    </message>
    <message>
        <source>Another program has changed the settings file. Its version is kept in %1; the settings shown here stay in use.</source>
        <translation>Ein anderes Programm hat die Einstellungsdatei geändert. Dessen Fassung wird in %1 aufbewahrt; die hier gezeigten Einstellungen gelten weiter.</translation>
    </message>
    <message>
        <source>Only a part of the file could be read</source>
        <translation>Nur ein Teil der Datei konnte gelesen werden</translation>
    </message>
    <message>
        <source>%2: your changes are not saved in %1</source>
        <translation>%2: Ihre Änderungen sind nicht in %1 gespeichert</translation>
    </message>
    <message>
        <source>The file is in use by another process</source>
        <translation>Die Datei wird von einem anderen Prozess verwendet</translation>
    </message>
    <message>
        <source>The folder cannot be written to</source>
        <translation>In den Ordner kann nicht geschrieben werden</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::CalendarLook</name>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::FilesPage</name>
    <message>
        <source>&amp;Folder for recordings:</source>
        <translation>&amp;Ordner für Aufnahmen:</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>Ordner für Aufnahmen</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Durchsuchen …</translation>
    </message>
    <message>
        <source>Browse for the folder for recordings</source>
        <translation>Ordner für Aufnahmen suchen</translation>
    </message>
    <message>
        <source>Enter the full path of a folder.</source>
        <translation>Geben Sie den vollständigen Pfad eines Ordners ein.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Das ist eine Datei, kein Ordner.</translation>
    </message>
    <message>
        <source>You are not allowed to write into this folder.</source>
        <translation>Sie dürfen in diesen Ordner nicht schreiben.</translation>
    </message>
    <message>
        <source>The free space of this folder is unknown.</source>
        <translation>Der freie Speicherplatz dieses Ordners ist nicht bekannt.</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>Freier Speicherplatz: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Choose where recordings are kept.</source>
        <translation>Legen Sie fest, wo Aufnahmen gespeichert werden.</translation>
    </message>
    <message>
        <source>This folder cannot be created.</source>
        <translation>Dieser Ordner kann nicht angelegt werden.</translation>
    </message>
    <message>
        <source>This folder does not exist yet. It will be created with the first recording.</source>
        <translation>Diesen Ordner gibt es noch nicht. Er wird mit der ersten Aufnahme angelegt.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::GeneralPage</name>
    <message>
        <source>In this run: %1 (chosen at the start)</source>
        <translation>In diesem Lauf: %1 (beim Start gewählt)</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>Sp&amp;rache:</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <translation>Wie das System (%1)</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>D&amp;esign:</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Wie das System</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>&amp;Ask all questions again</source>
        <translation>Alle &amp;Fragen wieder stellen</translation>
    </message>
    <message>
        <source>Open settings &amp;folder</source>
        <translation>&amp;Ordner der Einstellungen öffnen</translation>
    </message>
    <message>
        <source>&amp;Open log</source>
        <translation>&amp;Protokoll öffnen</translation>
    </message>
    <message>
        <source>There is no log of this run.</source>
        <translation>Es gibt kein Protokoll dieses Laufs.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Das lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>Some questions are no longer asked.</source>
        <translation>Manche Fragen werden auf Ihren Wunsch nicht mehr gestellt.</translation>
    </message>
    <message>
        <source>Every question is asked, for example before a task is deleted.</source>
        <translation>Jede Frage wird gestellt, zum Beispiel bevor eine Aufgabe gelöscht wird.</translation>
    </message>
    <message>
        <source>All questions will be asked again</source>
        <translation>Alle Fragen werden wieder gestellt</translation>
    </message>
    <message>
        <source>When something goes wrong, your settings and the log of this run help to find out why.</source>
        <translation>Wenn etwas nicht stimmt, helfen Ihre Einstellungen und das Protokoll dieses Laufs, den Grund zu finden.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Choose language and theme.</source>
        <translation>Legen Sie Sprache und Aussehen der Anwendung fest.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::MainWindow</name>
    <message>
        <source>Recording Scheduler</source>
        <translation>Aufnahmeplaner</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Einstellungsseiten</translation>
    </message>
    <message>
        <source>Your changes are saved again.</source>
        <translation>Ihre Änderungen werden wieder gespeichert.</translation>
    </message>
    <message>
        <source>Your changes could not be saved. They will be lost if you close the window now.</source>
        <translation>Ihre Änderungen konnten nicht gespeichert werden. Sie gehen verloren, wenn Sie das Fenster jetzt schließen.</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Trotzdem schließen</translation>
    </message>
    <message>
        <source>Ready to record</source>
        <translation>Bereit zur Aufnahme</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>Aufnahme &amp;starten</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Close notice</source>
        <translation>Hinweis schließen</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAnnouncer</name>
    <message>
        <source>Task added: %1</source>
        <translation>Aufgabe hinzugefügt: %1</translation>
    </message>
    <message>
        <source>All tasks deleted</source>
        <translation>Alle Aufgaben gelöscht</translation>
    </message>
    <message>
        <source>Task deleted: %1</source>
        <translation>Aufgabe gelöscht: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelNameGuard</name>
    <message>
        <source>A name cannot contain line breaks or other control characters.</source>
        <translation>Ein Name kann weder Zeilenumbrüche noch andere Steuerzeichen enthalten.</translation>
    </message>
    <message>
        <source>A name cannot contain: %1</source>
        <translation>Ein Name kann Folgendes nicht enthalten: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelTaskDetails</name>
    <message>
        <source>This task is over.</source>
        <translation>Diese Aufgabe ist vorbei.</translation>
    </message>
    <message>
        <source>Afterwards: %1</source>
        <translation>Danach: %1</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>Endet um %1</translation>
    </message>
    <message>
        <source>Ends on the next day at %1</source>
        <translation>Endet am nächsten Tag um %1</translation>
    </message>
    <message>
        <source>Records screen %1, which is not connected</source>
        <translation>Nimmt Bildschirm %1 auf, der nicht angeschlossen ist</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Nimmt auf: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Zeitplan</translation>
    </message>
    <message>
        <source>Choose when a recording stops or starts by itself. Your choice is kept; this version does not record yet.</source>
        <translation>Legen Sie fest, wann eine Aufnahme von selbst endet oder beginnt. Ihre Wahl wird aufbewahrt; diese Version nimmt noch nicht auf.</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Aufnahmezeitplan</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::ScreenshotTour</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>Ordner %1 kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>cannot reach: %1</source>
        <translation>nicht erreichbar: %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>%1 kann nicht geschrieben werden</translation>
    </message>
</context>
</TS>
