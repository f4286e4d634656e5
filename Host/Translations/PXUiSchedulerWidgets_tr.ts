<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>CaptureControllerWrapper</name>
    <message>
        <source>Could not start recording because there is not enough disk space. Free more disk space and try again. Or set a different disk drive for storing output videos in %1File Preferences%2. </source>
        <translation>Yeterli disk alanı olmadığı için kayıt başlatılamadı. Disk alanı boşaltıp yeniden deneyin veya %1Dosya ayarları%2 bölümünde kayıtlarınız için başka bir sürücü seçin.</translation>
    </message>
    <message>
        <source>File Preferences</source>
        <translation>Dosya ayarları</translation>
    </message>
</context>
<context>
    <name>CreateRecordTaskWidget</name>
    <message>
        <source>New record:</source>
        <translation>Yeni kayıt:</translation>
    </message>
    <message>
        <source>Action on finish:</source>
        <translation>Bitince &amp;yapılacak:</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>Oluştur</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Geri</translation>
    </message>
    <message>
        <source>File name:</source>
        <translation>Dosya &amp;adı:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>&amp;Tarih:</translation>
    </message>
    <message>
        <source>dd.MM.yyyy</source>
        <translation>dd.MM.yyyy</translation>
    </message>
    <message>
        <source>Time:</source>
        <translation>&amp;Saat:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>Duration:</source>
        <translation>Sü&amp;re:</translation>
    </message>
    <message>
        <source>Capture:</source>
        <translation>Kaydedilecek:</translation>
    </message>
    <message>
        <source>Selected area</source>
        <translation>Seçilen alan</translation>
    </message>
    <message>
        <source>Selected area tooltip</source>
        <translation>Ayarlarda seçilen alanı, seçilmemişse ilk ekranın tamamını kaydeder.</translation>
    </message>
    <message>
        <source>Fullscreen</source>
        <translation>Tam ekran</translation>
    </message>
    <message>
        <source>Need select task name</source>
        <translation>Görev için bir ad girin.</translation>
    </message>
    <message>
        <source>Task with this title already exist</source>
        <translation>Bu adda bir görev zaten var.</translation>
    </message>
    <message>
        <source>Curent capture time intersect with other capture time in the list</source>
        <translation>Bu kaydın zamanı listedeki başka bir kayıtla çakışıyor.</translation>
    </message>
</context>
<context>
    <name>PowerAction</name>
    <message>
        <source>Do nothing</source>
        <translation>Hiçbir şey yapma</translation>
    </message>
    <message>
        <source>Quit the application</source>
        <translation>Uygulamadan çık</translation>
    </message>
    <message>
        <source>Sleep</source>
        <translation>Uyku</translation>
    </message>
    <message>
        <source>Hibernate</source>
        <translation>Hazırda beklet</translation>
    </message>
    <message>
        <source>Restart</source>
        <translation>Yeniden başlat</translation>
    </message>
    <message>
        <source>Shut down</source>
        <translation>Kapat</translation>
    </message>
</context>
<context>
    <name>RecordSchedulerWidget</name>
    <message>
        <source>All tasks will be permanently deleted from the recording schedule. Are you sure you want to continue?</source>
        <translation>Tüm görevler kayıt takviminden kalıcı olarak silinecek. Devam etmek istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Devam et</translation>
    </message>
    <message>
        <source>The task hasn&apos;t been saved. Would you like to add this task to the recording schedule?</source>
        <translation>Görev kaydedilmedi. Bu görevi kayıt takvimine eklemek ister misiniz?</translation>
    </message>
    <message>
        <source>Don&apos;t Add</source>
        <translation>Ekleme</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ekle</translation>
    </message>
    <message>
        <source>Do not schedule capture</source>
        <translation>Kaydı &amp;zamanlama</translation>
    </message>
    <message>
        <source>Stop capture after</source>
        <translation>Kaydı şu süre sonunda &amp;durdur</translation>
    </message>
    <message>
        <source>Record on schedule</source>
        <translation>Takvime göre &amp;kaydet</translation>
    </message>
    <message>
        <source>Add record event</source>
        <translation>Kayıt ekle</translation>
    </message>
    <message>
        <source>Capture duration in limited capture:</source>
        <translation>Kayıt &amp;süresi:</translation>
    </message>
    <message>
        <source>hh:mm:ss</source>
        <translation>hh:mm:ss</translation>
    </message>
    <message>
        <source>When capture ends:</source>
        <translation>Kayıt bitti&amp;ğinde:</translation>
    </message>
</context>
<context>
    <name>ScheduleRecordTableWidget</name>
    <message>
        <source>Task </source>
        <translation>Görev </translation>
    </message>
    <message>
        <source>File name</source>
        <translation>Dosya adı</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Saat</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Süre</translation>
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
        <translation>Sil</translation>
    </message>
    <message>
        <source>The task will be permanently deleted from the recording schedule. Are you sure you want to delete the task?</source>
        <translation>Görev kayıt takviminden kalıcı olarak silinecek. Görevi silmek istediğinizden emin misiniz?</translation>
    </message>
    <message>
        <source>Always delete</source>
        <translation>Her zaman sil</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The settings file %1 is not a file.</source>
        <translation>%1 ayar dosyası bir dosya değil.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder is missing and cannot be created either.</source>
        <translation>%1 ayar dosyası oluşturulamıyor: klasörü yok ve o da oluşturulamıyor.</translation>
    </message>
    <message>
        <source>The settings file %1 is in use by another process.</source>
        <translation>%1 ayar dosyası başka bir işlem tarafından kullanılıyor.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be created: its folder cannot be written to.</source>
        <translation>%1 ayar dosyası oluşturulamıyor: klasörüne yazılamıyor.</translation>
    </message>
    <message>
        <source>The settings file %1 cannot be read: %2</source>
        <translation>%1 ayar dosyası okunamıyor: %2</translation>
    </message>
    <message>
        <source>The settings file %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>%1 ayar dosyası hasarlı ve başka bir adla saklanamıyor: %2</translation>
    </message>
    <message>
        <source>The settings file could not be understood, so the defaults are in use. What it held is kept in %1.</source>
        <translation>Ayar dosyası anlaşılamadı, bu yüzden varsayılanlar kullanılıyor. Dosyanın içeriği şurada saklanıyor: %1.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. Tasks left out: %2. What the file held is kept in %1.</source>
        <translation>Ayarların bir bölümü kullanılamadı. Atlanan görevler: %2. Dosyanın içeriği şurada saklanıyor: %1.</translation>
    </message>
    <message>
        <source>Some of the settings could not be used. What the file held is kept in %1.</source>
        <translation>Ayarların bir bölümü kullanılamadı. Dosyanın içeriği şurada saklanıyor: %1.</translation>
    </message>
    <message>
        <source>Another program has changed the settings file. Its version is kept in %1; the settings shown here stay in use.</source>
        <translation>Başka bir program ayar dosyasını değiştirdi. Onun sürümü şurada saklanıyor: %1. Burada gösterilen ayarlar kullanılmaya devam ediyor.</translation>
    </message>
    <message>
        <source>Only a part of the file could be read</source>
        <translation>Dosyanın yalnızca bir bölümü okunabildi</translation>
    </message>
    <message>
        <source>%2: your changes are not saved in %1</source>
        <translation>%2: değişiklikleriniz %1 içine kaydedilmedi</translation>
    </message>
    <message>
        <source>The file is in use by another process</source>
        <translation>Dosya başka bir işlem tarafından kullanılıyor</translation>
    </message>
    <message>
        <source>The folder cannot be written to</source>
        <translation>Klasöre yazılamıyor</translation>
    </message>
</context>
</TS>
