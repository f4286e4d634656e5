<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
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
        <translation>Записывает область, выбранную в настройках, а если она не выбрана, весь первый экран.</translation>
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
</TS>
