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
    <message>
        <source>the program does not run on these settings</source>
        <translation>программа с этими настройками не запущена</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Cannot delete %1</source>
        <translation>Не удаётся удалить: %1</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>Не удаётся записать: %1</translation>
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
    <message>
        <source>Start recording, in the program that runs already if there is one.</source>
        <translation>Начать запись; если программа уже работает, то в ней.</translation>
    </message>
    <message>
        <source>Stop the recording of the program that runs already.</source>
        <translation>Остановить запись в уже работающей программе.</translation>
    </message>
    <message>
        <source>Pause the recording of the program that runs already, or go on with it.</source>
        <translation>Приостановить запись в уже работающей программе или возобновить её.</translation>
    </message>
    <message>
        <source>End the program that runs already, without a question.</source>
        <translation>Завершить уже работающую программу без вопросов.</translation>
    </message>
    <message>
        <source>Start without a window.</source>
        <translation>Запустить без окна.</translation>
    </message>
    <message>
        <source>options --%1 and --%2 cannot be used together</source>
        <translation>параметры --%1 и --%2 нельзя использовать вместе</translation>
    </message>
</context>
<context>
    <name>DurationText</name>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 мин</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 ч %2 мин</translation>
    </message>
</context>
<context>
    <name>FooterState</name>
    <message>
        <source>Next: %1, as soon as possible</source>
        <translation>Далее: %1, как можно скорее</translation>
    </message>
    <message>
        <source>Next: %1 on %2</source>
        <translation>Далее: %1, %2</translation>
    </message>
    <message>
        <source>Next: %1 in %2</source>
        <translation>Далее: %1 через %2</translation>
    </message>
    <message>
        <source>The recording starts</source>
        <translation>Запись начинается</translation>
    </message>
    <message>
        <source>%1 is about to start</source>
        <translation>%1 вот-вот начнётся</translation>
    </message>
    <message>
        <source>%1 starts in %2</source>
        <translation>%1 начнётся через %2</translation>
    </message>
    <message>
        <source>%1 starts when this recording has ended</source>
        <translation>%1 начнётся после этой записи</translation>
    </message>
    <message>
        <source>This recording will end for %1</source>
        <translation>Эта запись закончится, затем начнётся %1</translation>
    </message>
    <message>
        <source>Ends in %1 for %2</source>
        <translation>Конец через %1, затем %2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Пауза: %1</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Запись: %1</translation>
    </message>
    <message>
        <source>%1 is being saved</source>
        <translation>Сохраняется %1</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>%1 has been recorded</source>
        <translation>Записано: %1</translation>
    </message>
    <message>
        <source>%1 has been stopped</source>
        <translation>Остановлено: %1</translation>
    </message>
    <message>
        <source>%1 has been recorded in part</source>
        <translation>Записано частично: %1</translation>
    </message>
    <message>
        <source>%1 has not been recorded</source>
        <translation>Не записано: %1</translation>
    </message>
    <message>
        <source>%1 could not be recorded</source>
        <translation>Не удалось записать: %1</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>Причина: %1.</translation>
    </message>
    <message>
        <source>The file is %1.</source>
        <translation>Файл: %1.</translation>
    </message>
    <message>
        <source>The rest is recorded into a new file.</source>
        <translation>Остальное записывается в новый файл.</translation>
    </message>
    <message>
        <source>The computer cannot go to sleep</source>
        <translation>Не удаётся перевести компьютер в спящий режим</translation>
    </message>
    <message>
        <source>The computer cannot hibernate</source>
        <translation>Не удаётся перевести компьютер в режим гибернации</translation>
    </message>
    <message>
        <source>The computer cannot be restarted</source>
        <translation>Не удаётся перезагрузить компьютер</translation>
    </message>
    <message>
        <source>The computer cannot be shut down</source>
        <translation>Не удаётся выключить компьютер</translation>
    </message>
    <message>
        <source>The computer does not go to sleep</source>
        <translation>Компьютер не перейдёт в спящий режим</translation>
    </message>
    <message>
        <source>The computer does not hibernate</source>
        <translation>Компьютер не перейдёт в режим гибернации</translation>
    </message>
    <message>
        <source>The computer is not restarted</source>
        <translation>Компьютер не будет перезагружен</translation>
    </message>
    <message>
        <source>The computer is not shut down</source>
        <translation>Компьютер не будет выключен</translation>
    </message>
    <message>
        <source>%1 starts at %2.</source>
        <translation>%1 начнётся в %2.</translation>
    </message>
    <message>
        <source>%1 is about to be recorded</source>
        <translation>Скоро начнётся запись: %1</translation>
    </message>
    <message>
        <source>The recording starts at %1.</source>
        <translation>Запись начнётся в %1.</translation>
    </message>
    <message>
        <source>%1 is being recorded</source>
        <translation>Идёт запись: %1</translation>
    </message>
    <message>
        <source>Your recording ends in a moment</source>
        <translation>Ваша запись сейчас закончится</translation>
    </message>
    <message>
        <source>%1 waits for its screen</source>
        <translation>%1 ожидает свой экран</translation>
    </message>
    <message>
        <source>It is recorded as soon as the screen is connected.</source>
        <translation>Запись начнётся, как только экран будет подключён.</translation>
    </message>
    <message>
        <source>%1 does not start</source>
        <translation>Не начинается: %1</translation>
    </message>
    <message>
        <source>The disk is full: %1 are free.</source>
        <translation>Диск заполнен, свободно %1.</translation>
    </message>
    <message>
        <source>The recording is finished.</source>
        <translation>Запись завершена.</translation>
    </message>
    <message>
        <source>There is a problem with %1</source>
        <translation>%1: возникла проблема</translation>
    </message>
    <message>
        <source>your recording</source>
        <translation>Ваша запись</translation>
    </message>
    <message>
        <source>The disk may be too small for the scheduled tasks</source>
        <translation>На диске может не хватить места для запланированных задач</translation>
    </message>
    <message>
        <source>They are likely to need %1, and %2 can be used.</source>
        <translation>Им, вероятно, понадобится %1, а доступно %2.</translation>
    </message>
    <message>
        <source>The program runs on</source>
        <translation>Программа продолжает работать</translation>
    </message>
    <message>
        <source>Its icon shows the window again. You can change this on the page &quot;General&quot;.</source>
        <translation>Её значок снова покажет окно. Это можно изменить на странице «Общие».</translation>
    </message>
    <message>
        <source>Not everything works on this desktop</source>
        <translation>В этой рабочей среде работает не всё</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Пропустить</translation>
    </message>
    <message>
        <source>Keep recording</source>
        <translation>Не прерывать</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Показать в папке</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Сейчас</translation>
    </message>
    <message>
        <source>The computer goes to sleep in %1</source>
        <translation>Спящий режим через %1</translation>
    </message>
    <message>
        <source>The computer hibernates in %1</source>
        <translation>Гибернация через %1</translation>
    </message>
    <message>
        <source>The computer restarts in %1</source>
        <translation>Перезагрузка компьютера через %1</translation>
    </message>
    <message>
        <source>The computer shuts down in %1</source>
        <translation>Выключение компьютера через %1</translation>
    </message>
    <message>
        <source>Your recording</source>
        <translation>ваша запись</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>«%1»</translation>
    </message>
</context>
<context>
    <name>RecordingTexts</name>
    <message>
        <source>it started late</source>
        <translation>запись началась с опозданием</translation>
    </message>
    <message>
        <source>an earlier part of it broke off</source>
        <translation>предыдущая часть записи оборвалась</translation>
    </message>
    <message>
        <source>the recorder broke down</source>
        <translation>в программе записи произошёл сбой</translation>
    </message>
    <message>
        <source>the program ended unexpectedly</source>
        <translation>программа неожиданно завершилась</translation>
    </message>
    <message>
        <source>a task was due</source>
        <translation>наступило время задачи</translation>
    </message>
    <message>
        <source>the computer was shut down</source>
        <translation>компьютер был выключен</translation>
    </message>
    <message>
        <source>the computer was asleep</source>
        <translation>компьютер был в спящем режиме</translation>
    </message>
    <message>
        <source>the program was not running</source>
        <translation>программа не была запущена</translation>
    </message>
    <message>
        <source>the schedule was off</source>
        <translation>расписание было отключено</translation>
    </message>
    <message>
        <source>the clock was set</source>
        <translation>часы были переведены</translation>
    </message>
    <message>
        <source>another recording was running</source>
        <translation>шла другая запись</translation>
    </message>
    <message>
        <source>the screen was not connected</source>
        <translation>экран не был подключён</translation>
    </message>
    <message>
        <source>you skipped it</source>
        <translation>вы её пропустили</translation>
    </message>
    <message>
        <source>the recorder is not installed</source>
        <translation>программа записи не установлена</translation>
    </message>
    <message>
        <source>the disk was nearly full</source>
        <translation>диск был почти заполнен</translation>
    </message>
    <message>
        <source>the disk was full</source>
        <translation>диск был заполнен</translation>
    </message>
    <message>
        <source>the display was gone</source>
        <translation>экран стал недоступен</translation>
    </message>
    <message>
        <source>the program was ended</source>
        <translation>работа программы была завершена</translation>
    </message>
    <message>
        <source>the file existed already</source>
        <translation>файл уже существовал</translation>
    </message>
    <message>
        <source>the folder did not exist</source>
        <translation>папка не существовала</translation>
    </message>
    <message>
        <source>the folder could not be written to</source>
        <translation>в папку нельзя было записывать</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>рабочая среда этого не разрешила</translation>
    </message>
    <message>
        <source>no encoder works on this computer</source>
        <translation>на этом компьютере не работает ни один кодировщик</translation>
    </message>
    <message>
        <source>nothing was recorded</source>
        <translation>ничего не было записано</translation>
    </message>
    <message>
        <source>the conversion to MP4 failed</source>
        <translation>не удалось преобразовать в MP4</translation>
    </message>
    <message>
        <source>the recorder reported an error</source>
        <translation>программа записи сообщила об ошибке</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Полностью</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>Не полностью</translation>
    </message>
    <message>
        <source>Stopped by you</source>
        <translation>Остановлено вами</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Пропущено</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Не удалось</translation>
    </message>
    <message>
        <source>Recording now</source>
        <translation>Идёт запись</translation>
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
        <translation>Область экрана</translation>
    </message>
    <message>
        <source>Draw the area with the mouse, or move it with the arrow keys and resize it with Shift and the arrow keys. Enter takes it, Escape cancels.</source>
        <translation>Нарисуйте область мышью либо двигайте её клавишами со стрелками и меняйте её размер клавишей Shift и стрелками. Enter подтверждает, Escape отменяет.</translation>
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
    <name>Zentor::Desktop::DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>Показать окно</translation>
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
        <translation>Снова &amp;задавать все вопросы</translation>
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
    <message>
        <source>Start &amp;with the desktop</source>
        <translation>Запускать &amp;вместе с рабочим столом</translation>
    </message>
    <message>
        <source>&amp;Keep running when the window is closed</source>
        <translation>&amp;Работать и после закрытия окна</translation>
    </message>
    <message>
        <source>While tasks are pending or a recording runs, the program stays in the tray. Where there is none, its window is minimized.</source>
        <translation>Пока есть предстоящие задачи или идёт запись, программа остаётся в области уведомлений. Если такой области нет, окно сворачивается.</translation>
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
        <source>The recording that is running will be stopped.</source>
        <translation>Идущая запись будет остановлена.</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) are still to come. They will not be recorded when the program is not running.</source>
        <translation>
            <numerusform>Впереди ещё %n задача. Если программа не запущена, запись не начнётся.</numerusform>
            <numerusform>Впереди ещё %n задачи. Если программа не запущена, запись не начнётся.</numerusform>
            <numerusform>Впереди ещё %n задач. Если программа не запущена, запись не начнётся.</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Выйти</translation>
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
    <name>Zentor::Desktop::PanelAreaTip</name>
    <message>
        <source>No area has been selected yet: all of screen 1 (%1) is recorded. You can select an area on the page &quot;Recording&quot;.</source>
        <translation>Область ещё не выбрана: записывается весь экран 1 (%1). Область можно выбрать на странице «Запись».</translation>
    </message>
    <message>
        <source>Records %1, the area that is selected on the page &quot;Recording&quot;.</source>
        <translation>Записывает %1 — область, выбранную на странице «Запись».</translation>
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
    <name>Zentor::Desktop::PictureCard</name>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>Ка&amp;дров в секунду:</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>Ка&amp;чество:</translation>
    </message>
    <message>
        <source>Fil&amp;e format:</source>
        <translation>&amp;Формат файла:</translation>
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
        <translation>Записывать указа&amp;тель мыши</translation>
    </message>
    <message>
        <source>Small: about %1 an hour</source>
        <translation>Низкое: около %1 в час</translation>
    </message>
    <message>
        <source>Normal: about %1 an hour</source>
        <translation>Обычное: около %1 в час</translation>
    </message>
    <message>
        <source>High: about %1 an hour</source>
        <translation>Высокое: около %1 в час</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingControl</name>
    <message>
        <source>A task is about to start.</source>
        <translation>Задача вот-вот начнётся.</translation>
    </message>
    <message>
        <source>The desktop shows no notifications. The page &quot;Recordings&quot; tells what was recorded, and what was not.</source>
        <translation>Рабочий стол не показывает уведомлений. На странице «Записи» видно, что было записано, а что нет.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingFooter</name>
    <message>
        <source>Recording</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>Записано</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Окончание</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Размер файла</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Свободно</translation>
    </message>
    <message>
        <source>Dropped frames</source>
        <translation>Пропущенные кадры</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Начать запись</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Стоп</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>Проп&amp;устить</translation>
    </message>
    <message>
        <source>Skip this task</source>
        <translation>Пропустить эту задачу</translation>
    </message>
    <message>
        <source>&amp;Keep recording</source>
        <translation>Н&amp;е прерывать</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>От&amp;мена</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>Се&amp;йчас</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>до %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>свободно %1</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) dropped</source>
        <translation>
            <numerusform>%n кадр пропущен</numerusform>
            <numerusform>%n кадра пропущено</numerusform>
            <numerusform>%n кадров пропущено</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>Возо&amp;бновить</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>П&amp;ауза</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingPage</name>
    <message>
        <source>Recording</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>Choose what is recorded, and how.</source>
        <translation>Выберите, что и как записывается.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsModel</name>
    <message>
        <source>the file is gone</source>
        <translation>файла больше нет</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsPage</name>
    <message>
        <source>Recordings</source>
        <translation>Записи</translation>
    </message>
    <message>
        <source>What was recorded, and what was not.</source>
        <translation>Что было записано, а что нет.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. Start a recording with the button below, or plan one on the page Schedule; it is listed here then.</source>
        <translation>Пока ничего не записано. Начните запись кнопкой внизу или запланируйте её на странице «Расписание», и она появится здесь.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Открыть</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>В &amp;папке</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Исправить</translation>
    </message>
    <message>
        <source>Adds what a crash has kept from the end of the file, so that players can seek in it.</source>
        <translation>Добавляет в конец файла то, чего он лишился из-за сбоя, чтобы проигрыватели могли его перематывать.</translation>
    </message>
    <message>
        <source>Move to &amp;trash</source>
        <translation>В &amp;корзину</translation>
    </message>
    <message>
        <source>Remove from &amp;list</source>
        <translation>Убрать и&amp;з списка</translation>
    </message>
    <message>
        <source>There is no file of this recording.</source>
        <translation>У этой записи нет файла.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Не удаётся открыть: %1</translation>
    </message>
    <message>
        <source>Repairing: %1</source>
        <translation>Исправляется: %1</translation>
    </message>
    <message>
        <source>Repaired: %1</source>
        <translation>Исправлено: %1</translation>
    </message>
    <message>
        <source>%1 could not be repaired</source>
        <translation>Не удалось исправить: %1</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; will be moved to the trash. Are you sure?</source>
        <translation>Запись «%1» будет перемещена в корзину. Вы действительно хотите продолжить?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will be removed from the list. Are you sure?</source>
        <translation>Запись «%1» будет убрана из списка. Вы действительно хотите продолжить?</translation>
    </message>
    <message>
        <source>Move to trash</source>
        <translation>Удалить в корзину</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Убрать</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash</source>
        <translation>Не удалось переместить в корзину: %1</translation>
    </message>
    <message>
        <source>Removed from the list: %1</source>
        <translation>Убрано из списка: %1</translation>
    </message>
    <message>
        <source>Moved to the trash: %1</source>
        <translation>Перемещено в корзину: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Расписание</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Расписание записи</translation>
    </message>
    <message>
        <source>Choose when a recording stops by itself, and which recordings start by themselves.</source>
        <translation>Выберите, когда запись заканчивается сама и какие записи начинаются сами.</translation>
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
<context>
    <name>Zentor::Desktop::SoundCard</name>
    <message>
        <source>Record the sound of:</source>
        <translation>Записывать звук с устройств:</translation>
    </message>
    <message>
        <source>Sound devices</source>
        <translation>Звуковые устройства</translation>
    </message>
    <message>
        <source>All sound in one trac&amp;k</source>
        <translation>Весь &amp;звук на одной дорожке</translation>
    </message>
    <message>
        <source>Otherwise each device has a track of its own, for editing. Most players play only the first.</source>
        <translation>Иначе у каждого устройства своя дорожка, для монтажа. Большинство проигрывателей воспроизводят только первую.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceList</name>
    <message>
        <source>Looking for sound devices...</source>
        <translation>Поиск звуковых устройств…</translation>
    </message>
    <message>
        <source>The sound devices of this computer cannot be listed.</source>
        <translation>Не удаётся получить список звуковых устройств этого компьютера.</translation>
    </message>
    <message>
        <source>There are no sound devices on this computer.</source>
        <translation>На этом компьютере нет звуковых устройств.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceRow</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (не подключено)</translation>
    </message>
    <message>
        <source>Level of %1</source>
        <translation>Уровень: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SourceCard</name>
    <message>
        <source>Record a s&amp;creen</source>
        <translation>Записывать &amp;экран</translation>
    </message>
    <message>
        <source>Screen that is recorded</source>
        <translation>Записываемый экран</translation>
    </message>
    <message>
        <source>Record the selected &amp;area</source>
        <translation>Записывать выбранную &amp;область</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>С&amp;лева:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>Свер&amp;ху:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Ширина:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Высота:</translation>
    </message>
    <message>
        <source>Left edge of the area in pixels</source>
        <translation>Левый край области в пикселях</translation>
    </message>
    <message>
        <source>Top edge of the area in pixels</source>
        <translation>Верхний край области в пикселях</translation>
    </message>
    <message>
        <source>Width of the area in pixels</source>
        <translation>Ширина области в пикселях</translation>
    </message>
    <message>
        <source>Height of the area in pixels</source>
        <translation>Высота области в пикселях</translation>
    </message>
    <message>
        <source>Choose o&amp;n the screen...</source>
        <translation>У&amp;казать на экране…</translation>
    </message>
    <message>
        <source>Show &amp;outline</source>
        <translation>Показать &amp;рамку</translation>
    </message>
    <message>
        <source>Screen %1, %2</source>
        <translation>Экран %1, %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>Screen %1 (not connected)</source>
        <translation>Экран %1 (не подключён)</translation>
    </message>
    <message>
        <source>No area has been selected yet: all of screen 1 is recorded instead, also by tasks with &quot;Selected area&quot;.</source>
        <translation>Область ещё не выбрана: вместо неё записывается весь экран 1, в том числе задачами с вариантом «Выбранная область».</translation>
    </message>
    <message>
        <source>Tasks with &quot;Selected area&quot; record this area, too.</source>
        <translation>Задачи с вариантом «Выбранная область» тоже записывают эту область.</translation>
    </message>
    <message>
        <source>The screen that is to be recorded is not connected.</source>
        <translation>Экран, который нужно записывать, не подключён.</translation>
    </message>
    <message>
        <source>The selected area is not on any screen.</source>
        <translation>Выбранная область не находится ни на одном экране.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrayIcon</name>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;Начать запись</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Стоп</translation>
    </message>
    <message>
        <source>Show &amp;window</source>
        <translation>Показать &amp;окно</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Выйти</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>Запись не идёт</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Пауза</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Запись</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>Возо&amp;бновить</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>П&amp;ауза</translation>
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
        <translation>Посмотрите и послушайте, какой получится запись с этими настройками.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>Try fi&amp;ve seconds</source>
        <translation>&amp;Попробовать пять секунд</translation>
    </message>
    <message>
        <source>Trial recording</source>
        <translation>Пробная запись</translation>
    </message>
    <message>
        <source>The trial recording was cancelled.</source>
        <translation>Пробная запись отменена.</translation>
    </message>
    <message>
        <source>The trial recording was made, but there is no program that opens it: %1</source>
        <translation>Пробная запись сделана, но нет программы, которая её открывает: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened. The recorder says: %1</source>
        <translation>Пробная запись сделана и открыта. Сообщение программы записи: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened.</source>
        <translation>Пробная запись сделана и открыта.</translation>
    </message>
    <message>
        <source>The recorder px-recorder cannot be started. Is it installed completely?</source>
        <translation>Не удаётся запустить программу записи px-recorder. Полностью ли она установлена?</translation>
    </message>
    <message>
        <source>Nothing could be recorded. The recorder says: %1</source>
        <translation>Ничего не удалось записать. Сообщение программы записи: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::Inhibitors</name>
    <message>
        <source>The computer cannot be kept from going to sleep while it records.</source>
        <translation>Не удаётся предотвратить переход компьютера в спящий режим во время записи.</translation>
    </message>
    <message>
        <source>The computer cannot be kept from being shut down before the file is closed.</source>
        <translation>Не удаётся предотвратить выключение компьютера до закрытия файла.</translation>
    </message>
    <message>
        <source>The screen cannot be kept from going dark while it is recorded.</source>
        <translation>Не удаётся предотвратить отключение экрана во время его записи.</translation>
    </message>
    <message>
        <source>A recording is running.</source>
        <translation>Идёт запись.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecorderProcess</name>
    <message>
        <source>%1 is of another version</source>
        <translation>У %1 другая версия</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>Не удаётся запустить %1: %2</translation>
    </message>
    <message>
        <source>The recorder crashed (signal %1).</source>
        <translation>В программе записи произошёл сбой (сигнал %1).</translation>
    </message>
    <message>
        <source>The recorder ended unexpectedly (exit status %1).</source>
        <translation>Программа записи неожиданно завершилась (код выхода %1).</translation>
    </message>
    <message>
        <source>The recorder did not start in time.</source>
        <translation>Программа записи не запустилась вовремя.</translation>
    </message>
    <message>
        <source>The recorder stopped responding.</source>
        <translation>Программа записи перестала отвечать.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecordingsList</name>
    <message>
        <source>The list of recordings %1 cannot be read: %2</source>
        <translation>Не удаётся прочитать список записей %1: %2</translation>
    </message>
    <message>
        <source>The list of recordings %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>Список записей %1 повреждён, и его не удаётся сохранить под другим именем: %2</translation>
    </message>
    <message>
        <source>Some entries of the list of recordings could not be used. What the file held is kept in %1.</source>
        <translation>Часть элементов списка записей не удалось использовать. Содержимое файла сохранено в %1.</translation>
    </message>
    <message>
        <source>The list of recordings could not be understood, so it begins anew. What it held is kept in %1.</source>
        <translation>Не удалось разобрать список записей, поэтому он начат заново. Его содержимое сохранено в %1.</translation>
    </message>
    <message>
        <source>%1: the list of recordings is not saved in %2</source>
        <translation>%1: список записей не сохранён в %2</translation>
    </message>
</context>
</TS>
