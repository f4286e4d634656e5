<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>cannot copy the settings file %1: %2</source>
        <translation>не удаётся скопировать файл настроек %1: %2</translation>
    </message>
</context>
<context>
    <name>CaptureControllerWrapper</name>
    <message>
        <source>Could not start recording because there is not enough disk space. Free more disk space and try again. Or set a different disk drive for storing output videos in %1File Preferences%2. </source>
        <translation>Не удалось начать запись: недостаточно места на диске. Освободите место и повторите попытку или выберите другой диск для записей в %1настройках файлов%2.</translation>
    </message>
    <message>
        <source>File Preferences</source>
        <translation>Настройки файлов</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Keep the settings in &lt;file&gt; instead of the platform&apos;s configuration folder.</source>
        <translation>Хранить настройки в &lt;file&gt;, а не в системной папке конфигурации.</translation>
    </message>
    <message>
        <source>Use &lt;language&gt; in this run, for example de or pt_BR.</source>
        <translation>Использовать язык &lt;language&gt; в этом запуске, например de или pt_BR.</translation>
    </message>
    <message>
        <source>Use the theme light or dark in this run.</source>
        <translation>Использовать тему light или dark в этом запуске.</translation>
    </message>
    <message>
        <source>Walk through the window on a copy of the settings (of a sample without --settings), write a picture of each state into &lt;folder&gt;, and end.</source>
        <translation>Пройти по окну на копии настроек (без --settings на образце), записать снимок каждого состояния в &lt;folder&gt; и завершить работу.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Показать эту справку.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Показать версию.</translation>
    </message>
    <message>
        <source>%1: %2 (try --help)</source>
        <translation>%1: %2 (см. --help)</translation>
    </message>
    <message>
        <source>option --%1 needs a value</source>
        <translation>для параметра --%1 нужно значение</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>неожиданный аргумент «%1»</translation>
    </message>
    <message>
        <source>unknown theme &apos;%1&apos;; the themes are light and dark</source>
        <translation>неизвестная тема «%1»; есть темы light и dark</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;; the languages are %2</source>
        <translation>неизвестный язык «%1»; есть языки %2</translation>
    </message>
    <message>
        <source>Choose how screen recordings are timed.</source>
        <translation>Выберите, когда начинается и заканчивается запись экрана.</translation>
    </message>
</context>
<context>
    <name>CreateRecordTaskWidget</name>
    <message>
        <source>New record:</source>
        <translation>Новая запись:</translation>
    </message>
    <message>
        <source>Action on finish:</source>
        <translation>По &amp;завершении:</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Создать</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Назад</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>&amp;Имя файла:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>&amp;Дата:</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>dd.MM.yyyy</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>&amp;Время:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Д&amp;лительность:</translation>
    </message>
    <message>
        <source>Capture:</source>
        <translation>Записывать:</translation>
    </message>
    <message>
        <source>Selected area</source>
        <translation>Выбранная область</translation>
    </message>
    <message>
        <source>Selected area tooltip</source>
        <translation>Записывает область, выбранную в настройках, а если она не выбрана, весь первый экран.
Эта версия пока не записывает.</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Весь экран</translation>
    </message>
    <message>
        <source>Need select task name</source>
        <translation>Введите имя задачи.</translation>
    </message>
    <message>
        <source>Task with this title already exist</source>
        <translation>Задача с таким именем уже существует.</translation>
    </message>
    <message>
        <source>Curent capture time intersect with other capture time in the list</source>
        <translation>Время этой записи пересекается со временем другой записи в списке.</translation>
    </message>
</context>
<context>
    <name>PowerAction</name>
    <message>
        <source>Do nothing</source>
        <translation>Ничего не делать</translation>
    </message>
    <message>
        <source>Quit the application</source>
        <translation>Закрыть приложение</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>Спящий режим</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>Гибернация</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Перезагрузить</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>Выключить</translation>
    </message>
</context>
<context>
    <name>RecordSchedulerWidget</name>
    <message>
        <source>All tasks will be permanently deleted from the recording schedule. Are you sure you want to continue?</source>
        <translation>Все задачи будут безвозвратно удалены из расписания записи. Вы действительно хотите продолжить?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Продолжить</translation>
    </message>
    <message>
        <source>The task hasn&apos;t been saved. Would you like to add this task to the recording schedule?</source>
        <translation>Задача не сохранена. Добавить её в расписание записи?</translation>
    </message>
    <message>
        <source>Don&apos;t Add</source>
        <translation>Не добавлять</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Добавить</translation>
    </message>
    <message>
        <source>Do not schedule capture</source>
        <translation>Не &amp;планировать запись</translation>
    </message>
    <message>
        <source>Stop capture after</source>
        <translation>Остановить запись &amp;через</translation>
    </message>
    <message>
        <source>Record on schedule</source>
        <translation>Записывать по &amp;расписанию</translation>
    </message>
    <message>
        <source>Add record event</source>
        <translation>Добавить запись</translation>
    </message>
    <message>
        <source>Capture duration in limited capture:</source>
        <translation>&amp;Длительность записи:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>When capture ends:</source>
        <translation>По &amp;окончании записи:</translation>
    </message>
</context>
<context>
    <name>ScheduleRecordTableWidget</name>
    <message>
        <source>Task </source>
        <translation>Задача </translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Имя файла</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Дата</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Время</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Длительность</translation>
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
        <translation>Удалить</translation>
    </message>
    <message>
        <source>The task will be permanently deleted from the recording schedule. Are you sure you want to delete the task?</source>
        <translation>Задача будет безвозвратно удалена из расписания записи. Вы действительно хотите её удалить?</translation>
    </message>
    <message>
        <source>Always delete</source>
        <translation>Всегда удалять</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The settings file %1 is not a file.</source>
        <translation>Файл настроек %1 не является файлом.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder is missing and cannot be created either.</source>
        <translation>Не удаётся создать файл настроек %1: его папка отсутствует, и создать её тоже не удаётся.</translation>
    </message>
    <message>
        <source>The settings file %1 is in use by another process.</source>
        <translation>Файл настроек %1 используется другим процессом.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder cannot be written to.</source>
        <translation>Не удаётся создать файл настроек %1: нет доступа на запись в его папку.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <translation>Не удаётся прочитать файл настроек %1: %2</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>Файл настроек %1 повреждён, и его не удаётся сохранить под другим именем: %2</translation>
    </message>
    <message>
        <source>The settings file could not be understood, so the defaults are in use. What it held is kept in %1.</source>
        <translation>Не удалось разобрать файл настроек, поэтому используются значения по умолчанию. Его содержимое сохранено в %1.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. Tasks left out: %2. What the file held is kept in %1.</source>
        <translation>Часть настроек не удалось использовать. Пропущено задач: %2. Содержимое файла сохранено в %1.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. What the file held is kept in %1.</source>
        <translation>Часть настроек не удалось использовать. Содержимое файла сохранено в %1.</translation>
    </message>
    <message>
        <source>Another program has changed the settings file. Its version is kept in %1; the settings shown here stay in use.</source>
        <translation>Другая программа изменила файл настроек. Её версия сохранена в %1; показанные здесь настройки продолжают действовать.</translation>
    </message>
    <message>
        <source>Only a part of the file could be read</source>
        <translation>Удалось прочитать только часть файла</translation>
    </message>
    <message>
        <source>%2: your changes are not saved in %1</source>
        <translation>%2: изменения не сохранены в %1</translation>
    </message>
    <message>
        <source>The file is in use by another process</source>
        <translation>Файл используется другим процессом</translation>
    </message>
    <message>
        <source>The folder cannot be written to</source>
        <translation>В папку нельзя записывать</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::CalendarLook</name>
    <message>
        <source>Today</source>
        <translation>Сегодня</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::FilesPage</name>
    <message>
        <source>&amp;Folder for recordings:</source>
        <translation>&amp;Папка для записей:</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>Папка для записей</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Обзор…</translation>
    </message>
    <message>
        <source>Browse for the folder for recordings</source>
        <translation>Выбрать папку для записей</translation>
    </message>
    <message>
        <source>Enter the full path of a folder.</source>
        <translation>Введите полный путь к папке.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Это файл, а не папка.</translation>
    </message>
    <message>
        <source>You are not allowed to write into this folder.</source>
        <translation>У вас нет прав на запись в эту папку.</translation>
    </message>
    <message>
        <source>The free space of this folder is unknown.</source>
        <translation>Не удаётся определить свободное место для этой папки.</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>Свободно: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Файлы</translation>
    </message>
    <message>
        <source>Choose where recordings are kept.</source>
        <translation>Выберите, где хранятся записи.</translation>
    </message>
    <message>
        <source>This folder cannot be created.</source>
        <translation>Эту папку невозможно создать.</translation>
    </message>
    <message>
        <source>This folder does not exist yet. It will be created with the first recording.</source>
        <translation>Этой папки ещё нет. Она будет создана при первой записи.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::GeneralPage</name>
    <message>
        <source>In this run: %1 (chosen at the start)</source>
        <translation>В этом запуске: %1 (выбрано при запуске)</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Язык:</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <translation>Как в системе (%1)</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Тема:</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Как в системе</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Светлая</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Тёмная</translation>
    </message>
    <message>
        <source>&amp;Ask all questions again</source>
        <translation>&amp;Снова задавать все вопросы</translation>
    </message>
    <message>
        <source>Open settings &amp;folder</source>
        <translation>Открыть &amp;папку настроек</translation>
    </message>
    <message>
        <source>&amp;Open log</source>
        <translation>Открыть &amp;журнал</translation>
    </message>
    <message>
        <source>There is no log of this run.</source>
        <translation>Журнала этого запуска нет.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Не удаётся открыть: %1</translation>
    </message>
    <message>
        <source>Some questions are no longer asked.</source>
        <translation>Некоторые вопросы больше не задаются: так вы выбрали.</translation>
    </message>
    <message>
        <source>Every question is asked, for example before a task is deleted.</source>
        <translation>Задаются все вопросы, например перед удалением задачи.</translation>
    </message>
    <message>
        <source>All questions will be asked again</source>
        <translation>Все вопросы снова задаются</translation>
    </message>
    <message>
        <source>When something goes wrong, your settings and the log of this run help to find out why.</source>
        <translation>Если что-то пошло не так, настройки и журнал этого запуска помогут найти причину.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Общие</translation>
    </message>
    <message>
        <source>Choose language and theme.</source>
        <translation>Выберите язык и вид приложения.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::MainWindow</name>
    <message>
        <source>Recording Scheduler</source>
        <translation>Планировщик записи</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Страницы настроек</translation>
    </message>
    <message>
        <source>Your changes are saved again.</source>
        <translation>Изменения снова сохраняются.</translation>
    </message>
    <message>
        <source>Your changes could not be saved. They will be lost if you close the window now.</source>
        <translation>Не удалось сохранить изменения. Если закрыть окно сейчас, они будут потеряны.</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Всё равно закрыть</translation>
    </message>
    <message>
        <source>Ready to record</source>
        <translation>Готово к записи</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Начать запись</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Закрыть</translation>
    </message>
    <message>
        <source>Close notice</source>
        <translation>Закрыть уведомление</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAnnouncer</name>
    <message>
        <source>Task added: %1</source>
        <translation>Задача добавлена: %1</translation>
    </message>
    <message>
        <source>All tasks deleted</source>
        <translation>Все задачи удалены</translation>
    </message>
    <message>
        <source>Task deleted: %1</source>
        <translation>Задача удалена: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelNameGuard</name>
    <message>
        <source>A name cannot contain line breaks or other control characters.</source>
        <translation>Имя не может содержать переносы строк и другие управляющие символы.</translation>
    </message>
    <message>
        <source>A name cannot contain: %1</source>
        <translation>Имя не может содержать: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelTaskDetails</name>
    <message>
        <source>This task is over.</source>
        <translation>Время этой задачи прошло.</translation>
    </message>
    <message>
        <source>Afterwards: %1</source>
        <translation>Затем: %1</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>Окончание в %1</translation>
    </message>
    <message>
        <source>Ends on the next day at %1</source>
        <translation>Окончание на следующий день в %1</translation>
    </message>
    <message>
        <source>Records screen %1, which is not connected</source>
        <translation>Записывает экран %1, который не подключён</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Записывает: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Расписание</translation>
    </message>
    <message>
        <source>Choose when a recording stops or starts by itself. Your choice is kept; this version does not record yet.</source>
        <translation>Выберите, когда запись останавливается или начинается автоматически. Выбор сохраняется; эта версия пока не записывает.</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Расписание записи</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::ScreenshotTour</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>не удаётся создать папку %1</translation>
    </message>
    <message>
        <source>cannot reach: %1</source>
        <translation>не удаётся достичь: %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>не удаётся записать %1</translation>
    </message>
</context>
</TS>
