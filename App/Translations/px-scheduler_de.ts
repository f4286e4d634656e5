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
    <message>
        <source>the program does not run on these settings</source>
        <translation>das Programm läuft nicht mit diesen Einstellungen</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Cannot delete %1</source>
        <translation>Das lässt sich nicht löschen: %1</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>Das lässt sich nicht schreiben: %1</translation>
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
    <message>
        <source>Start recording, in the program that runs already if there is one.</source>
        <translation>Die Aufnahme starten, und zwar im bereits laufenden Programm, falls es eines gibt.</translation>
    </message>
    <message>
        <source>Stop the recording of the program that runs already.</source>
        <translation>Die Aufnahme des bereits laufenden Programms stoppen.</translation>
    </message>
    <message>
        <source>Pause the recording of the program that runs already, or go on with it.</source>
        <translation>Die Aufnahme des bereits laufenden Programms pausieren oder fortsetzen.</translation>
    </message>
    <message>
        <source>End the program that runs already, without a question.</source>
        <translation>Das bereits laufende Programm ohne Rückfrage beenden.</translation>
    </message>
    <message>
        <source>Start without a window.</source>
        <translation>Ohne Fenster starten.</translation>
    </message>
    <message>
        <source>options --%1 and --%2 cannot be used together</source>
        <translation>die Optionen --%1 und --%2 können nicht zusammen verwendet werden</translation>
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
        <translation>Nächste: %1, so bald wie möglich</translation>
    </message>
    <message>
        <source>Next: %1 on %2</source>
        <translation>Nächste: %1 am %2</translation>
    </message>
    <message>
        <source>Next: %1 in %2</source>
        <translation>Nächste: %1 in %2</translation>
    </message>
    <message>
        <source>The recording starts</source>
        <translation>Die Aufnahme beginnt</translation>
    </message>
    <message>
        <source>%1 is about to start</source>
        <translation>%1 beginnt gleich</translation>
    </message>
    <message>
        <source>%1 starts in %2</source>
        <translation>%1 beginnt in %2</translation>
    </message>
    <message>
        <source>%1 starts when this recording has ended</source>
        <translation>%1 beginnt nach dieser Aufnahme</translation>
    </message>
    <message>
        <source>This recording will end for %1</source>
        <translation>Diese Aufnahme endet für %1</translation>
    </message>
    <message>
        <source>Ends in %1 for %2</source>
        <translation>Endet in %1 für %2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausiert</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufnahme läuft</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Pausiert: %1</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Aufnahme: %1</translation>
    </message>
    <message>
        <source>%1 is being saved</source>
        <translation>%1 wird gespeichert</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>%1 has been recorded</source>
        <translation>%1 ist fertig</translation>
    </message>
    <message>
        <source>%1 has been stopped</source>
        <translation>%1 wurde gestoppt</translation>
    </message>
    <message>
        <source>%1 has been recorded in part</source>
        <translation>%1 ist unvollständig</translation>
    </message>
    <message>
        <source>%1 has not been recorded</source>
        <translation>%1 wurde nicht aufgenommen</translation>
    </message>
    <message>
        <source>%1 could not be recorded</source>
        <translation>%1 ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>Grund: %1.</translation>
    </message>
    <message>
        <source>The file is %1.</source>
        <translation>Die Datei heißt %1.</translation>
    </message>
    <message>
        <source>The rest is recorded into a new file.</source>
        <translation>Der Rest wird in eine neue Datei aufgenommen.</translation>
    </message>
    <message>
        <source>The computer cannot go to sleep</source>
        <translation>Der Computer kann nicht in den Energiesparmodus wechseln</translation>
    </message>
    <message>
        <source>The computer cannot hibernate</source>
        <translation>Der Computer kann nicht in den Ruhezustand wechseln</translation>
    </message>
    <message>
        <source>The computer cannot be restarted</source>
        <translation>Der Computer kann nicht neu gestartet werden</translation>
    </message>
    <message>
        <source>The computer cannot be shut down</source>
        <translation>Der Computer kann nicht heruntergefahren werden</translation>
    </message>
    <message>
        <source>The computer does not go to sleep</source>
        <translation>Der Computer wechselt nicht in den Energiesparmodus</translation>
    </message>
    <message>
        <source>The computer does not hibernate</source>
        <translation>Der Computer wechselt nicht in den Ruhezustand</translation>
    </message>
    <message>
        <source>The computer is not restarted</source>
        <translation>Der Computer wird nicht neu gestartet</translation>
    </message>
    <message>
        <source>The computer is not shut down</source>
        <translation>Der Computer wird nicht heruntergefahren</translation>
    </message>
    <message>
        <source>%1 starts at %2.</source>
        <translation>%1 beginnt um %2.</translation>
    </message>
    <message>
        <source>%1 is about to be recorded</source>
        <translation>%1 wird gleich aufgenommen</translation>
    </message>
    <message>
        <source>The recording starts at %1.</source>
        <translation>Die Aufnahme beginnt um %1.</translation>
    </message>
    <message>
        <source>%1 is being recorded</source>
        <translation>%1 wird aufgenommen</translation>
    </message>
    <message>
        <source>Your recording ends in a moment</source>
        <translation>Ihre Aufnahme endet gleich</translation>
    </message>
    <message>
        <source>%1 waits for its screen</source>
        <translation>%1 wartet auf den Bildschirm</translation>
    </message>
    <message>
        <source>It is recorded as soon as the screen is connected.</source>
        <translation>Aufgenommen wird, sobald der Bildschirm angeschlossen ist.</translation>
    </message>
    <message>
        <source>%1 does not start</source>
        <translation>%1 beginnt nicht</translation>
    </message>
    <message>
        <source>The disk is full: %1 are free.</source>
        <translation>Der Datenträger ist voll: Es sind %1 frei.</translation>
    </message>
    <message>
        <source>The recording is finished.</source>
        <translation>Die Aufnahme ist beendet.</translation>
    </message>
    <message>
        <source>There is a problem with %1</source>
        <translation>Es gibt ein Problem mit %1</translation>
    </message>
    <message>
        <source>your recording</source>
        <translation>Ihrer Aufnahme</translation>
    </message>
    <message>
        <source>The disk may be too small for the scheduled tasks</source>
        <translation>Der Speicherplatz reicht vielleicht nicht für die geplanten Aufgaben</translation>
    </message>
    <message>
        <source>They are likely to need %1, and %2 can be used.</source>
        <translation>Sie brauchen voraussichtlich %1; nutzbar sind %2.</translation>
    </message>
    <message>
        <source>The program runs on</source>
        <translation>Das Programm läuft weiter</translation>
    </message>
    <message>
        <source>Its icon shows the window again. You can change this on the page &quot;General&quot;.</source>
        <translation>Sein Symbol zeigt das Fenster wieder an. Ändern können Sie das auf der Seite „Allgemein“.</translation>
    </message>
    <message>
        <source>Not everything works on this desktop</source>
        <translation>Auf diesem Desktop funktioniert nicht alles</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Auslassen</translation>
    </message>
    <message>
        <source>Keep recording</source>
        <translation>Weiter aufnehmen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Im Ordner anzeigen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>The computer goes to sleep in %1</source>
        <translation>Der Computer geht in %1 in den Energiesparmodus</translation>
    </message>
    <message>
        <source>The computer hibernates in %1</source>
        <translation>Der Computer geht in %1 in den Ruhezustand</translation>
    </message>
    <message>
        <source>The computer restarts in %1</source>
        <translation>Der Computer startet in %1 neu</translation>
    </message>
    <message>
        <source>The computer shuts down in %1</source>
        <translation>Der Computer fährt in %1 herunter</translation>
    </message>
    <message>
        <source>Your recording</source>
        <translation>Ihre Aufnahme</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1“</translation>
    </message>
</context>
<context>
    <name>RecordingTexts</name>
    <message>
        <source>it started late</source>
        <translation>sie hat verspätet begonnen</translation>
    </message>
    <message>
        <source>an earlier part of it broke off</source>
        <translation>ein früherer Teil ist abgebrochen</translation>
    </message>
    <message>
        <source>the recorder broke down</source>
        <translation>der Rekorder ist ausgefallen</translation>
    </message>
    <message>
        <source>the program ended unexpectedly</source>
        <translation>das Programm wurde unerwartet beendet</translation>
    </message>
    <message>
        <source>a task was due</source>
        <translation>eine Aufgabe war fällig</translation>
    </message>
    <message>
        <source>the computer was shut down</source>
        <translation>der Computer wurde heruntergefahren</translation>
    </message>
    <message>
        <source>the computer was asleep</source>
        <translation>der Computer war im Energiesparmodus</translation>
    </message>
    <message>
        <source>the program was not running</source>
        <translation>das Programm lief nicht</translation>
    </message>
    <message>
        <source>the schedule was off</source>
        <translation>der Zeitplan war ausgeschaltet</translation>
    </message>
    <message>
        <source>the clock was set</source>
        <translation>die Uhr wurde gestellt</translation>
    </message>
    <message>
        <source>another recording was running</source>
        <translation>eine andere Aufnahme lief</translation>
    </message>
    <message>
        <source>the screen was not connected</source>
        <translation>der Bildschirm war nicht angeschlossen</translation>
    </message>
    <message>
        <source>you skipped it</source>
        <translation>Sie haben sie ausgelassen</translation>
    </message>
    <message>
        <source>the recorder is not installed</source>
        <translation>der Rekorder ist nicht installiert</translation>
    </message>
    <message>
        <source>the disk was nearly full</source>
        <translation>der Datenträger war fast voll</translation>
    </message>
    <message>
        <source>the disk was full</source>
        <translation>der Datenträger war voll</translation>
    </message>
    <message>
        <source>the display was gone</source>
        <translation>die Anzeige war nicht mehr verfügbar</translation>
    </message>
    <message>
        <source>the program was ended</source>
        <translation>das Programm wurde beendet</translation>
    </message>
    <message>
        <source>the file existed already</source>
        <translation>die Datei gab es bereits</translation>
    </message>
    <message>
        <source>the folder did not exist</source>
        <translation>den Ordner gab es nicht</translation>
    </message>
    <message>
        <source>the folder could not be written to</source>
        <translation>in den Ordner konnte nicht geschrieben werden</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>der Desktop hat es nicht erlaubt</translation>
    </message>
    <message>
        <source>no encoder works on this computer</source>
        <translation>auf diesem Computer funktioniert kein Encoder</translation>
    </message>
    <message>
        <source>nothing was recorded</source>
        <translation>es wurde nichts aufgenommen</translation>
    </message>
    <message>
        <source>the conversion to MP4 failed</source>
        <translation>die Umwandlung in MP4 ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>the recorder reported an error</source>
        <translation>der Rekorder hat einen Fehler gemeldet</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Vollständig</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>Unvollständig</translation>
    </message>
    <message>
        <source>Stopped by you</source>
        <translation>Von Ihnen gestoppt</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Verpasst</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Recording now</source>
        <translation>Läuft gerade</translation>
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
        <translation>Bereich des Bildschirms</translation>
    </message>
    <message>
        <source>Draw the area with the mouse, or move it with the arrow keys and resize it with Shift and the arrow keys. Enter takes it, Escape cancels.</source>
        <translation>Ziehen Sie den Bereich mit der Maus auf, oder verschieben Sie ihn mit den Pfeiltasten und ändern Sie seine Größe mit Umschalt und den Pfeiltasten. Die Eingabetaste übernimmt ihn, Esc bricht ab.</translation>
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
    <name>Zentor::Desktop::DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>Fenster anzeigen</translation>
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
    <message>
        <source>Start &amp;with the desktop</source>
        <translation>&amp;Beim Anmelden starten</translation>
    </message>
    <message>
        <source>&amp;Keep running when the window is closed</source>
        <translation>&amp;Nach dem Schließen des Fensters weiterlaufen</translation>
    </message>
    <message>
        <source>While tasks are pending or a recording runs, the program stays in the tray. Where there is none, its window is minimized.</source>
        <translation>Solange Aufgaben anstehen oder eine Aufnahme läuft, bleibt das Programm im Infobereich. Wo es keinen gibt, wird das Fenster minimiert.</translation>
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
        <source>The recording that is running will be stopped.</source>
        <translation>Die laufende Aufnahme wird gestoppt.</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) are still to come. They will not be recorded when the program is not running.</source>
        <translation>
            <numerusform>%n Aufgabe steht noch aus. Sie wird nicht aufgenommen, wenn das Programm nicht läuft.</numerusform>
            <numerusform>%n Aufgaben stehen noch aus. Sie werden nicht aufgenommen, wenn das Programm nicht läuft.</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
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
    <name>Zentor::Desktop::PanelAreaTip</name>
    <message>
        <source>No area has been selected yet: all of screen 1 (%1) is recorded. You can select an area on the page &quot;Recording&quot;.</source>
        <translation>Es ist noch kein Bereich ausgewählt: Bildschirm 1 (%1) wird ganz aufgenommen. Einen Bereich können Sie auf der Seite „Aufnahme“ auswählen.</translation>
    </message>
    <message>
        <source>Records %1, the area that is selected on the page &quot;Recording&quot;.</source>
        <translation>Nimmt %1 auf, den auf der Seite „Aufnahme“ ausgewählten Bereich.</translation>
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
    <name>Zentor::Desktop::PictureCard</name>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>&amp;Bilder pro Sekunde:</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Qualität:</translation>
    </message>
    <message>
        <source>Fil&amp;e format:</source>
        <translation>Datei&amp;format:</translation>
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
        <translation>Maus&amp;zeiger aufnehmen</translation>
    </message>
    <message>
        <source>Small: about %1 an hour</source>
        <translation>Klein: etwa %1 pro Stunde</translation>
    </message>
    <message>
        <source>Normal: about %1 an hour</source>
        <translation>Normal: etwa %1 pro Stunde</translation>
    </message>
    <message>
        <source>High: about %1 an hour</source>
        <translation>Hoch: etwa %1 pro Stunde</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingControl</name>
    <message>
        <source>A task is about to start.</source>
        <translation>Eine Aufgabe beginnt gleich.</translation>
    </message>
    <message>
        <source>The desktop shows no notifications. The page &quot;Recordings&quot; tells what was recorded, and what was not.</source>
        <translation>Der Desktop zeigt keine Benachrichtigungen an. Was aufgenommen wurde und was nicht, steht auf der Seite „Aufnahmen“.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingFooter</name>
    <message>
        <source>Recording</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>Aufgenommen</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Größe der Datei</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Freier Speicherplatz</translation>
    </message>
    <message>
        <source>Dropped frames</source>
        <translation>Verlorene Bilder</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>Aufnahme &amp;starten</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stopp</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>Aus&amp;lassen</translation>
    </message>
    <message>
        <source>Skip this task</source>
        <translation>Diese Aufgabe auslassen</translation>
    </message>
    <message>
        <source>&amp;Keep recording</source>
        <translation>&amp;Weiter aufnehmen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>&amp;Jetzt</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>bis %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 frei</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) dropped</source>
        <translation>
            <numerusform>%n Bild verloren</numerusform>
            <numerusform>%n Bilder verloren</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>We&amp;iter</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Paus&amp;ieren</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingPage</name>
    <message>
        <source>Recording</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Choose what is recorded, and how.</source>
        <translation>Legen Sie fest, was und wie aufgenommen wird.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsModel</name>
    <message>
        <source>the file is gone</source>
        <translation>die Datei ist nicht mehr da</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsPage</name>
    <message>
        <source>Recordings</source>
        <translation>Aufnahmen</translation>
    </message>
    <message>
        <source>What was recorded, and what was not.</source>
        <translation>Was aufgenommen wurde und was nicht.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. Start a recording with the button below, or plan one on the page Schedule; it is listed here then.</source>
        <translation>Es wurde noch nichts aufgenommen. Starten Sie eine Aufnahme mit der Schaltfläche unten, oder planen Sie eine auf der Seite „Zeitplan“; danach steht sie hier in der Liste.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>Im &amp;Ordner zeigen</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Reparieren</translation>
    </message>
    <message>
        <source>Adds what a crash has kept from the end of the file, so that players can seek in it.</source>
        <translation>Ergänzt, was wegen eines Absturzes am Ende der Datei fehlt, damit man beim Abspielen darin springen kann.</translation>
    </message>
    <message>
        <source>Move to &amp;trash</source>
        <translation>In den &amp;Papierkorb</translation>
    </message>
    <message>
        <source>Remove from &amp;list</source>
        <translation>Aus Liste &amp;entfernen</translation>
    </message>
    <message>
        <source>There is no file of this recording.</source>
        <translation>Von dieser Aufnahme gibt es keine Datei.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Das lässt sich nicht öffnen: %1</translation>
    </message>
    <message>
        <source>Repairing: %1</source>
        <translation>Wird repariert: %1</translation>
    </message>
    <message>
        <source>Repaired: %1</source>
        <translation>Repariert: %1</translation>
    </message>
    <message>
        <source>%1 could not be repaired</source>
        <translation>%1 konnte nicht repariert werden</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; will be moved to the trash. Are you sure?</source>
        <translation>Die Aufnahme „%1“ wird in den Papierkorb verschoben. Möchten Sie das wirklich?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will be removed from the list. Are you sure?</source>
        <translation>„%1“ wird aus der Liste entfernt. Möchten Sie das wirklich?</translation>
    </message>
    <message>
        <source>Move to trash</source>
        <translation>In den Papierkorb</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash</source>
        <translation>%1 konnte nicht in den Papierkorb verschoben werden</translation>
    </message>
    <message>
        <source>Removed from the list: %1</source>
        <translation>Aus der Liste entfernt: %1</translation>
    </message>
    <message>
        <source>Moved to the trash: %1</source>
        <translation>In den Papierkorb verschoben: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Zeitplan</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Aufnahmezeitplan</translation>
    </message>
    <message>
        <source>Choose when a recording stops by itself, and which recordings start by themselves.</source>
        <translation>Legen Sie fest, wann eine Aufnahme von selbst endet und welche Aufnahmen von selbst beginnen.</translation>
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
<context>
    <name>Zentor::Desktop::SoundCard</name>
    <message>
        <source>Record the sound of:</source>
        <translation>Ton aufnehmen von:</translation>
    </message>
    <message>
        <source>Sound devices</source>
        <translation>Audiogeräte</translation>
    </message>
    <message>
        <source>All sound in one trac&amp;k</source>
        <translation>&amp;Gesamter Ton in einer Spur</translation>
    </message>
    <message>
        <source>Otherwise each device has a track of its own, for editing. Most players play only the first.</source>
        <translation>Sonst hat jedes Gerät eine eigene Spur, zum Bearbeiten. Die meisten Abspielprogramme geben nur die erste wieder.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceList</name>
    <message>
        <source>Looking for sound devices...</source>
        <translation>Audiogeräte werden gesucht …</translation>
    </message>
    <message>
        <source>The sound devices of this computer cannot be listed.</source>
        <translation>Die Audiogeräte dieses Computers können nicht aufgelistet werden.</translation>
    </message>
    <message>
        <source>There are no sound devices on this computer.</source>
        <translation>Auf diesem Computer gibt es keine Audiogeräte.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceRow</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (nicht angeschlossen)</translation>
    </message>
    <message>
        <source>Level of %1</source>
        <translation>Pegel von %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SourceCard</name>
    <message>
        <source>Record a s&amp;creen</source>
        <translation>Einen Bildschir&amp;m aufnehmen</translation>
    </message>
    <message>
        <source>Screen that is recorded</source>
        <translation>Bildschirm, der aufgenommen wird</translation>
    </message>
    <message>
        <source>Record the selected &amp;area</source>
        <translation>&amp;Ausgewählten Bereich aufnehmen</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>Lin&amp;ks:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>&amp;Oben:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>B&amp;reite:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>Left edge of the area in pixels</source>
        <translation>Linker Rand des Bereichs in Pixeln</translation>
    </message>
    <message>
        <source>Top edge of the area in pixels</source>
        <translation>Oberer Rand des Bereichs in Pixeln</translation>
    </message>
    <message>
        <source>Width of the area in pixels</source>
        <translation>Breite des Bereichs in Pixeln</translation>
    </message>
    <message>
        <source>Height of the area in pixels</source>
        <translation>Höhe des Bereichs in Pixeln</translation>
    </message>
    <message>
        <source>Choose o&amp;n the screen...</source>
        <translation>Am Bil&amp;dschirm wählen …</translation>
    </message>
    <message>
        <source>Show &amp;outline</source>
        <translation>&amp;Umriss anzeigen</translation>
    </message>
    <message>
        <source>Screen %1, %2</source>
        <translation>Bildschirm %1, %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>Screen %1 (not connected)</source>
        <translation>Bildschirm %1 (nicht angeschlossen)</translation>
    </message>
    <message>
        <source>No area has been selected yet: all of screen 1 is recorded instead, also by tasks with &quot;Selected area&quot;.</source>
        <translation>Es ist noch kein Bereich ausgewählt: Stattdessen wird Bildschirm 1 ganz aufgenommen, auch von Aufgaben mit „Ausgewählter Bereich“.</translation>
    </message>
    <message>
        <source>Tasks with &quot;Selected area&quot; record this area, too.</source>
        <translation>Auch Aufgaben mit „Ausgewählter Bereich“ nehmen diesen Bereich auf.</translation>
    </message>
    <message>
        <source>The screen that is to be recorded is not connected.</source>
        <translation>Der Bildschirm, der aufgenommen werden soll, ist nicht angeschlossen.</translation>
    </message>
    <message>
        <source>The selected area is not on any screen.</source>
        <translation>Der ausgewählte Bereich liegt auf keinem Bildschirm.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrayIcon</name>
    <message>
        <source>&amp;Start recording</source>
        <translation>Aufnahme &amp;starten</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>S&amp;topp</translation>
    </message>
    <message>
        <source>Show &amp;window</source>
        <translation>&amp;Fenster anzeigen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>Keine Aufnahme</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Pausiert</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufnahme läuft</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Weiter</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pausieren</translation>
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
        <translation>Sehen und hören Sie, wie eine Aufnahme mit diesen Einstellungen wird.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Try fi&amp;ve seconds</source>
        <translation>Fünf Sekunden &amp;testen</translation>
    </message>
    <message>
        <source>Trial recording</source>
        <translation>Probeaufnahme</translation>
    </message>
    <message>
        <source>The trial recording was cancelled.</source>
        <translation>Die Probeaufnahme wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The trial recording was made, but there is no program that opens it: %1</source>
        <translation>Die Probeaufnahme wurde gemacht, aber es gibt kein Programm, das sie öffnet: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened. The recorder says: %1</source>
        <translation>Die Probeaufnahme wurde gemacht und geöffnet. Der Rekorder meldet: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened.</source>
        <translation>Die Probeaufnahme wurde gemacht und geöffnet.</translation>
    </message>
    <message>
        <source>The recorder px-recorder cannot be started. Is it installed completely?</source>
        <translation>Der Rekorder px-recorder kann nicht gestartet werden. Ist er vollständig installiert?</translation>
    </message>
    <message>
        <source>Nothing could be recorded. The recorder says: %1</source>
        <translation>Es konnte nichts aufgenommen werden. Der Rekorder meldet: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::Inhibitors</name>
    <message>
        <source>The computer cannot be kept from going to sleep while it records.</source>
        <translation>Der Computer lässt sich während der Aufnahme nicht vom Energiesparmodus abhalten.</translation>
    </message>
    <message>
        <source>The computer cannot be kept from being shut down before the file is closed.</source>
        <translation>Das Herunterfahren des Computers lässt sich nicht aufhalten, bis die Datei geschlossen ist.</translation>
    </message>
    <message>
        <source>The screen cannot be kept from going dark while it is recorded.</source>
        <translation>Es lässt sich nicht verhindern, dass der Bildschirm während der Aufnahme dunkel wird.</translation>
    </message>
    <message>
        <source>A recording is running.</source>
        <translation>Eine Aufnahme läuft.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecorderProcess</name>
    <message>
        <source>%1 is of another version</source>
        <translation>%1 hat eine andere Version</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1 kann nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>The recorder crashed (signal %1).</source>
        <translation>Der Rekorder ist abgestürzt (Signal %1).</translation>
    </message>
    <message>
        <source>The recorder ended unexpectedly (exit status %1).</source>
        <translation>Der Rekorder wurde unerwartet beendet (Exit-Status %1).</translation>
    </message>
    <message>
        <source>The recorder did not start in time.</source>
        <translation>Der Rekorder ist nicht rechtzeitig gestartet.</translation>
    </message>
    <message>
        <source>The recorder stopped responding.</source>
        <translation>Der Rekorder reagiert nicht mehr.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecordingsList</name>
    <message>
        <source>The list of recordings %1 cannot be read: %2</source>
        <translation>Die Liste der Aufnahmen %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The list of recordings %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>Die Liste der Aufnahmen %1 ist beschädigt und kann nicht unter einem anderen Namen aufbewahrt werden: %2</translation>
    </message>
    <message>
        <source>Some entries of the list of recordings could not be used. What the file held is kept in %1.</source>
        <translation>Einige Einträge der Liste der Aufnahmen waren nicht zu verwenden. Der Inhalt der Datei wird in %1 aufbewahrt.</translation>
    </message>
    <message>
        <source>The list of recordings could not be understood, so it begins anew. What it held is kept in %1.</source>
        <translation>Die Liste der Aufnahmen war nicht zu verstehen, deshalb beginnt sie neu. Ihr Inhalt wird in %1 aufbewahrt.</translation>
    </message>
    <message>
        <source>%1: the list of recordings is not saved in %2</source>
        <translation>%1: Die Liste der Aufnahmen ist nicht in %2 gespeichert</translation>
    </message>
</context>
</TS>
