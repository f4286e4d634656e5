<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>cannot copy the settings file %1: %2</source>
        <translation>تعذّر نسخ ملف الإعدادات %1: %2</translation>
    </message>
    <message>
        <source>the program does not run on these settings</source>
        <translation>التطبيق غير مشغَّل بهذه الإعدادات</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Cannot delete %1</source>
        <translation>تعذّر حذف ⁦%1⁩</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>تعذّرت كتابة ⁦%1⁩</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Keep the settings in &lt;file&gt; instead of the platform&apos;s configuration folder.</source>
        <translation>حفظ الإعدادات في &lt;file&gt; بدلًا من مجلد الإعدادات في النظام.</translation>
    </message>
    <message>
        <source>Use &lt;language&gt; in this run, for example de or pt_BR.</source>
        <translation>استخدام اللغة &lt;language&gt; في هذا التشغيل، مثل de أو pt_BR.</translation>
    </message>
    <message>
        <source>Use the theme light or dark in this run.</source>
        <translation>استخدام السمة light أو dark في هذا التشغيل.</translation>
    </message>
    <message>
        <source>Walk through the window on a copy of the settings (of a sample without --settings), write a picture of each state into &lt;folder&gt;, and end.</source>
        <translation>المرور على النافذة بنسخة من الإعدادات (أو بنموذج من دون --settings) وكتابة صورة لكل حالة في &lt;folder&gt; ثم الإنهاء.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>عرض هذه المساعدة.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>عرض الإصدار.</translation>
    </message>
    <message>
        <source>%1: %2 (try --help)</source>
        <translation>%1: %2 (جرّب ‎--help)</translation>
    </message>
    <message>
        <source>option --%1 needs a value</source>
        <translation>الخيار ‎--%1 يحتاج إلى قيمة</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>معامل غير متوقع ”%1“</translation>
    </message>
    <message>
        <source>unknown theme &apos;%1&apos;; the themes are light and dark</source>
        <translation>سمة غير معروفة ”%1“؛ السمتان هما light و dark</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;; the languages are %2</source>
        <translation>لغة غير معروفة ”%1“؛ اللغات هي %2</translation>
    </message>
    <message>
        <source>Choose how screen recordings are timed.</source>
        <translation>اختر توقيت تسجيلات الشاشة.</translation>
    </message>
    <message>
        <source>Start recording, in the program that runs already if there is one.</source>
        <translation>بدء التسجيل، في التطبيق المشغَّل بالفعل إن وُجد.</translation>
    </message>
    <message>
        <source>Stop the recording of the program that runs already.</source>
        <translation>إيقاف تسجيل التطبيق المشغَّل بالفعل.</translation>
    </message>
    <message>
        <source>Pause the recording of the program that runs already, or go on with it.</source>
        <translation>إيقاف تسجيل التطبيق المشغَّل بالفعل مؤقتًا أو استئنافه.</translation>
    </message>
    <message>
        <source>End the program that runs already, without a question.</source>
        <translation>إنهاء التطبيق المشغَّل بالفعل من دون سؤال.</translation>
    </message>
    <message>
        <source>Start without a window.</source>
        <translation>البدء من دون نافذة.</translation>
    </message>
    <message>
        <source>options --%1 and --%2 cannot be used together</source>
        <translation>لا يمكن استخدام الخيارين ‎--%1 و ‎--%2 معًا</translation>
    </message>
</context>
<context>
    <name>DurationText</name>
    <message>
        <source>%1 s</source>
        <translation>%1 ث</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 د</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 س %2 د</translation>
    </message>
</context>
<context>
    <name>FooterState</name>
    <message>
        <source>Next: %1, as soon as possible</source>
        <translation>التالي: %1 في أقرب وقت</translation>
    </message>
    <message>
        <source>Next: %1 on %2</source>
        <translation>التالي: %1 في %2</translation>
    </message>
    <message>
        <source>Next: %1 in %2</source>
        <translation>التالي: %1 بعد %2</translation>
    </message>
    <message>
        <source>The recording starts</source>
        <translation>يبدأ التسجيل</translation>
    </message>
    <message>
        <source>%1 is about to start</source>
        <translation>%1 على وشك البدء</translation>
    </message>
    <message>
        <source>%1 starts in %2</source>
        <translation>يبدأ %1 بعد %2</translation>
    </message>
    <message>
        <source>%1 starts when this recording has ended</source>
        <translation>يبدأ %1 بعد انتهاء هذا التسجيل</translation>
    </message>
    <message>
        <source>This recording will end for %1</source>
        <translation>سينتهي هذا التسجيل لأجل %1</translation>
    </message>
    <message>
        <source>Ends in %1 for %2</source>
        <translation>ينتهي بعد %1 لأجل %2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>متوقف مؤقتًا</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>جارٍ التسجيل</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>متوقف مؤقتًا: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>جارٍ التسجيل: ⁨%1⁩</translation>
    </message>
    <message>
        <source>%1 is being saved</source>
        <translation>يجري حفظ %1</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>%1 has been recorded</source>
        <translation>اكتمل %1</translation>
    </message>
    <message>
        <source>%1 has been stopped</source>
        <translation>أُوقف %1</translation>
    </message>
    <message>
        <source>%1 has been recorded in part</source>
        <translation>سُجّل جزء من %1</translation>
    </message>
    <message>
        <source>%1 has not been recorded</source>
        <translation>لم يُسجّل %1</translation>
    </message>
    <message>
        <source>%1 could not be recorded</source>
        <translation>تعذّر إتمام %1</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>السبب: %1.</translation>
    </message>
    <message>
        <source>The file is %1.</source>
        <translation>الملف هو %1.</translation>
    </message>
    <message>
        <source>The rest is recorded into a new file.</source>
        <translation>يُسجّل الباقي في ملف جديد.</translation>
    </message>
    <message>
        <source>The computer cannot go to sleep</source>
        <translation>تعذّر إدخال الحاسوب في وضع السكون</translation>
    </message>
    <message>
        <source>The computer cannot hibernate</source>
        <translation>تعذّر إدخال الحاسوب في وضع الإسبات</translation>
    </message>
    <message>
        <source>The computer cannot be restarted</source>
        <translation>تعذّرت إعادة تشغيل الحاسوب</translation>
    </message>
    <message>
        <source>The computer cannot be shut down</source>
        <translation>تعذّر إيقاف تشغيل الحاسوب</translation>
    </message>
    <message>
        <source>The computer does not go to sleep</source>
        <translation>لن يدخل الحاسوب وضع السكون</translation>
    </message>
    <message>
        <source>The computer does not hibernate</source>
        <translation>لن يدخل الحاسوب وضع الإسبات</translation>
    </message>
    <message>
        <source>The computer is not restarted</source>
        <translation>لن يُعاد تشغيل الحاسوب</translation>
    </message>
    <message>
        <source>The computer is not shut down</source>
        <translation>لن يُوقف تشغيل الحاسوب</translation>
    </message>
    <message>
        <source>%1 starts at %2.</source>
        <translation>يبدأ %1 في %2.</translation>
    </message>
    <message>
        <source>%1 is about to be recorded</source>
        <translation>سيبدأ تسجيل %1 قريبًا</translation>
    </message>
    <message>
        <source>The recording starts at %1.</source>
        <translation>يبدأ التسجيل في %1.</translation>
    </message>
    <message>
        <source>%1 is being recorded</source>
        <translation>يجري تسجيل %1</translation>
    </message>
    <message>
        <source>Your recording ends in a moment</source>
        <translation>سينتهي تسجيلك بعد لحظات</translation>
    </message>
    <message>
        <source>%1 waits for its screen</source>
        <translation>ينتظر %1 شاشته</translation>
    </message>
    <message>
        <source>It is recorded as soon as the screen is connected.</source>
        <translation>سيبدأ التسجيل فور توصيل الشاشة.</translation>
    </message>
    <message>
        <source>%1 does not start</source>
        <translation>لن يبدأ %1</translation>
    </message>
    <message>
        <source>The disk is full: %1 are free.</source>
        <translation>القرص ممتلئ: المساحة الحرة %1.</translation>
    </message>
    <message>
        <source>The recording is finished.</source>
        <translation>انتهى التسجيل.</translation>
    </message>
    <message>
        <source>There is a problem with %1</source>
        <translation>توجد مشكلة في %1</translation>
    </message>
    <message>
        <source>your recording</source>
        <translation>تسجيلك</translation>
    </message>
    <message>
        <source>The disk may be too small for the scheduled tasks</source>
        <translation>قد لا يتسع القرص للمهام المجدولة</translation>
    </message>
    <message>
        <source>They are likely to need %1, and %2 can be used.</source>
        <translation>من المرجح أن تحتاج إلى %1، والمتاح %2.</translation>
    </message>
    <message>
        <source>The program runs on</source>
        <translation>يواصل التطبيق العمل</translation>
    </message>
    <message>
        <source>Its icon shows the window again. You can change this on the page &quot;General&quot;.</source>
        <translation>أيقونته تعيد إظهار النافذة. يمكنك تغيير ذلك في صفحة ”عام“.</translation>
    </message>
    <message>
        <source>Not everything works on this desktop</source>
        <translation>لا يعمل كل شيء على سطح المكتب هذا</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>تخطي</translation>
    </message>
    <message>
        <source>Keep recording</source>
        <translation>مواصلة التسجيل</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>فتح</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>إظهار في المجلد</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>الآن</translation>
    </message>
    <message>
        <source>The computer goes to sleep in %1</source>
        <translation>يدخل الحاسوب وضع السكون بعد %1</translation>
    </message>
    <message>
        <source>The computer hibernates in %1</source>
        <translation>يدخل الحاسوب وضع الإسبات بعد %1</translation>
    </message>
    <message>
        <source>The computer restarts in %1</source>
        <translation>يُعاد تشغيل الحاسوب بعد %1</translation>
    </message>
    <message>
        <source>The computer shuts down in %1</source>
        <translation>يُوقف تشغيل الحاسوب بعد %1</translation>
    </message>
    <message>
        <source>Your recording</source>
        <translation>تسجيلك</translation>
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
        <translation>بدأ متأخرًا</translation>
    </message>
    <message>
        <source>an earlier part of it broke off</source>
        <translation>انقطع جزء سابق منه</translation>
    </message>
    <message>
        <source>the recorder broke down</source>
        <translation>تعطّل المسجّل</translation>
    </message>
    <message>
        <source>the program ended unexpectedly</source>
        <translation>انتهى التطبيق على نحو غير متوقع</translation>
    </message>
    <message>
        <source>a task was due</source>
        <translation>حان وقت مهمة</translation>
    </message>
    <message>
        <source>the computer was shut down</source>
        <translation>أُوقف تشغيل الحاسوب</translation>
    </message>
    <message>
        <source>the computer was asleep</source>
        <translation>كان الحاسوب في وضع السكون</translation>
    </message>
    <message>
        <source>the program was not running</source>
        <translation>لم يكن التطبيق قيد التشغيل</translation>
    </message>
    <message>
        <source>the schedule was off</source>
        <translation>كان الجدول معطّلًا</translation>
    </message>
    <message>
        <source>the clock was set</source>
        <translation>تغيّر ضبط الساعة</translation>
    </message>
    <message>
        <source>another recording was running</source>
        <translation>كان تسجيل آخر جاريًا</translation>
    </message>
    <message>
        <source>the screen was not connected</source>
        <translation>لم تكن الشاشة متصلة</translation>
    </message>
    <message>
        <source>you skipped it</source>
        <translation>لقد تخطيته</translation>
    </message>
    <message>
        <source>the recorder is not installed</source>
        <translation>المسجّل غير مثبّت</translation>
    </message>
    <message>
        <source>the disk was nearly full</source>
        <translation>كاد القرص يمتلئ</translation>
    </message>
    <message>
        <source>the disk was full</source>
        <translation>امتلأ القرص</translation>
    </message>
    <message>
        <source>the display was gone</source>
        <translation>انقطع الاتصال بالعرض</translation>
    </message>
    <message>
        <source>the program was ended</source>
        <translation>أُنهي التطبيق</translation>
    </message>
    <message>
        <source>the file existed already</source>
        <translation>كان الملف موجودًا بالفعل</translation>
    </message>
    <message>
        <source>the folder did not exist</source>
        <translation>لم يكن المجلد موجودًا</translation>
    </message>
    <message>
        <source>the folder could not be written to</source>
        <translation>تعذّرت الكتابة في المجلد</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>لم يسمح سطح المكتب بذلك</translation>
    </message>
    <message>
        <source>no encoder works on this computer</source>
        <translation>لا يعمل أي مرمّز على هذا الحاسوب</translation>
    </message>
    <message>
        <source>nothing was recorded</source>
        <translation>لم يُسجّل شيء</translation>
    </message>
    <message>
        <source>the conversion to MP4 failed</source>
        <translation>فشل التحويل إلى MP4</translation>
    </message>
    <message>
        <source>the recorder reported an error</source>
        <translation>أبلغ المسجّل عن خطأ</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>مكتمل</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>غير مكتمل</translation>
    </message>
    <message>
        <source>Stopped by you</source>
        <translation>أوقفته أنت</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>فائت</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>فشل</translation>
    </message>
    <message>
        <source>Recording now</source>
        <translation>يُسجَّل الآن</translation>
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
        <translation>منطقة الشاشة</translation>
    </message>
    <message>
        <source>Draw the area with the mouse, or move it with the arrow keys and resize it with Shift and the arrow keys. Enter takes it, Escape cancels.</source>
        <translation>ارسم المنطقة بالفأرة، أو حرّكها بمفاتيح الأسهم وغيّر حجمها بمفتاح Shift مع مفاتيح الأسهم. للاعتماد اضغط Enter، وللإلغاء اضغط Escape.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::CalendarLook</name>
    <message>
        <source>Today</source>
        <translation>اليوم</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>إظهار النافذة</translation>
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
        <translation>مجلد التسجيلات (&amp;ج):</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>مجلد التسجيلات</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>استعراض… (&amp;س)</translation>
    </message>
    <message>
        <source>Browse for the folder for recordings</source>
        <translation>استعراض لاختيار مجلد التسجيلات</translation>
    </message>
    <message>
        <source>Enter the full path of a folder.</source>
        <translation>أدخل المسار الكامل لمجلد.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>هذا ملف وليس مجلدًا.</translation>
    </message>
    <message>
        <source>You are not allowed to write into this folder.</source>
        <translation>ليس لديك إذن بالكتابة في هذا المجلد.</translation>
    </message>
    <message>
        <source>The free space of this folder is unknown.</source>
        <translation>المساحة الحرة لهذا المجلد غير معروفة.</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>المساحة الحرة: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>الملفات</translation>
    </message>
    <message>
        <source>Choose where recordings are kept.</source>
        <translation>اختر مكان حفظ التسجيلات.</translation>
    </message>
    <message>
        <source>This folder cannot be created.</source>
        <translation>لا يمكن إنشاء هذا المجلد.</translation>
    </message>
    <message>
        <source>This folder does not exist yet. It will be created with the first recording.</source>
        <translation>هذا المجلد غير موجود بعد. سيُنشأ مع أول تسجيل.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::GeneralPage</name>
    <message>
        <source>In this run: %1 (chosen at the start)</source>
        <translation>في هذا التشغيل: %1 (اختير عند البدء)</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>اللغة (&amp;غ):</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <translation>مثل النظام (%1)</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>السمة (&amp;س):</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>مثل النظام</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتحة</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكنة</translation>
    </message>
    <message>
        <source>&amp;Ask all questions again</source>
        <translation>طرح كل الأسئلة من جديد (&amp;ط)</translation>
    </message>
    <message>
        <source>Open settings &amp;folder</source>
        <translation>فتح مجلد الإعدادات (&amp;ج)</translation>
    </message>
    <message>
        <source>&amp;Open log</source>
        <translation>فتح السجل (&amp;ف)</translation>
    </message>
    <message>
        <source>There is no log of this run.</source>
        <translation>لا يوجد سجل لهذا التشغيل.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>تعذّر الفتح: %1</translation>
    </message>
    <message>
        <source>Some questions are no longer asked.</source>
        <translation>لم تعد بعض الأسئلة تُطرح بناءً على اختيارك.</translation>
    </message>
    <message>
        <source>Every question is asked, for example before a task is deleted.</source>
        <translation>تُطرح كل الأسئلة، مثل السؤال قبل حذف مهمة.</translation>
    </message>
    <message>
        <source>All questions will be asked again</source>
        <translation>تُطرح كل الأسئلة من جديد</translation>
    </message>
    <message>
        <source>When something goes wrong, your settings and the log of this run help to find out why.</source>
        <translation>عند حدوث مشكلة، تساعد إعداداتك وسجل هذا التشغيل على معرفة السبب.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>عام</translation>
    </message>
    <message>
        <source>Choose language and theme.</source>
        <translation>اختر لغة التطبيق ومظهره.</translation>
    </message>
    <message>
        <source>Start &amp;with the desktop</source>
        <translation>البدء مع سطح المكتب (&amp;د)</translation>
    </message>
    <message>
        <source>&amp;Keep running when the window is closed</source>
        <translation>مواصلة العمل عند إغلاق النافذة (&amp;م)</translation>
    </message>
    <message>
        <source>While tasks are pending or a recording runs, the program stays in the tray. Where there is none, its window is minimized.</source>
        <translation>ما دامت هناك مهام منتظرة أو تسجيل جارٍ، يبقى التطبيق في علبة النظام. وإن لم تكن هناك علبة، تُصغَّر نافذته.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::MainWindow</name>
    <message>
        <source>Recording Scheduler</source>
        <translation>مجدول التسجيل</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>صفحات الإعدادات</translation>
    </message>
    <message>
        <source>Your changes are saved again.</source>
        <translation>يجري حفظ تغييراتك مجددًا.</translation>
    </message>
    <message>
        <source>Your changes could not be saved. They will be lost if you close the window now.</source>
        <translation>تعذّر حفظ تغييراتك. ستُفقد إذا أغلقت النافذة الآن.</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>إغلاق على أي حال</translation>
    </message>
    <message>
        <source>The recording that is running will be stopped.</source>
        <translation>سيُوقف التسجيل الجاري.</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) are still to come. They will not be recorded when the program is not running.</source>
        <translation>
            <numerusform>المهام القادمة: %n. لن يجري تسجيلها إذا لم يكن التطبيق قيد التشغيل.</numerusform>
            <numerusform>المهام القادمة: %n. لن يجري تسجيلها إذا لم يكن التطبيق قيد التشغيل.</numerusform>
            <numerusform>المهام القادمة: %n. لن يجري تسجيلها إذا لم يكن التطبيق قيد التشغيل.</numerusform>
            <numerusform>المهام القادمة: %n. لن يجري تسجيلها إذا لم يكن التطبيق قيد التشغيل.</numerusform>
            <numerusform>المهام القادمة: %n. لن يجري تسجيلها إذا لم يكن التطبيق قيد التشغيل.</numerusform>
            <numerusform>المهام القادمة: %n. لن يجري تسجيلها إذا لم يكن التطبيق قيد التشغيل.</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Close notice</source>
        <translation>إغلاق الإشعار</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAnnouncer</name>
    <message>
        <source>Task added: %1</source>
        <translation>أُضيفت المهمة: %1</translation>
    </message>
    <message>
        <source>All tasks deleted</source>
        <translation>حُذفت كل المهام</translation>
    </message>
    <message>
        <source>Task deleted: %1</source>
        <translation>حُذفت المهمة: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAreaTip</name>
    <message>
        <source>No area has been selected yet: all of screen 1 (%1) is recorded. You can select an area on the page &quot;Recording&quot;.</source>
        <translation>لم تُحدَّد أي منطقة بعد: تُسجَّل الشاشة 1 كاملة (%1). يمكنك تحديد منطقة في صفحة ”التسجيل“.</translation>
    </message>
    <message>
        <source>Records %1, the area that is selected on the page &quot;Recording&quot;.</source>
        <translation>تسجّل %1، وهي المنطقة المحددة في صفحة ”التسجيل“.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelNameGuard</name>
    <message>
        <source>A name cannot contain line breaks or other control characters.</source>
        <translation>لا يمكن أن يحتوي الاسم على فواصل أسطر أو محارف تحكم أخرى.</translation>
    </message>
    <message>
        <source>A name cannot contain: %1</source>
        <translation>لا يمكن أن يحتوي الاسم على: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelTaskDetails</name>
    <message>
        <source>This task is over.</source>
        <translation>انقضى وقت هذه المهمة.</translation>
    </message>
    <message>
        <source>Afterwards: %1</source>
        <translation>بعد ذلك: %1</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>تنتهي في %1</translation>
    </message>
    <message>
        <source>Ends on the next day at %1</source>
        <translation>تنتهي في اليوم التالي في %1</translation>
    </message>
    <message>
        <source>Records screen %1, which is not connected</source>
        <translation>تسجّل الشاشة %1، وهي غير متصلة</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>تسجّل: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PictureCard</name>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>الإطارات في الثانية (&amp;ث):</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>الجودة (&amp;ج):</translation>
    </message>
    <message>
        <source>Fil&amp;e format:</source>
        <translation>تنسيق الملف (&amp;ق):</translation>
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
        <translation>تسجيل مؤشر الفأرة (&amp;ف)</translation>
    </message>
    <message>
        <source>Small: about %1 an hour</source>
        <translation>منخفضة: نحو %1 في الساعة</translation>
    </message>
    <message>
        <source>Normal: about %1 an hour</source>
        <translation>عادية: نحو %1 في الساعة</translation>
    </message>
    <message>
        <source>High: about %1 an hour</source>
        <translation>عالية: نحو %1 في الساعة</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingControl</name>
    <message>
        <source>A task is about to start.</source>
        <translation>توشك مهمة أن تبدأ.</translation>
    </message>
    <message>
        <source>The desktop shows no notifications. The page &quot;Recordings&quot; tells what was recorded, and what was not.</source>
        <translation>لا يعرض سطح المكتب إشعارات. تبيّن صفحة ”التسجيلات“ ما سُجّل وما لم يُسجّل.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingFooter</name>
    <message>
        <source>Recording</source>
        <translation>جارٍ التسجيل</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>المدة المسجّلة</translation>
    </message>
    <message>
        <source>End</source>
        <translation>النهاية</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>حجم الملف</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>المساحة الحرة</translation>
    </message>
    <message>
        <source>Dropped frames</source>
        <translation>الإطارات المفقودة</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>بدء التسجيل (&amp;ب)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>إيقاف (&amp;ي)</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>تخطي (&amp;خ)</translation>
    </message>
    <message>
        <source>Skip this task</source>
        <translation>تخطي هذه المهمة</translation>
    </message>
    <message>
        <source>&amp;Keep recording</source>
        <translation>مواصلة التسجيل (&amp;ص)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>إلغاء (&amp;ل)</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>الآن (&amp;ن)</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>حتى %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 حرة</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) dropped</source>
        <translation>
            <numerusform>إطارات مفقودة: %n</numerusform>
            <numerusform>إطارات مفقودة: %n</numerusform>
            <numerusform>إطارات مفقودة: %n</numerusform>
            <numerusform>إطارات مفقودة: %n</numerusform>
            <numerusform>إطارات مفقودة: %n</numerusform>
            <numerusform>إطارات مفقودة: %n</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>استئناف (&amp;ت)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>إيقاف مؤقت (&amp;ت)</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingPage</name>
    <message>
        <source>Recording</source>
        <translation>التسجيل</translation>
    </message>
    <message>
        <source>Choose what is recorded, and how.</source>
        <translation>اختر ما يُسجَّل وكيف.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsModel</name>
    <message>
        <source>the file is gone</source>
        <translation>لم يعد الملف موجودًا</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsPage</name>
    <message>
        <source>Recordings</source>
        <translation>التسجيلات</translation>
    </message>
    <message>
        <source>What was recorded, and what was not.</source>
        <translation>ما سُجّل وما لم يُسجّل.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. Start a recording with the button below, or plan one on the page Schedule; it is listed here then.</source>
        <translation>لم يُسجّل شيء بعد. ابدأ تسجيلًا بالزر أدناه أو خطّط لتسجيل في صفحة ”الجدول“، وسيظهر هنا عندئذ.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>فتح (&amp;ف)</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>إظهار في المجلد (&amp;ج)</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>إصلاح (&amp;ح)</translation>
    </message>
    <message>
        <source>Adds what a crash has kept from the end of the file, so that players can seek in it.</source>
        <translation>يضيف إلى نهاية الملف ما لم يُكتب فيها بسبب عطل، لتتمكن المشغّلات من التنقل فيه.</translation>
    </message>
    <message>
        <source>Move to &amp;trash</source>
        <translation>نقل إلى المهملات (&amp;م)</translation>
    </message>
    <message>
        <source>Remove from &amp;list</source>
        <translation>إزالة من القائمة (&amp;ق)</translation>
    </message>
    <message>
        <source>There is no file of this recording.</source>
        <translation>لا يوجد ملف لهذا التسجيل.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>تعذّر الفتح: ⁦%1⁩</translation>
    </message>
    <message>
        <source>Repairing: %1</source>
        <translation>يجري الإصلاح: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Repaired: %1</source>
        <translation>تم الإصلاح: ⁨%1⁩</translation>
    </message>
    <message>
        <source>%1 could not be repaired</source>
        <translation>تعذّر إصلاح ⁨%1⁩</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; will be moved to the trash. Are you sure?</source>
        <translation>سيُنقل التسجيل ”⁨%1⁩“ إلى المهملات. هل تريد نقله بالتأكيد؟</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will be removed from the list. Are you sure?</source>
        <translation>سيُزال ”⁨%1⁩“ من القائمة. هل تريد إزالته بالتأكيد؟</translation>
    </message>
    <message>
        <source>Move to trash</source>
        <translation>نقل إلى المهملات</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>إزالة</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash</source>
        <translation>تعذّر نقل ⁦%1⁩ إلى المهملات</translation>
    </message>
    <message>
        <source>Removed from the list: %1</source>
        <translation>أُزيل من القائمة: ⁨%1⁩</translation>
    </message>
    <message>
        <source>Moved to the trash: %1</source>
        <translation>نُقل إلى المهملات: ⁨%1⁩</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>الجدول</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>جدول التسجيل</translation>
    </message>
    <message>
        <source>Choose when a recording stops by itself, and which recordings start by themselves.</source>
        <translation>اختر متى يتوقف التسجيل تلقائيًا وأي التسجيلات تبدأ تلقائيًا.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::ScreenshotTour</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>تعذّر إنشاء المجلد %1</translation>
    </message>
    <message>
        <source>cannot reach: %1</source>
        <translation>تعذّر الوصول إلى: %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>تعذّرت كتابة %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundCard</name>
    <message>
        <source>Record the sound of:</source>
        <translation>تسجيل الصوت من:</translation>
    </message>
    <message>
        <source>Sound devices</source>
        <translation>أجهزة الصوت</translation>
    </message>
    <message>
        <source>All sound in one trac&amp;k</source>
        <translation>كل الصوت في مسار واحد (&amp;ك)</translation>
    </message>
    <message>
        <source>Otherwise each device has a track of its own, for editing. Most players play only the first.</source>
        <translation>وإلا يكون لكل جهاز مسار خاص به للتحرير. معظم المشغّلات تشغّل المسار الأول فقط.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceList</name>
    <message>
        <source>Looking for sound devices...</source>
        <translation>يجري البحث عن أجهزة الصوت…</translation>
    </message>
    <message>
        <source>The sound devices of this computer cannot be listed.</source>
        <translation>تعذّر عرض أجهزة الصوت في هذا الحاسوب.</translation>
    </message>
    <message>
        <source>There are no sound devices on this computer.</source>
        <translation>لا توجد أجهزة صوت في هذا الحاسوب.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceRow</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>⁨%1⁩ (غير متصل)</translation>
    </message>
    <message>
        <source>Level of %1</source>
        <translation>مستوى صوت ⁨%1⁩</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SourceCard</name>
    <message>
        <source>Record a s&amp;creen</source>
        <translation>تسجيل شاشة (&amp;ش)</translation>
    </message>
    <message>
        <source>Screen that is recorded</source>
        <translation>الشاشة المسجَّلة</translation>
    </message>
    <message>
        <source>Record the selected &amp;area</source>
        <translation>تسجيل المنطقة المحددة (&amp;م)</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>من اليسار (&amp;ر):</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>من الأعلى (&amp;ا):</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>العرض (&amp;ض):</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>الارتفاع (&amp;ع):</translation>
    </message>
    <message>
        <source>Left edge of the area in pixels</source>
        <translation>الحافة اليسرى للمنطقة بالبكسل</translation>
    </message>
    <message>
        <source>Top edge of the area in pixels</source>
        <translation>الحافة العليا للمنطقة بالبكسل</translation>
    </message>
    <message>
        <source>Width of the area in pixels</source>
        <translation>عرض المنطقة بالبكسل</translation>
    </message>
    <message>
        <source>Height of the area in pixels</source>
        <translation>ارتفاع المنطقة بالبكسل</translation>
    </message>
    <message>
        <source>Choose o&amp;n the screen...</source>
        <translation>تحديد على الشاشة… (&amp;د)</translation>
    </message>
    <message>
        <source>Show &amp;outline</source>
        <translation>إظهار الحدود (&amp;ح)</translation>
    </message>
    <message>
        <source>Screen %1, %2</source>
        <translation>الشاشة %1، %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2، %3</translation>
    </message>
    <message>
        <source>Screen %1 (not connected)</source>
        <translation>الشاشة %1 (غير متصلة)</translation>
    </message>
    <message>
        <source>No area has been selected yet: all of screen 1 is recorded instead, also by tasks with &quot;Selected area&quot;.</source>
        <translation>لم تُحدَّد أي منطقة بعد: تُسجَّل بدلًا منها الشاشة 1 كاملة، وكذلك في مهام ”منطقة محددة“.</translation>
    </message>
    <message>
        <source>Tasks with &quot;Selected area&quot; record this area, too.</source>
        <translation>مهام ”منطقة محددة“ تسجّل هذه المنطقة أيضًا.</translation>
    </message>
    <message>
        <source>The screen that is to be recorded is not connected.</source>
        <translation>الشاشة المطلوب تسجيلها غير متصلة.</translation>
    </message>
    <message>
        <source>The selected area is not on any screen.</source>
        <translation>المنطقة المحددة ليست على أي شاشة.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrayIcon</name>
    <message>
        <source>&amp;Start recording</source>
        <translation>بدء التسجيل (&amp;ب)</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>إيقاف (&amp;ي)</translation>
    </message>
    <message>
        <source>Show &amp;window</source>
        <translation>إظهار النافذة (&amp;ظ)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>إنهاء (&amp;ه)</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>لا يوجد تسجيل جارٍ</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>متوقف مؤقتًا</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>جارٍ التسجيل</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>استئناف (&amp;س)</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>إيقاف مؤقت (&amp;م)</translation>
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
        <translation>شاهد واسمع كيف يكون التسجيل بهذه الإعدادات.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Try fi&amp;ve seconds</source>
        <translation>تجربة خمس ثوانٍ (&amp;س)</translation>
    </message>
    <message>
        <source>Trial recording</source>
        <translation>تسجيل تجريبي</translation>
    </message>
    <message>
        <source>The trial recording was cancelled.</source>
        <translation>أُلغي التسجيل التجريبي.</translation>
    </message>
    <message>
        <source>The trial recording was made, but there is no program that opens it: %1</source>
        <translation>أُجري التسجيل التجريبي، لكن لا يوجد برنامج يفتحه: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened. The recorder says: %1</source>
        <translation>أُجري التسجيل التجريبي وفُتح. يقول المسجّل: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened.</source>
        <translation>أُجري التسجيل التجريبي وفُتح.</translation>
    </message>
    <message>
        <source>The recorder px-recorder cannot be started. Is it installed completely?</source>
        <translation>تعذّر تشغيل المسجّل px-recorder. هل هو مثبّت بالكامل؟</translation>
    </message>
    <message>
        <source>Nothing could be recorded. The recorder says: %1</source>
        <translation>تعذّر تسجيل أي شيء. يقول المسجّل: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::Inhibitors</name>
    <message>
        <source>The computer cannot be kept from going to sleep while it records.</source>
        <translation>لا يمكن منع الحاسوب من دخول وضع السكون أثناء التسجيل.</translation>
    </message>
    <message>
        <source>The computer cannot be kept from being shut down before the file is closed.</source>
        <translation>لا يمكن منع إيقاف تشغيل الحاسوب قبل إغلاق الملف.</translation>
    </message>
    <message>
        <source>The screen cannot be kept from going dark while it is recorded.</source>
        <translation>لا يمكن منع إظلام الشاشة أثناء تسجيلها.</translation>
    </message>
    <message>
        <source>A recording is running.</source>
        <translation>هناك تسجيل جارٍ.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecorderProcess</name>
    <message>
        <source>%1 is of another version</source>
        <translation>إصدار ⁦%1⁩ مختلف</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>تعذّر تشغيل ⁦%1⁩: %2</translation>
    </message>
    <message>
        <source>The recorder crashed (signal %1).</source>
        <translation>انهار المسجّل (الإشارة %1).</translation>
    </message>
    <message>
        <source>The recorder ended unexpectedly (exit status %1).</source>
        <translation>انتهى المسجّل على نحو غير متوقع (رمز الخروج %1).</translation>
    </message>
    <message>
        <source>The recorder did not start in time.</source>
        <translation>لم يبدأ المسجّل في الوقت المحدد.</translation>
    </message>
    <message>
        <source>The recorder stopped responding.</source>
        <translation>توقف المسجّل عن الاستجابة.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecordingsList</name>
    <message>
        <source>The list of recordings %1 cannot be read: %2</source>
        <translation>تعذّرت قراءة قائمة التسجيلات ⁦%1⁩: %2</translation>
    </message>
    <message>
        <source>The list of recordings %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>قائمة التسجيلات ⁦%1⁩ تالفة ولا يمكن الاحتفاظ بها باسم آخر: %2</translation>
    </message>
    <message>
        <source>Some entries of the list of recordings could not be used. What the file held is kept in %1.</source>
        <translation>تعذّر استخدام بعض مدخلات قائمة التسجيلات. محتوى الملف محفوظ في ⁦%1⁩.</translation>
    </message>
    <message>
        <source>The list of recordings could not be understood, so it begins anew. What it held is kept in %1.</source>
        <translation>تعذّر فهم قائمة التسجيلات، لذلك تبدأ من جديد. محتواها محفوظ في ⁦%1⁩.</translation>
    </message>
    <message>
        <source>%1: the list of recordings is not saved in %2</source>
        <translation>%1: لم تُحفظ قائمة التسجيلات في ⁦%2⁩</translation>
    </message>
</context>
</TS>
