<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
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
        <translation>تسجّل المنطقة المختارة في الإعدادات، أو الشاشة الأولى كاملة إن لم تُختر أي منطقة.</translation>
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
</TS>
