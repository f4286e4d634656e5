<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
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
        <translation>Nagrywa obszar wybrany w ustawieniach, a jeśli żadnego nie wybrano, cały pierwszy ekran.</translation>
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
</TS>
