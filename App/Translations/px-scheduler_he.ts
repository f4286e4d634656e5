<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>cannot copy the settings file %1: %2</source>
        <translation>לא ניתן להעתיק את קובץ ההגדרות %1: %2</translation>
    </message>
</context>
<context>
    <name>CaptureControllerWrapper</name>
    <message>
        <source>Could not start recording because there is not enough disk space. Free more disk space and try again. Or set a different disk drive for storing output videos in %1File Preferences%2. </source>
        <translation>לא ניתן להתחיל את ההקלטה כי אין מספיק מקום פנוי בכונן. פנו מקום ונסו שוב, או בחרו כונן אחר להקלטות ב%1הגדרות הקבצים%2.</translation>
    </message>
    <message>
        <source>File Preferences</source>
        <translation>הגדרות הקבצים</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Keep the settings in &lt;file&gt; instead of the platform&apos;s configuration folder.</source>
        <translation>לשמור את ההגדרות בקובץ &lt;file&gt; במקום בתיקיית ההגדרות של המערכת.</translation>
    </message>
    <message>
        <source>Use &lt;language&gt; in this run, for example de or pt_BR.</source>
        <translation>להשתמש בשפה &lt;language&gt; בהרצה זו, לדוגמה de או pt_BR.</translation>
    </message>
    <message>
        <source>Use the theme light or dark in this run.</source>
        <translation>להשתמש בערכת הנושא light או dark בהרצה זו.</translation>
    </message>
    <message>
        <source>Walk through the window on a copy of the settings (of a sample without --settings), write a picture of each state into &lt;folder&gt;, and end.</source>
        <translation>לעבור על החלון עם עותק של ההגדרות (או של דוגמה ללא --settings), לכתוב תמונה של כל מצב אל &lt;folder&gt; ולסיים.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>להציג עזרה זו.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>להציג את הגרסה.</translation>
    </message>
    <message>
        <source>%1: %2 (try --help)</source>
        <translation>%1: %2 (נסו ‎--help)</translation>
    </message>
    <message>
        <source>option --%1 needs a value</source>
        <translation>האפשרות ‎--%1 דורשת ערך</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>ארגומנט לא צפוי ”%1“</translation>
    </message>
    <message>
        <source>unknown theme &apos;%1&apos;; the themes are light and dark</source>
        <translation>ערכת נושא לא מוכרת ”%1“; הערכות הן light ו-dark</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;; the languages are %2</source>
        <translation>שפה לא מוכרת ”%1“; השפות הן %2</translation>
    </message>
    <message>
        <source>Choose how screen recordings are timed.</source>
        <translation>בחרו מתי יתחילו ויסתיימו הקלטות המסך.</translation>
    </message>
</context>
<context>
    <name>CreateRecordTaskWidget</name>
    <message>
        <source>New record:</source>
        <translation>הקלטה חדשה:</translation>
    </message>
    <message>
        <source>Action on finish:</source>
        <translation>&amp;פעולה בסיום:</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>יצירה</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>חזרה</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>&amp;שם הקובץ:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>&amp;תאריך:</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>dd.MM.yyyy</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>ש&amp;עה:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>&amp;משך:</translation>
    </message>
    <message>
        <source>Capture:</source>
        <translation>אזור הקלטה:</translation>
    </message>
    <message>
        <source>Selected area</source>
        <translation>אזור נבחר</translation>
    </message>
    <message>
        <source>Selected area tooltip</source>
        <translation>מקליטה את האזור שנבחר בהגדרות, ואם לא נבחר אזור – את כל המסך הראשון.
גרסה זו עדיין אינה מקליטה.</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>מסך מלא</translation>
    </message>
    <message>
        <source>Need select task name</source>
        <translation>יש להזין שם למשימה.</translation>
    </message>
    <message>
        <source>Task with this title already exist</source>
        <translation>כבר קיימת משימה בשם זה.</translation>
    </message>
    <message>
        <source>Curent capture time intersect with other capture time in the list</source>
        <translation>זמן ההקלטה הזו חופף להקלטה אחרת ברשימה.</translation>
    </message>
</context>
<context>
    <name>PowerAction</name>
    <message>
        <source>Do nothing</source>
        <translation>לא לעשות דבר</translation>
    </message>
    <message>
        <source>Quit the application</source>
        <translation>יציאה מהיישום</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>שינה</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>מצב תרדמה</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>הפעלה מחדש</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>כיבוי</translation>
    </message>
</context>
<context>
    <name>RecordSchedulerWidget</name>
    <message>
        <source>All tasks will be permanently deleted from the recording schedule. Are you sure you want to continue?</source>
        <translation>כל המשימות יימחקו לצמיתות מלוח ההקלטות. להמשיך?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>המשך</translation>
    </message>
    <message>
        <source>The task hasn&apos;t been saved. Would you like to add this task to the recording schedule?</source>
        <translation>המשימה לא נשמרה. להוסיף אותה ללוח ההקלטות?</translation>
    </message>
    <message>
        <source>Don&apos;t Add</source>
        <translation>לא להוסיף</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>הוספה</translation>
    </message>
    <message>
        <source>Do not schedule capture</source>
        <translation>&amp;ללא תזמון הקלטה</translation>
    </message>
    <message>
        <source>Stop capture after</source>
        <translation>ע&amp;צירת ההקלטה לאחר</translation>
    </message>
    <message>
        <source>Record on schedule</source>
        <translation>הקלטה לפי לוח &amp;זמנים</translation>
    </message>
    <message>
        <source>Add record event</source>
        <translation>הוספת הקלטה</translation>
    </message>
    <message>
        <source>Capture duration in limited capture:</source>
        <translation>&amp;משך ההקלטה:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>When capture ends:</source>
        <translation>&amp;בסיום ההקלטה:</translation>
    </message>
</context>
<context>
    <name>ScheduleRecordTableWidget</name>
    <message>
        <source>Task </source>
        <translation>משימה </translation>
    </message>
    <message>
        <source>File name</source>
        <translation>שם הקובץ</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>תאריך</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>שעה</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>משך</translation>
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
        <translation>מחיקה</translation>
    </message>
    <message>
        <source>The task will be permanently deleted from the recording schedule. Are you sure you want to delete the task?</source>
        <translation>המשימה תימחק לצמיתות מלוח ההקלטות. למחוק אותה?</translation>
    </message>
    <message>
        <source>Always delete</source>
        <translation>למחוק תמיד</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The settings file %1 is not a file.</source>
        <translation>קובץ ההגדרות ⁦%1⁩ אינו קובץ.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder is missing and cannot be created either.</source>
        <translation>לא ניתן ליצור את קובץ ההגדרות ⁦%1⁩: התיקייה שלו חסרה וגם אותה לא ניתן ליצור.</translation>
    </message>
    <message>
        <source>The settings file %1 is in use by another process.</source>
        <translation>קובץ ההגדרות ⁦%1⁩ נמצא בשימוש של תהליך אחר.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder cannot be written to.</source>
        <translation>לא ניתן ליצור את קובץ ההגדרות ⁦%1⁩: אין אפשרות לכתוב בתיקייה שלו.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <translation>לא ניתן לקרוא את קובץ ההגדרות ⁦%1⁩: %2</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>קובץ ההגדרות ⁦%1⁩ פגום ולא ניתן לשמור אותו בשם אחר: %2</translation>
    </message>
    <message>
        <source>The settings file could not be understood, so the defaults are in use. What it held is kept in %1.</source>
        <translation>לא ניתן היה להבין את קובץ ההגדרות, ולכן נעשה שימוש בברירות המחדל. תוכנו נשמר ב-⁦%1⁩.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. Tasks left out: %2. What the file held is kept in %1.</source>
        <translation>לא ניתן היה להשתמש בחלק מההגדרות. משימות שהושמטו: %2. תוכן הקובץ נשמר ב-⁦%1⁩.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. What the file held is kept in %1.</source>
        <translation>לא ניתן היה להשתמש בחלק מההגדרות. תוכן הקובץ נשמר ב-⁦%1⁩.</translation>
    </message>
    <message>
        <source>Another program has changed the settings file. Its version is kept in %1; the settings shown here stay in use.</source>
        <translation>תוכנית אחרת שינתה את קובץ ההגדרות. הגרסה שלה נשמרה ב-⁦%1⁩; ההגדרות המוצגות כאן נשארות בתוקף.</translation>
    </message>
    <message>
        <source>Only a part of the file could be read</source>
        <translation>רק חלק מהקובץ נקרא</translation>
    </message>
    <message>
        <source>%2: your changes are not saved in %1</source>
        <translation>%2: השינויים שלך לא נשמרו ב-⁦%1⁩</translation>
    </message>
    <message>
        <source>The file is in use by another process</source>
        <translation>הקובץ נמצא בשימוש של תהליך אחר</translation>
    </message>
    <message>
        <source>The folder cannot be written to</source>
        <translation>לא ניתן לכתוב בתיקייה</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::CalendarLook</name>
    <message>
        <source>Today</source>
        <translation>היום</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::FilesPage</name>
    <message>
        <source>&amp;Folder for recordings:</source>
        <translation>&amp;תיקיית ההקלטות:</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>תיקיית ההקלטות</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;עיון…</translation>
    </message>
    <message>
        <source>Browse for the folder for recordings</source>
        <translation>עיון לבחירת תיקיית ההקלטות</translation>
    </message>
    <message>
        <source>Enter the full path of a folder.</source>
        <translation>יש להזין נתיב מלא של תיקייה.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>זהו קובץ, לא תיקייה.</translation>
    </message>
    <message>
        <source>You are not allowed to write into this folder.</source>
        <translation>אין לך הרשאה לכתוב בתיקייה הזו.</translation>
    </message>
    <message>
        <source>The free space of this folder is unknown.</source>
        <translation>המקום הפנוי בתיקייה הזו אינו ידוע.</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>מקום פנוי: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>קבצים</translation>
    </message>
    <message>
        <source>Choose where recordings are kept.</source>
        <translation>בחרו היכן יישמרו ההקלטות.</translation>
    </message>
    <message>
        <source>This folder cannot be created.</source>
        <translation>לא ניתן ליצור תיקייה זו.</translation>
    </message>
    <message>
        <source>This folder does not exist yet. It will be created with the first recording.</source>
        <translation>תיקייה זו עדיין לא קיימת. היא תיווצר עם ההקלטה הראשונה.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::GeneralPage</name>
    <message>
        <source>In this run: %1 (chosen at the start)</source>
        <translation>בהרצה זו: %1 (נבחר בהפעלה)</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;שפה:</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <translation>כמו במערכת (%1)</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;ערכת נושא:</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>כמו במערכת</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>בהירה</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>כהה</translation>
    </message>
    <message>
        <source>&amp;Ask all questions again</source>
        <translation>לשאול שוב את &amp;כל השאלות</translation>
    </message>
    <message>
        <source>Open settings &amp;folder</source>
        <translation>פתיחת תיקיית ה&amp;גדרות</translation>
    </message>
    <message>
        <source>&amp;Open log</source>
        <translation>פתיחת ה&amp;יומן</translation>
    </message>
    <message>
        <source>There is no log of this run.</source>
        <translation>אין יומן להרצה זו.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>לא ניתן לפתוח: %1</translation>
    </message>
    <message>
        <source>Some questions are no longer asked.</source>
        <translation>חלק מהשאלות אינן נשאלות עוד, לפי בחירתכם.</translation>
    </message>
    <message>
        <source>Every question is asked, for example before a task is deleted.</source>
        <translation>כל השאלות נשאלות, למשל לפני מחיקת משימה.</translation>
    </message>
    <message>
        <source>All questions will be asked again</source>
        <translation>כל השאלות יישאלו שוב</translation>
    </message>
    <message>
        <source>When something goes wrong, your settings and the log of this run help to find out why.</source>
        <translation>כשמשהו משתבש, ההגדרות והיומן של הרצה זו עוזרים למצוא את הסיבה.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>כללי</translation>
    </message>
    <message>
        <source>Choose language and theme.</source>
        <translation>בחרו את שפת היישום ואת מראהו.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::MainWindow</name>
    <message>
        <source>Recording Scheduler</source>
        <translation>מתזמן ההקלטות</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>דפי ההגדרות</translation>
    </message>
    <message>
        <source>Your changes are saved again.</source>
        <translation>השינויים נשמרים שוב.</translation>
    </message>
    <message>
        <source>Your changes could not be saved. They will be lost if you close the window now.</source>
        <translation>לא ניתן לשמור את השינויים. הם יאבדו אם החלון ייסגר עכשיו.</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>לסגור בכל זאת</translation>
    </message>
    <message>
        <source>Ready to record</source>
        <translation>מוכן להקלטה</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;התחלת הקלטה</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>סגירה</translation>
    </message>
    <message>
        <source>Close notice</source>
        <translation>סגירת ההודעה</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAnnouncer</name>
    <message>
        <source>Task added: %1</source>
        <translation>המשימה נוספה: %1</translation>
    </message>
    <message>
        <source>All tasks deleted</source>
        <translation>כל המשימות נמחקו</translation>
    </message>
    <message>
        <source>Task deleted: %1</source>
        <translation>המשימה נמחקה: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelNameGuard</name>
    <message>
        <source>A name cannot contain line breaks or other control characters.</source>
        <translation>שם לא יכול לכלול מעברי שורה או תווי בקרה אחרים.</translation>
    </message>
    <message>
        <source>A name cannot contain: %1</source>
        <translation>שם לא יכול לכלול: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelTaskDetails</name>
    <message>
        <source>This task is over.</source>
        <translation>זמנה של משימה זו חלף.</translation>
    </message>
    <message>
        <source>Afterwards: %1</source>
        <translation>לאחר מכן: %1</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>מסתיימת בשעה %1</translation>
    </message>
    <message>
        <source>Ends on the next day at %1</source>
        <translation>מסתיימת למחרת בשעה %1</translation>
    </message>
    <message>
        <source>Records screen %1, which is not connected</source>
        <translation>מקליטה את מסך %1, שאינו מחובר</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>מקליטה: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>לוח זמנים</translation>
    </message>
    <message>
        <source>Choose when a recording stops or starts by itself. Your choice is kept; this version does not record yet.</source>
        <translation>בחרו מתי הקלטה תיעצר או תתחיל מעצמה. בחירתכם נשמרת; גרסה זו עדיין אינה מקליטה.</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>לוח ההקלטות</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::ScreenshotTour</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>לא ניתן ליצור את התיקייה %1</translation>
    </message>
    <message>
        <source>cannot reach: %1</source>
        <translation>לא ניתן להגיע אל: %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>לא ניתן לכתוב את %1</translation>
    </message>
</context>
</TS>
