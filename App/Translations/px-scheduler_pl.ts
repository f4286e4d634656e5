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
</context>
<context>
    <name>CaptureControllerWrapper</name>
    <message>
        <source>Could not start recording because there is not enough disk space. Free more disk space and try again. Or set a different disk drive for storing output videos in %1File Preferences%2. </source>
        <translation>Nie można rozpocząć nagrywania, ponieważ na dysku jest za mało miejsca. Zwolnij miejsce i spróbuj ponownie albo wybierz inny dysk na nagrania w %1ustawieniach plików%2.</translation>
    </message>
    <message>
        <source>File Preferences</source>
        <translation>Ustawienia plików</translation>
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
</context>
<context>
    <name>CreateRecordTaskWidget</name>
    <message>
        <source>New record:</source>
        <translation>Nowe nagranie:</translation>
    </message>
    <message>
        <source>Action on finish:</source>
        <translation>&amp;Po zakończeniu:</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Utwórz</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>&amp;Nazwa pliku:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>&amp;Data:</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>dd.MM.yyyy</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>&amp;Godzina:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>&amp;Czas trwania:</translation>
    </message>
    <message>
        <source>Capture:</source>
        <translation>Nagrywaj:</translation>
    </message>
    <message>
        <source>Selected area</source>
        <translation>Wybrany obszar</translation>
    </message>
    <message>
        <source>Selected area tooltip</source>
        <translation>Nagrywa obszar wybrany w ustawieniach, a jeśli żadnego nie wybrano, cały pierwszy ekran.
Ta wersja jeszcze nie nagrywa.</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Cały ekran</translation>
    </message>
    <message>
        <source>Need select task name</source>
        <translation>Podaj nazwę zadania.</translation>
    </message>
    <message>
        <source>Task with this title already exist</source>
        <translation>Zadanie o tej nazwie już istnieje.</translation>
    </message>
    <message>
        <source>Curent capture time intersect with other capture time in the list</source>
        <translation>Czas tego nagrania pokrywa się z czasem innego nagrania na liście.</translation>
    </message>
</context>
<context>
    <name>PowerAction</name>
    <message>
        <source>Do nothing</source>
        <translation>Nic nie rób</translation>
    </message>
    <message>
        <source>Quit the application</source>
        <translation>Zamknij aplikację</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>Uśpij</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>Hibernuj</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Uruchom ponownie</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>Wyłącz komputer</translation>
    </message>
</context>
<context>
    <name>RecordSchedulerWidget</name>
    <message>
        <source>All tasks will be permanently deleted from the recording schedule. Are you sure you want to continue?</source>
        <translation>Wszystkie zadania zostaną trwale usunięte z harmonogramu nagrywania. Czy na pewno chcesz kontynuować?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
    <message>
        <source>The task hasn&apos;t been saved. Would you like to add this task to the recording schedule?</source>
        <translation>Zadanie nie zostało zapisane. Czy dodać je do harmonogramu nagrywania?</translation>
    </message>
    <message>
        <source>Don&apos;t Add</source>
        <translation>Nie dodawaj</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Dodaj</translation>
    </message>
    <message>
        <source>Do not schedule capture</source>
        <translation>Nie p&amp;lanuj nagrywania</translation>
    </message>
    <message>
        <source>Stop capture after</source>
        <translation>&amp;Zatrzymaj nagrywanie po</translation>
    </message>
    <message>
        <source>Record on schedule</source>
        <translation>Nagrywaj według &amp;harmonogramu</translation>
    </message>
    <message>
        <source>Add record event</source>
        <translation>Dodaj nagranie</translation>
    </message>
    <message>
        <source>Capture duration in limited capture:</source>
        <translation>&amp;Czas nagrywania:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>When capture ends:</source>
        <translation>&amp;Po zakończeniu nagrywania:</translation>
    </message>
</context>
<context>
    <name>ScheduleRecordTableWidget</name>
    <message>
        <source>Task </source>
        <translation>Zadanie </translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Nazwa pliku</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Godzina</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Czas trwania</translation>
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
        <translation>Usuń</translation>
    </message>
    <message>
        <source>The task will be permanently deleted from the recording schedule. Are you sure you want to delete the task?</source>
        <translation>Zadanie zostanie trwale usunięte z harmonogramu nagrywania. Czy na pewno chcesz je usunąć?</translation>
    </message>
    <message>
        <source>Always delete</source>
        <translation>Zawsze usuwaj</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The settings file %1 is not a file.</source>
        <translation>Plik ustawień %1 nie jest plikiem.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder is missing and cannot be created either.</source>
        <translation>Nie można utworzyć pliku ustawień %1: jego folder nie istnieje i również nie można go utworzyć.</translation>
    </message>
    <message>
        <source>The settings file %1 is in use by another process.</source>
        <translation>Plik ustawień %1 jest używany przez inny proces.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder cannot be written to.</source>
        <translation>Nie można utworzyć pliku ustawień %1: w jego folderze nie można zapisywać.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <translation>Nie można odczytać pliku ustawień %1: %2</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>Plik ustawień %1 jest uszkodzony i nie można go zachować pod inną nazwą: %2</translation>
    </message>
    <message>
        <source>The settings file could not be understood, so the defaults are in use. What it held is kept in %1.</source>
        <translation>Nie udało się zinterpretować pliku ustawień, dlatego używane są wartości domyślne. Jego zawartość zachowano w %1.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. Tasks left out: %2. What the file held is kept in %1.</source>
        <translation>Nie można było użyć części ustawień. Pominięte zadania: %2. Zawartość pliku zachowano w %1.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. What the file held is kept in %1.</source>
        <translation>Nie można było użyć części ustawień. Zawartość pliku zachowano w %1.</translation>
    </message>
    <message>
        <source>Another program has changed the settings file. Its version is kept in %1; the settings shown here stay in use.</source>
        <translation>Inny program zmienił plik ustawień. Jego wersję zachowano w %1; ustawienia widoczne tutaj nadal obowiązują.</translation>
    </message>
    <message>
        <source>Only a part of the file could be read</source>
        <translation>Udało się odczytać tylko część pliku</translation>
    </message>
    <message>
        <source>%2: your changes are not saved in %1</source>
        <translation>%2: zmiany nie są zapisane w %1</translation>
    </message>
    <message>
        <source>The file is in use by another process</source>
        <translation>Plik jest używany przez inny proces</translation>
    </message>
    <message>
        <source>The folder cannot be written to</source>
        <translation>Nie można zapisywać w folderze</translation>
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
        <source>Ready to record</source>
        <translation>Gotowe do nagrywania</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Rozpocznij nagrywanie</translation>
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
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Harmonogram</translation>
    </message>
    <message>
        <source>Choose when a recording stops or starts by itself. Your choice is kept; this version does not record yet.</source>
        <translation>Wybierz, kiedy nagrywanie ma się samo kończyć lub zaczynać. Wybór jest zachowywany; ta wersja jeszcze nie nagrywa.</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Harmonogram nagrywania</translation>
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
</TS>
