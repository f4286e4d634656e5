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
    <message>
        <source>the program does not run on these settings</source>
        <translation>היישום אינו פועל עם ההגדרות האלה</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Cannot delete %1</source>
        <translation>לא ניתן למחוק את ⁦%1⁩</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>לא ניתן לכתוב את ⁦%1⁩</translation>
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
    <message>
        <source>Start recording, in the program that runs already if there is one.</source>
        <translation>להתחיל להקליט, ביישום שכבר פועל אם יש כזה.</translation>
    </message>
    <message>
        <source>Stop the recording of the program that runs already.</source>
        <translation>לעצור את ההקלטה של היישום שכבר פועל.</translation>
    </message>
    <message>
        <source>Pause the recording of the program that runs already, or go on with it.</source>
        <translation>להשהות את ההקלטה של היישום שכבר פועל, או להמשיך אותה.</translation>
    </message>
    <message>
        <source>End the program that runs already, without a question.</source>
        <translation>לסיים את היישום שכבר פועל, בלי לשאול.</translation>
    </message>
    <message>
        <source>Start without a window.</source>
        <translation>להתחיל ללא חלון.</translation>
    </message>
    <message>
        <source>options --%1 and --%2 cannot be used together</source>
        <translation>לא ניתן להשתמש יחד באפשרות ‎--%1 ובאפשרות ‎--%2</translation>
    </message>
</context>
<context>
    <name>DurationText</name>
    <message>
        <source>%1 s</source>
        <translation>%1 שנ׳</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 דק׳</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 שע׳ %2 דק׳</translation>
    </message>
</context>
<context>
    <name>FooterState</name>
    <message>
        <source>Next: %1, as soon as possible</source>
        <translation>הבאה: %1, בהקדם האפשרי</translation>
    </message>
    <message>
        <source>Next: %1 on %2</source>
        <translation>הבאה: %1 ב-%2</translation>
    </message>
    <message>
        <source>Next: %1 in %2</source>
        <translation>הבאה: %1 בעוד %2</translation>
    </message>
    <message>
        <source>The recording starts</source>
        <translation>ההקלטה מתחילה</translation>
    </message>
    <message>
        <source>%1 is about to start</source>
        <translation>%1 עומדת להתחיל</translation>
    </message>
    <message>
        <source>%1 starts in %2</source>
        <translation>%1 תתחיל בעוד %2</translation>
    </message>
    <message>
        <source>%1 starts when this recording has ended</source>
        <translation>%1 תתחיל בסיום ההקלטה הזו</translation>
    </message>
    <message>
        <source>This recording will end for %1</source>
        <translation>הקלטה זו תסתיים לטובת %1</translation>
    </message>
    <message>
        <source>Ends in %1 for %2</source>
        <translation>תסתיים בעוד %1 לטובת %2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>בהשהיה</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>מתבצעת הקלטה</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>בהשהיה: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>מתבצעת הקלטה: ⁨%1⁩</translation>
    </message>
    <message>
        <source>%1 is being saved</source>
        <translation>%1 נשמרת</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>%1 has been recorded</source>
        <translation>%1 הושלמה</translation>
    </message>
    <message>
        <source>%1 has been stopped</source>
        <translation>%1 נעצרה</translation>
    </message>
    <message>
        <source>%1 has been recorded in part</source>
        <translation>%1 הושלמה חלקית</translation>
    </message>
    <message>
        <source>%1 has not been recorded</source>
        <translation>%1 לא הוקלטה</translation>
    </message>
    <message>
        <source>%1 could not be recorded</source>
        <translation>%1 נכשלה</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>הסיבה: %1.</translation>
    </message>
    <message>
        <source>The file is %1.</source>
        <translation>הקובץ הוא %1.</translation>
    </message>
    <message>
        <source>The rest is recorded into a new file.</source>
        <translation>ההמשך מוקלט לקובץ חדש.</translation>
    </message>
    <message>
        <source>The computer cannot go to sleep</source>
        <translation>לא ניתן להעביר את המחשב למצב שינה</translation>
    </message>
    <message>
        <source>The computer cannot hibernate</source>
        <translation>לא ניתן להעביר את המחשב למצב תרדמה</translation>
    </message>
    <message>
        <source>The computer cannot be restarted</source>
        <translation>לא ניתן להפעיל מחדש את המחשב</translation>
    </message>
    <message>
        <source>The computer cannot be shut down</source>
        <translation>לא ניתן לכבות את המחשב</translation>
    </message>
    <message>
        <source>The computer does not go to sleep</source>
        <translation>המחשב לא יעבור למצב שינה</translation>
    </message>
    <message>
        <source>The computer does not hibernate</source>
        <translation>המחשב לא יעבור למצב תרדמה</translation>
    </message>
    <message>
        <source>The computer is not restarted</source>
        <translation>המחשב לא יופעל מחדש</translation>
    </message>
    <message>
        <source>The computer is not shut down</source>
        <translation>המחשב לא יכובה</translation>
    </message>
    <message>
        <source>%1 starts at %2.</source>
        <translation>%1 תתחיל ב-%2.</translation>
    </message>
    <message>
        <source>%1 is about to be recorded</source>
        <translation>%1 עומדת להיות מוקלטת</translation>
    </message>
    <message>
        <source>The recording starts at %1.</source>
        <translation>ההקלטה תתחיל ב-%1.</translation>
    </message>
    <message>
        <source>%1 is being recorded</source>
        <translation>%1 מוקלטת</translation>
    </message>
    <message>
        <source>Your recording ends in a moment</source>
        <translation>ההקלטה שלך תסתיים בעוד רגע</translation>
    </message>
    <message>
        <source>%1 waits for its screen</source>
        <translation>%1 ממתינה למסך שלה</translation>
    </message>
    <message>
        <source>It is recorded as soon as the screen is connected.</source>
        <translation>ההקלטה תתחיל ברגע שהמסך יחובר.</translation>
    </message>
    <message>
        <source>%1 does not start</source>
        <translation>%1 לא תתחיל</translation>
    </message>
    <message>
        <source>The disk is full: %1 are free.</source>
        <translation>הכונן מלא: נותרו %1 פנויים.</translation>
    </message>
    <message>
        <source>The recording is finished.</source>
        <translation>ההקלטה הסתיימה.</translation>
    </message>
    <message>
        <source>There is a problem with %1</source>
        <translation>יש בעיה עם %1</translation>
    </message>
    <message>
        <source>your recording</source>
        <translation>ההקלטה שלך</translation>
    </message>
    <message>
        <source>The disk may be too small for the scheduled tasks</source>
        <translation>ייתכן שהכונן קטן מדי למשימות המתוזמנות</translation>
    </message>
    <message>
        <source>They are likely to need %1, and %2 can be used.</source>
        <translation>הן צפויות לדרוש %1, ו-%2 זמינים לשימוש.</translation>
    </message>
    <message>
        <source>The program runs on</source>
        <translation>היישום ממשיך לפעול</translation>
    </message>
    <message>
        <source>Its icon shows the window again. You can change this on the page &quot;General&quot;.</source>
        <translation>הסמל שלו מציג שוב את החלון. אפשר לשנות זאת בדף ”כללי“.</translation>
    </message>
    <message>
        <source>Not everything works on this desktop</source>
        <translation>לא הכול פועל בשולחן העבודה הזה</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>דילוג</translation>
    </message>
    <message>
        <source>Keep recording</source>
        <translation>המשך הקלטה</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>פתיחה</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>הצגה בתיקייה</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>עכשיו</translation>
    </message>
    <message>
        <source>The computer goes to sleep in %1</source>
        <translation>המחשב יעבור למצב שינה בעוד %1</translation>
    </message>
    <message>
        <source>The computer hibernates in %1</source>
        <translation>המחשב יעבור למצב תרדמה בעוד %1</translation>
    </message>
    <message>
        <source>The computer restarts in %1</source>
        <translation>המחשב יופעל מחדש בעוד %1</translation>
    </message>
    <message>
        <source>The computer shuts down in %1</source>
        <translation>המחשב יכובה בעוד %1</translation>
    </message>
    <message>
        <source>Your recording</source>
        <translation>ההקלטה שלך</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>”%1“</translation>
    </message>
</context>
<context>
    <name>RecordingTexts</name>
    <message>
        <source>it started late</source>
        <translation>היא התחילה באיחור</translation>
    </message>
    <message>
        <source>an earlier part of it broke off</source>
        <translation>חלק קודם שלה נקטע</translation>
    </message>
    <message>
        <source>the recorder broke down</source>
        <translation>המקליט הפסיק לפעול</translation>
    </message>
    <message>
        <source>the program ended unexpectedly</source>
        <translation>היישום הסתיים באופן לא צפוי</translation>
    </message>
    <message>
        <source>a task was due</source>
        <translation>הגיע זמנה של משימה</translation>
    </message>
    <message>
        <source>the computer was shut down</source>
        <translation>המחשב כובה</translation>
    </message>
    <message>
        <source>the computer was asleep</source>
        <translation>המחשב היה במצב שינה</translation>
    </message>
    <message>
        <source>the program was not running</source>
        <translation>היישום לא פעל</translation>
    </message>
    <message>
        <source>the schedule was off</source>
        <translation>לוח הזמנים היה כבוי</translation>
    </message>
    <message>
        <source>the clock was set</source>
        <translation>שעון המחשב שונה</translation>
    </message>
    <message>
        <source>another recording was running</source>
        <translation>התבצעה הקלטה אחרת</translation>
    </message>
    <message>
        <source>the screen was not connected</source>
        <translation>המסך לא היה מחובר</translation>
    </message>
    <message>
        <source>you skipped it</source>
        <translation>דילגת עליה</translation>
    </message>
    <message>
        <source>the recorder is not installed</source>
        <translation>המקליט אינו מותקן</translation>
    </message>
    <message>
        <source>the disk was nearly full</source>
        <translation>הכונן היה כמעט מלא</translation>
    </message>
    <message>
        <source>the disk was full</source>
        <translation>הכונן היה מלא</translation>
    </message>
    <message>
        <source>the display was gone</source>
        <translation>התצוגה נותקה</translation>
    </message>
    <message>
        <source>the program was ended</source>
        <translation>היישום נסגר</translation>
    </message>
    <message>
        <source>the file existed already</source>
        <translation>הקובץ כבר היה קיים</translation>
    </message>
    <message>
        <source>the folder did not exist</source>
        <translation>התיקייה לא הייתה קיימת</translation>
    </message>
    <message>
        <source>the folder could not be written to</source>
        <translation>לא ניתן היה לכתוב בתיקייה</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>שולחן העבודה לא אפשר זאת</translation>
    </message>
    <message>
        <source>no encoder works on this computer</source>
        <translation>אף מקודד אינו פועל במחשב הזה</translation>
    </message>
    <message>
        <source>nothing was recorded</source>
        <translation>דבר לא הוקלט</translation>
    </message>
    <message>
        <source>the conversion to MP4 failed</source>
        <translation>ההמרה ל-MP4 נכשלה</translation>
    </message>
    <message>
        <source>the recorder reported an error</source>
        <translation>המקליט דיווח על שגיאה</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>הושלמה</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>חלקית</translation>
    </message>
    <message>
        <source>Stopped by you</source>
        <translation>נעצרה על ידך</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>הוחמצה</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>נכשלה</translation>
    </message>
    <message>
        <source>Recording now</source>
        <translation>מוקלטת עכשיו</translation>
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
        <translation>אזור במסך</translation>
    </message>
    <message>
        <source>Draw the area with the mouse, or move it with the arrow keys and resize it with Shift and the arrow keys. Enter takes it, Escape cancels.</source>
        <translation>ציירו את האזור בעכבר, או הזיזו אותו במקשי החצים ושנו את גודלו ב-Shift עם מקשי החצים. לאישור הקישו Enter, לביטול הקישו Escape.</translation>
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
    <name>Zentor::Desktop::DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>הצגת החלון</translation>
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
    <message>
        <source>Start &amp;with the desktop</source>
        <translation>ה&amp;פעלה יחד עם שולחן העבודה</translation>
    </message>
    <message>
        <source>&amp;Keep running when the window is closed</source>
        <translation>המשך פעולה כשה&amp;חלון נסגר</translation>
    </message>
    <message>
        <source>While tasks are pending or a recording runs, the program stays in the tray. Where there is none, its window is minimized.</source>
        <translation>כל עוד יש משימות ממתינות או מתבצעת הקלטה, היישום נשאר במגש המערכת. אם אין מגש, החלון שלו ממוזער.</translation>
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
        <source>The recording that is running will be stopped.</source>
        <translation>ההקלטה שמתבצעת תיעצר.</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) are still to come. They will not be recorded when the program is not running.</source>
        <translation>
            <numerusform>%n משימה עדיין צפויה. היא לא תוקלט כשהיישום אינו פועל.</numerusform>
            <numerusform>%n משימות עדיין צפויות. הן לא יוקלטו כשהיישום אינו פועל.</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>יציאה</translation>
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
    <name>Zentor::Desktop::PanelAreaTip</name>
    <message>
        <source>No area has been selected yet: all of screen 1 (%1) is recorded. You can select an area on the page &quot;Recording&quot;.</source>
        <translation>עדיין לא נבחר אזור: מוקלט מסך 1 כולו (%1). אפשר לבחור אזור בדף ”הקלטה“.</translation>
    </message>
    <message>
        <source>Records %1, the area that is selected on the page &quot;Recording&quot;.</source>
        <translation>מקליטה את %1, האזור שנבחר בדף ”הקלטה“.</translation>
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
    <name>Zentor::Desktop::PictureCard</name>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>&amp;פריימים לשנייה:</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>אי&amp;כות:</translation>
    </message>
    <message>
        <source>Fil&amp;e format:</source>
        <translation>פור&amp;מט הקובץ:</translation>
    </message>
    <message>
        <source>Matroska (.mkv)</source>
        <translation>⁦Matroska (.mkv)⁩</translation>
    </message>
    <message>
        <source>MP4 (.mp4)</source>
        <translation>⁦MP4 (.mp4)⁩</translation>
    </message>
    <message>
        <source>Record the mouse &amp;pointer</source>
        <translation>הקלטת סמן ה&amp;עכבר</translation>
    </message>
    <message>
        <source>Small: about %1 an hour</source>
        <translation>נמוכה: כ-%1 לשעה</translation>
    </message>
    <message>
        <source>Normal: about %1 an hour</source>
        <translation>רגילה: כ-%1 לשעה</translation>
    </message>
    <message>
        <source>High: about %1 an hour</source>
        <translation>גבוהה: כ-%1 לשעה</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingControl</name>
    <message>
        <source>A task is about to start.</source>
        <translation>משימה עומדת להתחיל.</translation>
    </message>
    <message>
        <source>The desktop shows no notifications. The page &quot;Recordings&quot; tells what was recorded, and what was not.</source>
        <translation>שולחן העבודה אינו מציג התראות. בדף ”הקלטות“ רואים מה הוקלט ומה לא.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingFooter</name>
    <message>
        <source>Recording</source>
        <translation>מתבצעת הקלטה</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>הוקלט</translation>
    </message>
    <message>
        <source>End</source>
        <translation>סיום</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>גודל הקובץ</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>מקום פנוי</translation>
    </message>
    <message>
        <source>Dropped frames</source>
        <translation>פריימים שנשמטו</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;התחלת הקלטה</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>עציר&amp;ה</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>&amp;דילוג</translation>
    </message>
    <message>
        <source>Skip this task</source>
        <translation>דילוג על משימה זו</translation>
    </message>
    <message>
        <source>&amp;Keep recording</source>
        <translation>המשך ה&amp;קלטה</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>בי&amp;טול</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>עכשי&amp;ו</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>עד %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 פנויים</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) dropped</source>
        <translation>
            <numerusform>%n פריים נשמט</numerusform>
            <numerusform>%n פריימים נשמטו</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>המש&amp;ך</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>השה&amp;יה</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingPage</name>
    <message>
        <source>Recording</source>
        <translation>הקלטה</translation>
    </message>
    <message>
        <source>Choose what is recorded, and how.</source>
        <translation>בחרו מה יוקלט ואיך.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsModel</name>
    <message>
        <source>the file is gone</source>
        <translation>הקובץ אינו קיים עוד</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsPage</name>
    <message>
        <source>Recordings</source>
        <translation>הקלטות</translation>
    </message>
    <message>
        <source>What was recorded, and what was not.</source>
        <translation>מה הוקלט ומה לא.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. Start a recording with the button below, or plan one on the page Schedule; it is listed here then.</source>
        <translation>עדיין לא הוקלט דבר. התחילו הקלטה בלחצן שלמטה, או תכננו הקלטה בדף ”לוח זמנים“; היא תופיע כאן לאחר מכן.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;פתיחה</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>ה&amp;צגה בתיקייה</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;תיקון</translation>
    </message>
    <message>
        <source>Adds what a crash has kept from the end of the file, so that players can seek in it.</source>
        <translation>מוסיף לסוף הקובץ את מה שלא נכתב בו בגלל קריסה, כדי שנגנים יוכלו לנווט בו.</translation>
    </message>
    <message>
        <source>Move to &amp;trash</source>
        <translation>העברה ל&amp;אשפה</translation>
    </message>
    <message>
        <source>Remove from &amp;list</source>
        <translation>הסרה מה&amp;רשימה</translation>
    </message>
    <message>
        <source>There is no file of this recording.</source>
        <translation>אין קובץ להקלטה זו.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>לא ניתן לפתוח: ⁦%1⁩</translation>
    </message>
    <message>
        <source>Repairing: %1</source>
        <translation>מתבצע תיקון: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Repaired: %1</source>
        <translation>תוקנה: ⁨%1⁩</translation>
    </message>
    <message>
        <source>%1 could not be repaired</source>
        <translation>לא ניתן לתקן את ⁨%1⁩</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; will be moved to the trash. Are you sure?</source>
        <translation>ההקלטה ”⁨%1⁩“ תועבר לאשפה. להעביר אותה?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will be removed from the list. Are you sure?</source>
        <translation>”⁨%1⁩“ תוסר מהרשימה. להסיר אותה?</translation>
    </message>
    <message>
        <source>Move to trash</source>
        <translation>העברה לאשפה</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>הסרה</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash</source>
        <translation>לא ניתן להעביר את ⁦%1⁩ לאשפה</translation>
    </message>
    <message>
        <source>Removed from the list: %1</source>
        <translation>הוסרה מהרשימה: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Moved to the trash: %1</source>
        <translation>הועברה לאשפה: ⁨%1⁩</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>לוח זמנים</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>לוח ההקלטות</translation>
    </message>
    <message>
        <source>Choose when a recording stops by itself, and which recordings start by themselves.</source>
        <translation>בחרו מתי הקלטה תיעצר מעצמה, ואילו הקלטות יתחילו מעצמן.</translation>
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
<context>
    <name>Zentor::Desktop::SoundCard</name>
    <message>
        <source>Record the sound of:</source>
        <translation>הקלטת השמע של:</translation>
    </message>
    <message>
        <source>Sound devices</source>
        <translation>התקני שמע</translation>
    </message>
    <message>
        <source>All sound in one trac&amp;k</source>
        <translation>כל השמע בר&amp;צועה אחת</translation>
    </message>
    <message>
        <source>Otherwise each device has a track of its own, for editing. Most players play only the first.</source>
        <translation>אחרת לכל התקן יש רצועה משלו, לצורך עריכה. רוב הנגנים מנגנים רק את הראשונה.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceList</name>
    <message>
        <source>Looking for sound devices...</source>
        <translation>מתבצע חיפוש של התקני שמע…</translation>
    </message>
    <message>
        <source>The sound devices of this computer cannot be listed.</source>
        <translation>לא ניתן להציג את התקני השמע של המחשב הזה.</translation>
    </message>
    <message>
        <source>There are no sound devices on this computer.</source>
        <translation>אין התקני שמע במחשב הזה.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceRow</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>⁨%1⁩ (לא מחובר)</translation>
    </message>
    <message>
        <source>Level of %1</source>
        <translation>עוצמת השמע של ⁨%1⁩</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SourceCard</name>
    <message>
        <source>Record a s&amp;creen</source>
        <translation>הקלטת מ&amp;סך</translation>
    </message>
    <message>
        <source>Screen that is recorded</source>
        <translation>המסך המוקלט</translation>
    </message>
    <message>
        <source>Record the selected &amp;area</source>
        <translation>הקלטת ה&amp;אזור הנבחר</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>מ&amp;שמאל:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>מ&amp;למעלה:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;רוחב:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;גובה:</translation>
    </message>
    <message>
        <source>Left edge of the area in pixels</source>
        <translation>הקצה השמאלי של האזור בפיקסלים</translation>
    </message>
    <message>
        <source>Top edge of the area in pixels</source>
        <translation>הקצה העליון של האזור בפיקסלים</translation>
    </message>
    <message>
        <source>Width of the area in pixels</source>
        <translation>רוחב האזור בפיקסלים</translation>
    </message>
    <message>
        <source>Height of the area in pixels</source>
        <translation>גובה האזור בפיקסלים</translation>
    </message>
    <message>
        <source>Choose o&amp;n the screen...</source>
        <translation>&amp;בחירה על המסך…</translation>
    </message>
    <message>
        <source>Show &amp;outline</source>
        <translation>הצגת מסגר&amp;ת</translation>
    </message>
    <message>
        <source>Screen %1, %2</source>
        <translation>מסך %1, %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>Screen %1 (not connected)</source>
        <translation>מסך %1 (לא מחובר)</translation>
    </message>
    <message>
        <source>No area has been selected yet: all of screen 1 is recorded instead, also by tasks with &quot;Selected area&quot;.</source>
        <translation>עדיין לא נבחר אזור: במקומו מוקלט מסך 1 כולו, גם במשימות עם ”אזור נבחר“.</translation>
    </message>
    <message>
        <source>Tasks with &quot;Selected area&quot; record this area, too.</source>
        <translation>גם משימות עם ”אזור נבחר“ מקליטות את האזור הזה.</translation>
    </message>
    <message>
        <source>The screen that is to be recorded is not connected.</source>
        <translation>המסך שיש להקליט אינו מחובר.</translation>
    </message>
    <message>
        <source>The selected area is not on any screen.</source>
        <translation>האזור הנבחר אינו נמצא באף מסך.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrayIcon</name>
    <message>
        <source>&amp;Start recording</source>
        <translation>&amp;התחלת הקלטה</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;עצירה</translation>
    </message>
    <message>
        <source>Show &amp;window</source>
        <translation>הצגת ה&amp;חלון</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>יצי&amp;אה</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>לא מתבצעת הקלטה</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>בהשהיה</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>מתבצעת הקלטה</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>ה&amp;משך</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>השה&amp;יה</translation>
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
        <translation>ראו ושמעו איך נראית ונשמעת הקלטה בהגדרות האלה.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>ביטול</translation>
    </message>
    <message>
        <source>Try fi&amp;ve seconds</source>
        <translation>&amp;ניסיון של חמש שניות</translation>
    </message>
    <message>
        <source>Trial recording</source>
        <translation>הקלטת ניסיון</translation>
    </message>
    <message>
        <source>The trial recording was cancelled.</source>
        <translation>הקלטת הניסיון בוטלה.</translation>
    </message>
    <message>
        <source>The trial recording was made, but there is no program that opens it: %1</source>
        <translation>הקלטת הניסיון נוצרה, אך אין תוכנית שפותחת אותה: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened. The recorder says: %1</source>
        <translation>הקלטת הניסיון נוצרה ונפתחה. הודעת המקליט: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened.</source>
        <translation>הקלטת הניסיון נוצרה ונפתחה.</translation>
    </message>
    <message>
        <source>The recorder px-recorder cannot be started. Is it installed completely?</source>
        <translation>לא ניתן להפעיל את המקליט px-recorder. האם הוא מותקן במלואו?</translation>
    </message>
    <message>
        <source>Nothing could be recorded. The recorder says: %1</source>
        <translation>לא ניתן היה להקליט דבר. הודעת המקליט: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::Inhibitors</name>
    <message>
        <source>The computer cannot be kept from going to sleep while it records.</source>
        <translation>לא ניתן למנוע מהמחשב לעבור למצב שינה בזמן ההקלטה.</translation>
    </message>
    <message>
        <source>The computer cannot be kept from being shut down before the file is closed.</source>
        <translation>לא ניתן למנוע את כיבוי המחשב לפני סגירת הקובץ.</translation>
    </message>
    <message>
        <source>The screen cannot be kept from going dark while it is recorded.</source>
        <translation>לא ניתן למנוע את החשכת המסך בזמן הקלטתו.</translation>
    </message>
    <message>
        <source>A recording is running.</source>
        <translation>מתבצעת הקלטה.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecorderProcess</name>
    <message>
        <source>%1 is of another version</source>
        <translation>הגרסה של ⁦%1⁩ שונה</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>לא ניתן להפעיל את ⁦%1⁩: %2</translation>
    </message>
    <message>
        <source>The recorder crashed (signal %1).</source>
        <translation>המקליט קרס (אות %1).</translation>
    </message>
    <message>
        <source>The recorder ended unexpectedly (exit status %1).</source>
        <translation>המקליט הסתיים באופן לא צפוי (קוד יציאה %1).</translation>
    </message>
    <message>
        <source>The recorder did not start in time.</source>
        <translation>המקליט לא התחיל לפעול בזמן.</translation>
    </message>
    <message>
        <source>The recorder stopped responding.</source>
        <translation>המקליט הפסיק להגיב.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecordingsList</name>
    <message>
        <source>The list of recordings %1 cannot be read: %2</source>
        <translation>לא ניתן לקרוא את רשימת ההקלטות ⁦%1⁩: %2</translation>
    </message>
    <message>
        <source>The list of recordings %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>רשימת ההקלטות ⁦%1⁩ פגומה ולא ניתן לשמור אותה בשם אחר: %2</translation>
    </message>
    <message>
        <source>Some entries of the list of recordings could not be used. What the file held is kept in %1.</source>
        <translation>לא ניתן היה להשתמש בחלק מהרשומות ברשימת ההקלטות. תוכן הקובץ נשמר ב-⁦%1⁩.</translation>
    </message>
    <message>
        <source>The list of recordings could not be understood, so it begins anew. What it held is kept in %1.</source>
        <translation>לא ניתן היה להבין את רשימת ההקלטות, ולכן היא מתחילה מחדש. תוכנה נשמר ב-⁦%1⁩.</translation>
    </message>
    <message>
        <source>%1: the list of recordings is not saved in %2</source>
        <translation>%1: רשימת ההקלטות לא נשמרה ב-⁦%2⁩</translation>
    </message>
</context>
</TS>
