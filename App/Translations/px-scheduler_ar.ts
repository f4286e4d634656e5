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
</context>
<context>
    <name>CaptureControllerWrapper</name>
    <message>
        <source>Could not start recording because there is not enough disk space. Free more disk space and try again. Or set a different disk drive for storing output videos in %1File Preferences%2. </source>
        <translation>تعذّر بدء التسجيل لعدم توفر مساحة كافية على القرص. حرّر مساحة على القرص وأعد المحاولة، أو اختر محرك أقراص آخر لحفظ التسجيلات في %1إعدادات الملفات%2.</translation>
    </message>
    <message>
        <source>File Preferences</source>
        <translation>إعدادات الملفات</translation>
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
</context>
<context>
    <name>CreateRecordTaskWidget</name>
    <message>
        <source>New record:</source>
        <translation>تسجيل جديد:</translation>
    </message>
    <message>
        <source>Action on finish:</source>
        <translation>الإجراء عند الانتهاء (&amp;ع):</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>إنشاء</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>رجوع</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>اسم الملف (&amp;س):</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>التاريخ (&amp;ا):</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>dd/MM/yyyy</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>الوقت (&amp;و):</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>المدة (&amp;م):</translation>
    </message>
    <message>
        <source>Capture:</source>
        <translation>الالتقاط:</translation>
    </message>
    <message>
        <source>Selected area</source>
        <translation>منطقة محددة</translation>
    </message>
    <message>
        <source>Selected area tooltip</source>
        <translation>تسجّل المنطقة المختارة في الإعدادات، أو الشاشة الأولى كاملة إن لم تُختر أي منطقة.
هذا الإصدار لا يسجّل بعد.</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>ملء الشاشة</translation>
    </message>
    <message>
        <source>Need select task name</source>
        <translation>أدخل اسمًا للمهمة.</translation>
    </message>
    <message>
        <source>Task with this title already exist</source>
        <translation>توجد مهمة بهذا الاسم بالفعل.</translation>
    </message>
    <message>
        <source>Curent capture time intersect with other capture time in the list</source>
        <translation>يتداخل وقت هذا التسجيل مع تسجيل آخر في القائمة.</translation>
    </message>
</context>
<context>
    <name>PowerAction</name>
    <message>
        <source>Do nothing</source>
        <translation>عدم القيام بشيء</translation>
    </message>
    <message>
        <source>Quit the application</source>
        <translation>إنهاء التطبيق</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>سكون</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>إسبات</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>إعادة التشغيل</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>إيقاف التشغيل</translation>
    </message>
</context>
<context>
    <name>RecordSchedulerWidget</name>
    <message>
        <source>All tasks will be permanently deleted from the recording schedule. Are you sure you want to continue?</source>
        <translation>ستُحذف كل المهام نهائيًا من جدول التسجيل. هل تريد المتابعة بالتأكيد؟</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>متابعة</translation>
    </message>
    <message>
        <source>The task hasn&apos;t been saved. Would you like to add this task to the recording schedule?</source>
        <translation>لم تُحفظ المهمة. هل تريد إضافتها إلى جدول التسجيل؟</translation>
    </message>
    <message>
        <source>Don&apos;t Add</source>
        <translation>عدم الإضافة</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>Do not schedule capture</source>
        <translation>عدم جدولة التسجيل (&amp;ج)</translation>
    </message>
    <message>
        <source>Stop capture after</source>
        <translation>إيقاف التسجيل بعد (&amp;ق)</translation>
    </message>
    <message>
        <source>Record on schedule</source>
        <translation>التسجيل وفق جدول (&amp;ف)</translation>
    </message>
    <message>
        <source>Add record event</source>
        <translation>إضافة تسجيل</translation>
    </message>
    <message>
        <source>Capture duration in limited capture:</source>
        <translation>مدة التسجيل (&amp;م):</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>When capture ends:</source>
        <translation>عند انتهاء التسجيل (&amp;ع):</translation>
    </message>
</context>
<context>
    <name>ScheduleRecordTableWidget</name>
    <message>
        <source>Task </source>
        <translation>مهمة </translation>
    </message>
    <message>
        <source>File name</source>
        <translation>اسم الملف</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>الوقت</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>المدة</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>dd/MM/yyyy</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>The task will be permanently deleted from the recording schedule. Are you sure you want to delete the task?</source>
        <translation>ستُحذف المهمة نهائيًا من جدول التسجيل. هل تريد حذفها بالتأكيد؟</translation>
    </message>
    <message>
        <source>Always delete</source>
        <translation>الحذف دائمًا</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The settings file %1 is not a file.</source>
        <translation>ملف الإعدادات ⁦%1⁩ ليس ملفًا.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder is missing and cannot be created either.</source>
        <translation>تعذّر إنشاء ملف الإعدادات ⁦%1⁩: مجلده غير موجود ولا يمكن إنشاؤه أيضًا.</translation>
    </message>
    <message>
        <source>The settings file %1 is in use by another process.</source>
        <translation>ملف الإعدادات ⁦%1⁩ قيد الاستخدام من عملية أخرى.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder cannot be written to.</source>
        <translation>تعذّر إنشاء ملف الإعدادات ⁦%1⁩: لا يمكن الكتابة في مجلده.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <translation>تعذّرت قراءة ملف الإعدادات ⁦%1⁩: %2</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>ملف الإعدادات ⁦%1⁩ تالف ولا يمكن الاحتفاظ به باسم آخر: %2</translation>
    </message>
    <message>
        <source>The settings file could not be understood, so the defaults are in use. What it held is kept in %1.</source>
        <translation>تعذّر فهم ملف الإعدادات، لذلك تُستخدم القيم الافتراضية. محتوى الملف محفوظ في ⁦%1⁩.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. Tasks left out: %2. What the file held is kept in %1.</source>
        <translation>تعذّر استخدام بعض الإعدادات. المهام المتروكة: %2. محتوى الملف محفوظ في ⁦%1⁩.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. What the file held is kept in %1.</source>
        <translation>تعذّر استخدام بعض الإعدادات. محتوى الملف محفوظ في ⁦%1⁩.</translation>
    </message>
    <message>
        <source>Another program has changed the settings file. Its version is kept in %1; the settings shown here stay in use.</source>
        <translation>غيّر برنامج آخر ملف الإعدادات. نسخته محفوظة في ⁦%1⁩؛ وتبقى الإعدادات المعروضة هنا مستخدمة.</translation>
    </message>
    <message>
        <source>Only a part of the file could be read</source>
        <translation>لم يُقرأ سوى جزء من الملف</translation>
    </message>
    <message>
        <source>%2: your changes are not saved in %1</source>
        <translation>%2: لم تُحفظ تغييراتك في ⁦%1⁩</translation>
    </message>
    <message>
        <source>The file is in use by another process</source>
        <translation>الملف قيد الاستخدام من عملية أخرى</translation>
    </message>
    <message>
        <source>The folder cannot be written to</source>
        <translation>لا يمكن الكتابة في المجلد</translation>
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
        <source>Ready to record</source>
        <translation>جاهز للتسجيل</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>بدء التسجيل (&amp;ب)</translation>
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
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>الجدول</translation>
    </message>
    <message>
        <source>Choose when a recording stops or starts by itself. Your choice is kept; this version does not record yet.</source>
        <translation>اختر متى يتوقف التسجيل أو يبدأ تلقائيًا. يُحتفظ باختيارك، لكن هذا الإصدار لا يسجّل بعد.</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>جدول التسجيل</translation>
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
</TS>
