<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
        <translation>Nimmt den in den Einstellungen gewählten Bereich auf; wo keiner gewählt ist, den ganzen ersten Bildschirm.</translation>
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
</TS>
