<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
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
        <translation>מקליטה את האזור שנבחר בהגדרות, ואם לא נבחר אזור – את כל המסך הראשון.</translation>
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
</TS>
