<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>cannot copy the settings file %1: %2</source>
        <translation>nie można skopiować pliku ustawień %1: %2</translation>
    </message>
    <message>
        <source>the program does not run on these settings</source>
        <translation>program z tymi ustawieniami nie jest uruchomiony</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Cannot delete %1</source>
        <translation>Nie można usunąć: %1</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>Nie można zapisać: %1</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Keep the settings in &lt;file&gt; instead of the platform&apos;s configuration folder.</source>
        <translation>Przechowuj ustawienia w &lt;file&gt; zamiast w folderze konfiguracji systemu.</translation>
    </message>
    <message>
        <source>Use &lt;language&gt; in this run, for example de or pt_BR.</source>
        <translation>Użyj języka &lt;language&gt; w tym uruchomieniu, na przykład de lub pt_BR.</translation>
    </message>
    <message>
        <source>Use the theme light or dark in this run.</source>
        <translation>Użyj motywu light lub dark w tym uruchomieniu.</translation>
    </message>
    <message>
        <source>Walk through the window on a copy of the settings (of a sample without --settings), write a picture of each state into &lt;folder&gt;, and end.</source>
        <translation>Przejdź przez okno na kopii ustawień (bez --settings na przykładzie), zapisz obraz każdego stanu w &lt;folder&gt; i zakończ.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Pokaż tę pomoc.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Pokaż wersję.</translation>
    </message>
    <message>
        <source>%1: %2 (try --help)</source>
        <translation>%1: %2 (spróbuj --help)</translation>
    </message>
    <message>
        <source>option --%1 needs a value</source>
        <translation>opcja --%1 wymaga wartości</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>nieoczekiwany argument „%1”</translation>
    </message>
    <message>
        <source>unknown theme &apos;%1&apos;; the themes are light and dark</source>
        <translation>nieznany motyw „%1”; dostępne motywy: light i dark</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;; the languages are %2</source>
        <translation>nieznany język „%1”; dostępne języki: %2</translation>
    </message>
    <message>
        <source>Choose how screen recordings are timed.</source>
        <translation>Wybierz, kiedy nagrania ekranu mają się zaczynać i kończyć.</translation>
    </message>
    <message>
        <source>Start recording, in the program that runs already if there is one.</source>
        <translation>Rozpocznij nagrywanie; jeśli program już działa, to w nim.</translation>
    </message>
    <message>
        <source>Stop the recording of the program that runs already.</source>
        <translation>Zatrzymaj nagrywanie w programie, który już działa.</translation>
    </message>
    <message>
        <source>Pause the recording of the program that runs already, or go on with it.</source>
        <translation>Wstrzymaj nagrywanie w programie, który już działa, lub je wznów.</translation>
    </message>
    <message>
        <source>End the program that runs already, without a question.</source>
        <translation>Zakończ program, który już działa, bez pytania.</translation>
    </message>
    <message>
        <source>Start without a window.</source>
        <translation>Uruchom bez okna.</translation>
    </message>
    <message>
        <source>options --%1 and --%2 cannot be used together</source>
        <translation>opcji --%1 i --%2 nie można używać razem</translation>
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
        <translation>%1 godz. %2 min</translation>
    </message>
</context>
<context>
    <name>FooterState</name>
    <message>
        <source>Next: %1, as soon as possible</source>
        <translation>Następne: %1, jak najszybciej</translation>
    </message>
    <message>
        <source>Next: %1 on %2</source>
        <translation>Następne: %1, %2</translation>
    </message>
    <message>
        <source>Next: %1 in %2</source>
        <translation>Następne: %1 za %2</translation>
    </message>
    <message>
        <source>The recording starts</source>
        <translation>Nagrywanie się zaczyna</translation>
    </message>
    <message>
        <source>%1 is about to start</source>
        <translation>%1 zaraz się zacznie</translation>
    </message>
    <message>
        <source>%1 starts in %2</source>
        <translation>%1 zacznie się za %2</translation>
    </message>
    <message>
        <source>%1 starts when this recording has ended</source>
        <translation>%1 zacznie się po tym nagraniu</translation>
    </message>
    <message>
        <source>This recording will end for %1</source>
        <translation>To nagranie zakończy się, bo ma się zacząć %1</translation>
    </message>
    <message>
        <source>Ends in %1 for %2</source>
        <translation>Koniec za %1, potem %2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Nagrywanie</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Wstrzymano: %1</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Nagrywanie: %1</translation>
    </message>
    <message>
        <source>%1 is being saved</source>
        <translation>Zapisywanie: %1</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>%1 has been recorded</source>
        <translation>Nagrano: %1</translation>
    </message>
    <message>
        <source>%1 has been stopped</source>
        <translation>Zatrzymano: %1</translation>
    </message>
    <message>
        <source>%1 has been recorded in part</source>
        <translation>Nagrano częściowo: %1</translation>
    </message>
    <message>
        <source>%1 has not been recorded</source>
        <translation>Nie nagrano: %1</translation>
    </message>
    <message>
        <source>%1 could not be recorded</source>
        <translation>Nie udało się nagrać: %1</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>Powód: %1.</translation>
    </message>
    <message>
        <source>The file is %1.</source>
        <translation>Plik: %1.</translation>
    </message>
    <message>
        <source>The rest is recorded into a new file.</source>
        <translation>Reszta jest nagrywana do nowego pliku.</translation>
    </message>
    <message>
        <source>The computer cannot go to sleep</source>
        <translation>Nie można uśpić komputera</translation>
    </message>
    <message>
        <source>The computer cannot hibernate</source>
        <translation>Nie można zahibernować komputera</translation>
    </message>
    <message>
        <source>The computer cannot be restarted</source>
        <translation>Nie można uruchomić komputera ponownie</translation>
    </message>
    <message>
        <source>The computer cannot be shut down</source>
        <translation>Nie można wyłączyć komputera</translation>
    </message>
    <message>
        <source>The computer does not go to sleep</source>
        <translation>Komputer nie zostanie uśpiony</translation>
    </message>
    <message>
        <source>The computer does not hibernate</source>
        <translation>Komputer nie zostanie zahibernowany</translation>
    </message>
    <message>
        <source>The computer is not restarted</source>
        <translation>Komputer nie zostanie uruchomiony ponownie</translation>
    </message>
    <message>
        <source>The computer is not shut down</source>
        <translation>Komputer nie zostanie wyłączony</translation>
    </message>
    <message>
        <source>%1 starts at %2.</source>
        <translation>%1 zacznie się o %2.</translation>
    </message>
    <message>
        <source>%1 is about to be recorded</source>
        <translation>Za chwilę nagrywanie: %1</translation>
    </message>
    <message>
        <source>The recording starts at %1.</source>
        <translation>Nagrywanie zacznie się o %1.</translation>
    </message>
    <message>
        <source>%1 is being recorded</source>
        <translation>Trwa nagrywanie: %1</translation>
    </message>
    <message>
        <source>Your recording ends in a moment</source>
        <translation>Twoje nagranie zaraz się zakończy</translation>
    </message>
    <message>
        <source>%1 waits for its screen</source>
        <translation>%1 czeka na swój ekran</translation>
    </message>
    <message>
        <source>It is recorded as soon as the screen is connected.</source>
        <translation>Nagrywanie zacznie się, gdy tylko ekran zostanie podłączony.</translation>
    </message>
    <message>
        <source>%1 does not start</source>
        <translation>Nie zaczyna się: %1</translation>
    </message>
    <message>
        <source>The disk is full: %1 are free.</source>
        <translation>Dysk jest pełny, wolne miejsce: %1.</translation>
    </message>
    <message>
        <source>The recording is finished.</source>
        <translation>Nagrywanie jest zakończone.</translation>
    </message>
    <message>
        <source>There is a problem with %1</source>
        <translation>%1: wystąpił problem</translation>
    </message>
    <message>
        <source>your recording</source>
        <translation>Twoje nagranie</translation>
    </message>
    <message>
        <source>The disk may be too small for the scheduled tasks</source>
        <translation>Dysk może być za mały na zaplanowane zadania</translation>
    </message>
    <message>
        <source>They are likely to need %1, and %2 can be used.</source>
        <translation>Prawdopodobnie potrzebują %1, a do dyspozycji jest %2.</translation>
    </message>
    <message>
        <source>The program runs on</source>
        <translation>Program działa dalej</translation>
    </message>
    <message>
        <source>Its icon shows the window again. You can change this on the page &quot;General&quot;.</source>
        <translation>Jego ikona ponownie pokazuje okno. Możesz to zmienić na stronie „Ogólne”.</translation>
    </message>
    <message>
        <source>Not everything works on this desktop</source>
        <translation>Nie wszystko działa w tym środowisku graficznym</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Pomiń</translation>
    </message>
    <message>
        <source>Keep recording</source>
        <translation>Nagrywaj dalej</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Pokaż w folderze</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Teraz</translation>
    </message>
    <message>
        <source>The computer goes to sleep in %1</source>
        <translation>Uśpienie komputera za %1</translation>
    </message>
    <message>
        <source>The computer hibernates in %1</source>
        <translation>Hibernacja komputera za %1</translation>
    </message>
    <message>
        <source>The computer restarts in %1</source>
        <translation>Ponowne uruchomienie komputera za %1</translation>
    </message>
    <message>
        <source>The computer shuts down in %1</source>
        <translation>Wyłączenie komputera za %1</translation>
    </message>
    <message>
        <source>Your recording</source>
        <translation>Twoje nagranie</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>„%1”</translation>
    </message>
</context>
<context>
    <name>RecordingTexts</name>
    <message>
        <source>it started late</source>
        <translation>nagrywanie zaczęło się z opóźnieniem</translation>
    </message>
    <message>
        <source>an earlier part of it broke off</source>
        <translation>wcześniejsza część nagrania się urwała</translation>
    </message>
    <message>
        <source>the recorder broke down</source>
        <translation>rejestrator uległ awarii</translation>
    </message>
    <message>
        <source>the program ended unexpectedly</source>
        <translation>program nieoczekiwanie zakończył działanie</translation>
    </message>
    <message>
        <source>a task was due</source>
        <translation>nadeszła pora zadania</translation>
    </message>
    <message>
        <source>the computer was shut down</source>
        <translation>komputer został wyłączony</translation>
    </message>
    <message>
        <source>the computer was asleep</source>
        <translation>komputer był uśpiony</translation>
    </message>
    <message>
        <source>the program was not running</source>
        <translation>program nie był uruchomiony</translation>
    </message>
    <message>
        <source>the schedule was off</source>
        <translation>harmonogram był wyłączony</translation>
    </message>
    <message>
        <source>the clock was set</source>
        <translation>zegar został przestawiony</translation>
    </message>
    <message>
        <source>another recording was running</source>
        <translation>trwało inne nagranie</translation>
    </message>
    <message>
        <source>the screen was not connected</source>
        <translation>ekran nie był podłączony</translation>
    </message>
    <message>
        <source>you skipped it</source>
        <translation>zadanie zostało przez Ciebie pominięte</translation>
    </message>
    <message>
        <source>the recorder is not installed</source>
        <translation>rejestrator nie jest zainstalowany</translation>
    </message>
    <message>
        <source>the disk was nearly full</source>
        <translation>dysk był prawie pełny</translation>
    </message>
    <message>
        <source>the disk was full</source>
        <translation>dysk był pełny</translation>
    </message>
    <message>
        <source>the display was gone</source>
        <translation>ekran przestał być dostępny</translation>
    </message>
    <message>
        <source>the program was ended</source>
        <translation>program został zakończony</translation>
    </message>
    <message>
        <source>the file existed already</source>
        <translation>plik już istniał</translation>
    </message>
    <message>
        <source>the folder did not exist</source>
        <translation>folder nie istniał</translation>
    </message>
    <message>
        <source>the folder could not be written to</source>
        <translation>w folderze nie można było zapisywać</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>środowisko graficzne na to nie pozwoliło</translation>
    </message>
    <message>
        <source>no encoder works on this computer</source>
        <translation>żaden koder nie działa na tym komputerze</translation>
    </message>
    <message>
        <source>nothing was recorded</source>
        <translation>nic nie zostało nagrane</translation>
    </message>
    <message>
        <source>the conversion to MP4 failed</source>
        <translation>konwersja do MP4 się nie powiodła</translation>
    </message>
    <message>
        <source>the recorder reported an error</source>
        <translation>rejestrator zgłosił błąd</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Kompletne</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>Niekompletne</translation>
    </message>
    <message>
        <source>Stopped by you</source>
        <translation>Zatrzymane przez Ciebie</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Przegapione</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Nieudane</translation>
    </message>
    <message>
        <source>Recording now</source>
        <translation>Trwa nagrywanie</translation>
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
        <translation>Obszar ekranu</translation>
    </message>
    <message>
        <source>Draw the area with the mouse, or move it with the arrow keys and resize it with Shift and the arrow keys. Enter takes it, Escape cancels.</source>
        <translation>Narysuj obszar myszą albo przesuń go klawiszami strzałek i zmień jego rozmiar klawiszem Shift i strzałkami. Enter zatwierdza, Escape anuluje.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::CalendarLook</name>
    <message>
        <source>Today</source>
        <translation>Dzisiaj</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>Pokaż okno</translation>
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
        <translation>&amp;Folder na nagrania:</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>Folder na nagrania</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Przeglądaj…</translation>
    </message>
    <message>
        <source>Browse for the folder for recordings</source>
        <translation>Wskaż folder na nagrania</translation>
    </message>
    <message>
        <source>Enter the full path of a folder.</source>
        <translation>Podaj pełną ścieżkę folderu.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>To jest plik, a nie folder.</translation>
    </message>
    <message>
        <source>You are not allowed to write into this folder.</source>
        <translation>Nie masz uprawnień do zapisu w tym folderze.</translation>
    </message>
    <message>
        <source>The free space of this folder is unknown.</source>
        <translation>Nie można ustalić wolnego miejsca w tym folderze.</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>Wolne miejsce: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
    <message>
        <source>Choose where recordings are kept.</source>
        <translation>Wybierz miejsce przechowywania nagrań.</translation>
    </message>
    <message>
        <source>This folder cannot be created.</source>
        <translation>Nie można utworzyć tego folderu.</translation>
    </message>
    <message>
        <source>This folder does not exist yet. It will be created with the first recording.</source>
        <translation>Ten folder jeszcze nie istnieje. Zostanie utworzony przy pierwszym nagraniu.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::GeneralPage</name>
    <message>
        <source>In this run: %1 (chosen at the start)</source>
        <translation>W tym uruchomieniu: %1 (wybrano przy starcie)</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Język:</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <translation>Jak w systemie (%1)</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Motyw:</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Jak w systemie</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Jasny</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Ciemny</translation>
    </message>
    <message>
        <source>&amp;Ask all questions again</source>
        <translation>&amp;Zadawaj znów wszystkie pytania</translation>
    </message>
    <message>
        <source>Open settings &amp;folder</source>
        <translation>Otwórz &amp;folder ustawień</translation>
    </message>
    <message>
        <source>&amp;Open log</source>
        <translation>Otwórz &amp;dziennik</translation>
    </message>
    <message>
        <source>There is no log of this run.</source>
        <translation>Brak dziennika tego uruchomienia.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Nie można otworzyć: %1</translation>
    </message>
    <message>
        <source>Some questions are no longer asked.</source>
        <translation>Niektóre pytania nie są już zadawane zgodnie z Twoim wyborem.</translation>
    </message>
    <message>
        <source>Every question is asked, for example before a task is deleted.</source>
        <translation>Zadawane są wszystkie pytania, na przykład przed usunięciem zadania.</translation>
    </message>
    <message>
        <source>All questions will be asked again</source>
        <translation>Wszystkie pytania są znów zadawane</translation>
    </message>
    <message>
        <source>When something goes wrong, your settings and the log of this run help to find out why.</source>
        <translation>Gdy coś pójdzie nie tak, ustawienia i dziennik tego uruchomienia pomogą znaleźć przyczynę.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <source>Choose language and theme.</source>
        <translation>Wybierz język i wygląd aplikacji.</translation>
    </message>
    <message>
        <source>Start &amp;with the desktop</source>
        <translation>Uruchamiaj razem z &amp;pulpitem</translation>
    </message>
    <message>
        <source>&amp;Keep running when the window is closed</source>
        <translation>Działaj dalej po zamknięciu &amp;okna</translation>
    </message>
    <message>
        <source>While tasks are pending or a recording runs, the program stays in the tray. Where there is none, its window is minimized.</source>
        <translation>Gdy czekają zadania lub trwa nagrywanie, program pozostaje w zasobniku systemowym. Jeśli zasobnika nie ma, okno jest minimalizowane.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::MainWindow</name>
    <message>
        <source>Recording Scheduler</source>
        <translation>Harmonogram nagrywania</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Strony ustawień</translation>
    </message>
    <message>
        <source>Your changes are saved again.</source>
        <translation>Zmiany są znów zapisywane.</translation>
    </message>
    <message>
        <source>Your changes could not be saved. They will be lost if you close the window now.</source>
        <translation>Nie udało się zapisać zmian. Zostaną utracone, jeśli teraz zamkniesz okno.</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Zamknij mimo to</translation>
    </message>
    <message>
        <source>The recording that is running will be stopped.</source>
        <translation>Trwające nagrywanie zostanie zatrzymane.</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) are still to come. They will not be recorded when the program is not running.</source>
        <translation>
            <numerusform>%n zadanie jeszcze czeka. Nie zostanie nagrane, jeśli program nie będzie działać.</numerusform>
            <numerusform>%n zadania jeszcze czekają. Nie zostaną nagrane, jeśli program nie będzie działać.</numerusform>
            <numerusform>%n zadań jeszcze czeka. Nie zostaną nagrane, jeśli program nie będzie działać.</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Zamknij</translation>
    </message>
    <message>
        <source>Close notice</source>
        <translation>Zamknij powiadomienie</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAnnouncer</name>
    <message>
        <source>Task added: %1</source>
        <translation>Dodano zadanie: %1</translation>
    </message>
    <message>
        <source>All tasks deleted</source>
        <translation>Usunięto wszystkie zadania</translation>
    </message>
    <message>
        <source>Task deleted: %1</source>
        <translation>Usunięto zadanie: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAreaTip</name>
    <message>
        <source>No area has been selected yet: all of screen 1 (%1) is recorded. You can select an area on the page &quot;Recording&quot;.</source>
        <translation>Nie wybrano jeszcze obszaru: nagrywany jest cały ekran 1 (%1). Obszar możesz wybrać na stronie „Nagrywanie”.</translation>
    </message>
    <message>
        <source>Records %1, the area that is selected on the page &quot;Recording&quot;.</source>
        <translation>Nagrywa %1, obszar wybrany na stronie „Nagrywanie”.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelNameGuard</name>
    <message>
        <source>A name cannot contain line breaks or other control characters.</source>
        <translation>Nazwa nie może zawierać znaków końca wiersza ani innych znaków sterujących.</translation>
    </message>
    <message>
        <source>A name cannot contain: %1</source>
        <translation>Nazwa nie może zawierać: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelTaskDetails</name>
    <message>
        <source>This task is over.</source>
        <translation>To zadanie już minęło.</translation>
    </message>
    <message>
        <source>Afterwards: %1</source>
        <translation>Potem: %1</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>Koniec o %1</translation>
    </message>
    <message>
        <source>Ends on the next day at %1</source>
        <translation>Koniec następnego dnia o %1</translation>
    </message>
    <message>
        <source>Records screen %1, which is not connected</source>
        <translation>Nagrywa ekran %1, który nie jest podłączony</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Nagrywa: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PictureCard</name>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>Klatki na sekun&amp;dę:</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>&amp;Jakość:</translation>
    </message>
    <message>
        <source>Fil&amp;e format:</source>
        <translation>&amp;Format pliku:</translation>
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
        <translation>Nagrywaj wskaźnik &amp;myszy</translation>
    </message>
    <message>
        <source>Small: about %1 an hour</source>
        <translation>Niska: około %1 na godzinę</translation>
    </message>
    <message>
        <source>Normal: about %1 an hour</source>
        <translation>Normalna: około %1 na godzinę</translation>
    </message>
    <message>
        <source>High: about %1 an hour</source>
        <translation>Wysoka: około %1 na godzinę</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingControl</name>
    <message>
        <source>A task is about to start.</source>
        <translation>Zadanie zaraz się zacznie.</translation>
    </message>
    <message>
        <source>The desktop shows no notifications. The page &quot;Recordings&quot; tells what was recorded, and what was not.</source>
        <translation>Pulpit nie pokazuje powiadomień. Strona „Nagrania” pokazuje, co zostało nagrane, a co nie.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingFooter</name>
    <message>
        <source>Recording</source>
        <translation>Nagrywanie</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>Nagrano</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Koniec</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Rozmiar pliku</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Wolne miejsce</translation>
    </message>
    <message>
        <source>Dropped frames</source>
        <translation>Pominięte klatki</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Rozpocznij nagrywanie</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stop</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>Pom&amp;iń</translation>
    </message>
    <message>
        <source>Skip this task</source>
        <translation>Pomiń to zadanie</translation>
    </message>
    <message>
        <source>&amp;Keep recording</source>
        <translation>Nagrywaj dal&amp;ej</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>An&amp;uluj</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>&amp;Teraz</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>do %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 wolne</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) dropped</source>
        <translation>
            <numerusform>%n klatka pominięta</numerusform>
            <numerusform>%n klatki pominięte</numerusform>
            <numerusform>%n klatek pominiętych</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Wznów</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>P&amp;auza</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingPage</name>
    <message>
        <source>Recording</source>
        <translation>Nagrywanie</translation>
    </message>
    <message>
        <source>Choose what is recorded, and how.</source>
        <translation>Wybierz, co i jak ma być nagrywane.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsModel</name>
    <message>
        <source>the file is gone</source>
        <translation>pliku już nie ma</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsPage</name>
    <message>
        <source>Recordings</source>
        <translation>Nagrania</translation>
    </message>
    <message>
        <source>What was recorded, and what was not.</source>
        <translation>Co zostało nagrane, a co nie.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. Start a recording with the button below, or plan one on the page Schedule; it is listed here then.</source>
        <translation>Niczego jeszcze nie nagrano. Rozpocznij nagrywanie przyciskiem poniżej albo zaplanuj je na stronie „Harmonogram”; pojawi się wtedy tutaj.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Otwórz</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>Pokaż w &amp;folderze</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Napraw</translation>
    </message>
    <message>
        <source>Adds what a crash has kept from the end of the file, so that players can seek in it.</source>
        <translation>Dodaje to, czego z powodu awarii zabrakło na końcu pliku, aby odtwarzacze mogły go przewijać.</translation>
    </message>
    <message>
        <source>Move to &amp;trash</source>
        <translation>Przenieś do &amp;kosza</translation>
    </message>
    <message>
        <source>Remove from &amp;list</source>
        <translation>Usuń z &amp;listy</translation>
    </message>
    <message>
        <source>There is no file of this recording.</source>
        <translation>To nagranie nie ma pliku.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Nie można otworzyć: %1</translation>
    </message>
    <message>
        <source>Repairing: %1</source>
        <translation>Naprawianie: %1</translation>
    </message>
    <message>
        <source>Repaired: %1</source>
        <translation>Naprawiono: %1</translation>
    </message>
    <message>
        <source>%1 could not be repaired</source>
        <translation>Nie udało się naprawić: %1</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; will be moved to the trash. Are you sure?</source>
        <translation>Nagranie „%1” zostanie przeniesione do kosza. Czy na pewno chcesz kontynuować?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will be removed from the list. Are you sure?</source>
        <translation>„%1” zostanie usunięte z listy. Czy na pewno chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Move to trash</source>
        <translation>Przenieś do kosza</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Usuń</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash</source>
        <translation>Nie udało się przenieść do kosza: %1</translation>
    </message>
    <message>
        <source>Removed from the list: %1</source>
        <translation>Usunięto z listy: %1</translation>
    </message>
    <message>
        <source>Moved to the trash: %1</source>
        <translation>Przeniesiono do kosza: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Harmonogram</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Harmonogram nagrywania</translation>
    </message>
    <message>
        <source>Choose when a recording stops by itself, and which recordings start by themselves.</source>
        <translation>Wybierz, kiedy nagranie samo się kończy i które nagrania same się zaczynają.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::ScreenshotTour</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>nie można utworzyć folderu %1</translation>
    </message>
    <message>
        <source>cannot reach: %1</source>
        <translation>nie można dojść do: %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>nie można zapisać %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundCard</name>
    <message>
        <source>Record the sound of:</source>
        <translation>Nagrywaj dźwięk z:</translation>
    </message>
    <message>
        <source>Sound devices</source>
        <translation>Urządzenia dźwiękowe</translation>
    </message>
    <message>
        <source>All sound in one trac&amp;k</source>
        <translation>&amp;Cały dźwięk w jednej ścieżce</translation>
    </message>
    <message>
        <source>Otherwise each device has a track of its own, for editing. Most players play only the first.</source>
        <translation>W przeciwnym razie każde urządzenie ma własną ścieżkę, do montażu. Większość odtwarzaczy odtwarza tylko pierwszą.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceList</name>
    <message>
        <source>Looking for sound devices...</source>
        <translation>Szukanie urządzeń dźwiękowych…</translation>
    </message>
    <message>
        <source>The sound devices of this computer cannot be listed.</source>
        <translation>Nie można ustalić urządzeń dźwiękowych tego komputera.</translation>
    </message>
    <message>
        <source>There are no sound devices on this computer.</source>
        <translation>Na tym komputerze nie ma urządzeń dźwiękowych.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceRow</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (niepodłączone)</translation>
    </message>
    <message>
        <source>Level of %1</source>
        <translation>Poziom: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SourceCard</name>
    <message>
        <source>Record a s&amp;creen</source>
        <translation>Nagrywaj e&amp;kran</translation>
    </message>
    <message>
        <source>Screen that is recorded</source>
        <translation>Nagrywany ekran</translation>
    </message>
    <message>
        <source>Record the selected &amp;area</source>
        <translation>Nagrywaj wybrany o&amp;bszar</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>Od &amp;lewej:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>Od &amp;góry:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>S&amp;zerokość:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>W&amp;ysokość:</translation>
    </message>
    <message>
        <source>Left edge of the area in pixels</source>
        <translation>Lewa krawędź obszaru w pikselach</translation>
    </message>
    <message>
        <source>Top edge of the area in pixels</source>
        <translation>Górna krawędź obszaru w pikselach</translation>
    </message>
    <message>
        <source>Width of the area in pixels</source>
        <translation>Szerokość obszaru w pikselach</translation>
    </message>
    <message>
        <source>Height of the area in pixels</source>
        <translation>Wysokość obszaru w pikselach</translation>
    </message>
    <message>
        <source>Choose o&amp;n the screen...</source>
        <translation>Wskaż &amp;na ekranie…</translation>
    </message>
    <message>
        <source>Show &amp;outline</source>
        <translation>P&amp;okaż obrys</translation>
    </message>
    <message>
        <source>Screen %1, %2</source>
        <translation>Ekran %1, %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>Screen %1 (not connected)</source>
        <translation>Ekran %1 (niepodłączony)</translation>
    </message>
    <message>
        <source>No area has been selected yet: all of screen 1 is recorded instead, also by tasks with &quot;Selected area&quot;.</source>
        <translation>Nie wybrano jeszcze obszaru: zamiast niego nagrywany jest cały ekran 1, także w zadaniach z opcją „Wybrany obszar”.</translation>
    </message>
    <message>
        <source>Tasks with &quot;Selected area&quot; record this area, too.</source>
        <translation>Zadania z opcją „Wybrany obszar” też nagrywają ten obszar.</translation>
    </message>
    <message>
        <source>The screen that is to be recorded is not connected.</source>
        <translation>Ekran, który ma być nagrywany, nie jest podłączony.</translation>
    </message>
    <message>
        <source>The selected area is not on any screen.</source>
        <translation>Wybrany obszar nie leży na żadnym ekranie.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrayIcon</name>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Rozpocznij nagrywanie</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Stop</translation>
    </message>
    <message>
        <source>Show &amp;window</source>
        <translation>Pokaż &amp;okno</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Za&amp;kończ</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>Bez nagrywania</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Wstrzymano</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Nagrywanie</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>&amp;Wznów</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>&amp;Pauza</translation>
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
        <translation>Zobacz i posłuchaj, jak wypada nagranie z tymi ustawieniami.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Try fi&amp;ve seconds</source>
        <translation>Wy&amp;próbuj pięć sekund</translation>
    </message>
    <message>
        <source>Trial recording</source>
        <translation>Nagranie próbne</translation>
    </message>
    <message>
        <source>The trial recording was cancelled.</source>
        <translation>Nagranie próbne zostało anulowane.</translation>
    </message>
    <message>
        <source>The trial recording was made, but there is no program that opens it: %1</source>
        <translation>Nagranie próbne powstało, ale nie ma programu, który je otwiera: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened. The recorder says: %1</source>
        <translation>Nagranie próbne powstało i zostało otwarte. Komunikat rejestratora: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened.</source>
        <translation>Nagranie próbne powstało i zostało otwarte.</translation>
    </message>
    <message>
        <source>The recorder px-recorder cannot be started. Is it installed completely?</source>
        <translation>Nie można uruchomić rejestratora px-recorder. Czy jest w pełni zainstalowany?</translation>
    </message>
    <message>
        <source>Nothing could be recorded. The recorder says: %1</source>
        <translation>Nic nie udało się nagrać. Komunikat rejestratora: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::Inhibitors</name>
    <message>
        <source>The computer cannot be kept from going to sleep while it records.</source>
        <translation>Nie można zapobiec uśpieniu komputera podczas nagrywania.</translation>
    </message>
    <message>
        <source>The computer cannot be kept from being shut down before the file is closed.</source>
        <translation>Nie można zapobiec wyłączeniu komputera przed zamknięciem pliku.</translation>
    </message>
    <message>
        <source>The screen cannot be kept from going dark while it is recorded.</source>
        <translation>Nie można zapobiec wygaszeniu ekranu podczas jego nagrywania.</translation>
    </message>
    <message>
        <source>A recording is running.</source>
        <translation>Trwa nagrywanie.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecorderProcess</name>
    <message>
        <source>%1 is of another version</source>
        <translation>%1 jest w innej wersji</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>Nie można uruchomić %1: %2</translation>
    </message>
    <message>
        <source>The recorder crashed (signal %1).</source>
        <translation>Rejestrator uległ awarii (sygnał %1).</translation>
    </message>
    <message>
        <source>The recorder ended unexpectedly (exit status %1).</source>
        <translation>Rejestrator nieoczekiwanie zakończył działanie (kod wyjścia %1).</translation>
    </message>
    <message>
        <source>The recorder did not start in time.</source>
        <translation>Rejestrator nie uruchomił się na czas.</translation>
    </message>
    <message>
        <source>The recorder stopped responding.</source>
        <translation>Rejestrator przestał odpowiadać.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecordingsList</name>
    <message>
        <source>The list of recordings %1 cannot be read: %2</source>
        <translation>Nie można odczytać listy nagrań %1: %2</translation>
    </message>
    <message>
        <source>The list of recordings %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>Lista nagrań %1 jest uszkodzona i nie można jej zachować pod inną nazwą: %2</translation>
    </message>
    <message>
        <source>Some entries of the list of recordings could not be used. What the file held is kept in %1.</source>
        <translation>Nie można było użyć niektórych wpisów listy nagrań. Zawartość pliku zachowano w %1.</translation>
    </message>
    <message>
        <source>The list of recordings could not be understood, so it begins anew. What it held is kept in %1.</source>
        <translation>Nie udało się zinterpretować listy nagrań, dlatego zaczyna się ona od nowa. Jej zawartość zachowano w %1.</translation>
    </message>
    <message>
        <source>%1: the list of recordings is not saved in %2</source>
        <translation>%1: lista nagrań nie jest zapisana w %2</translation>
    </message>
</context>
</TS>
