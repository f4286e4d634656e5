<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>Application</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>cannot copy the settings file %1: %2</source>
        <translation>ayar dosyası %1 kopyalanamıyor: %2</translation>
    </message>
</context>
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
    <name>CommandLine</name>
    <message>
        <source>Keep the settings in &lt;file&gt; instead of the platform&apos;s configuration folder.</source>
        <translation>Ayarları sistemin yapılandırma klasörü yerine &lt;file&gt; dosyasında tut.</translation>
    </message>
    <message>
        <source>Use &lt;language&gt; in this run, for example de or pt_BR.</source>
        <translation>Bu çalıştırmada &lt;language&gt; dilini kullan; örneğin de veya pt_BR.</translation>
    </message>
    <message>
        <source>Use the theme light or dark in this run.</source>
        <translation>Bu çalıştırmada light veya dark temasını kullan.</translation>
    </message>
    <message>
        <source>Walk through the window on a copy of the settings (of a sample without --settings), write a picture of each state into &lt;folder&gt;, and end.</source>
        <translation>Ayarların bir kopyasıyla (--settings yoksa bir örnekle) pencereyi gez, her durumun görüntüsünü &lt;folder&gt; klasörüne yaz ve bitir.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Bu yardımı göster.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Sürümü göster.</translation>
    </message>
    <message>
        <source>%1: %2 (try --help)</source>
        <translation>%1: %2 (--help deneyin)</translation>
    </message>
    <message>
        <source>option --%1 needs a value</source>
        <translation>--%1 seçeneği bir değer ister</translation>
    </message>
    <message>
        <source>unexpected argument &apos;%1&apos;</source>
        <translation>beklenmeyen bağımsız değişken “%1”</translation>
    </message>
    <message>
        <source>unknown theme &apos;%1&apos;; the themes are light and dark</source>
        <translation>bilinmeyen tema “%1”; temalar light ve dark</translation>
    </message>
    <message>
        <source>unknown language &apos;%1&apos;; the languages are %2</source>
        <translation>bilinmeyen dil “%1”; diller: %2</translation>
    </message>
    <message>
        <source>Choose how screen recordings are timed.</source>
        <translation>Ekran kayıtlarının ne zaman başlayıp biteceğini seçin.</translation>
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
        <translation>Ayarlarda seçilen alanı, seçilmemişse ilk ekranın tamamını kaydeder.
Bu sürüm henüz kayıt yapmıyor.</translation>
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
<context>
    <name>Zentor::Desktop::CalendarLook</name>
    <message>
        <source>Today</source>
        <translation>Bugün</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::FilesPage</name>
    <message>
        <source>&amp;Folder for recordings:</source>
        <translation>Kayıt &amp;klasörü:</translation>
    </message>
    <message>
        <source>Folder for recordings</source>
        <translation>Kayıt klasörü</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Gözat…</translation>
    </message>
    <message>
        <source>Browse for the folder for recordings</source>
        <translation>Kayıt klasörünü seç</translation>
    </message>
    <message>
        <source>Enter the full path of a folder.</source>
        <translation>Bir klasörün tam yolunu girin.</translation>
    </message>
    <message>
        <source>This is a file, not a folder.</source>
        <translation>Bu bir klasör değil, dosya.</translation>
    </message>
    <message>
        <source>You are not allowed to write into this folder.</source>
        <translation>Bu klasöre yazma izniniz yok.</translation>
    </message>
    <message>
        <source>The free space of this folder is unknown.</source>
        <translation>Bu klasörün boş alanı bilinmiyor.</translation>
    </message>
    <message>
        <source>Free space: %1</source>
        <translation>Boş alan: %1</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dosyalar</translation>
    </message>
    <message>
        <source>Choose where recordings are kept.</source>
        <translation>Kayıtların nerede saklanacağını seçin.</translation>
    </message>
    <message>
        <source>This folder cannot be created.</source>
        <translation>Bu klasör oluşturulamıyor.</translation>
    </message>
    <message>
        <source>This folder does not exist yet. It will be created with the first recording.</source>
        <translation>Bu klasör henüz yok. İlk kayıtla birlikte oluşturulacak.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::GeneralPage</name>
    <message>
        <source>In this run: %1 (chosen at the start)</source>
        <translation>Bu çalıştırmada: %1 (başlangıçta seçildi)</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Dil:</translation>
    </message>
    <message>
        <source>System default (%1)</source>
        <translation>Sistemdeki gibi (%1)</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Tema:</translation>
    </message>
    <message>
        <source>System default</source>
        <translation>Sistemdeki gibi</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Açık</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Koyu</translation>
    </message>
    <message>
        <source>&amp;Ask all questions again</source>
        <translation>Tüm soruları &amp;yeniden sor</translation>
    </message>
    <message>
        <source>Open settings &amp;folder</source>
        <translation>Ayar &amp;klasörünü aç</translation>
    </message>
    <message>
        <source>&amp;Open log</source>
        <translation>&amp;Günlüğü aç</translation>
    </message>
    <message>
        <source>There is no log of this run.</source>
        <translation>Bu çalıştırmanın günlüğü yok.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Bu açılamıyor: %1</translation>
    </message>
    <message>
        <source>Some questions are no longer asked.</source>
        <translation>Seçiminiz gereği bazı sorular artık sorulmuyor.</translation>
    </message>
    <message>
        <source>Every question is asked, for example before a task is deleted.</source>
        <translation>Bir görev silinmeden önceki gibi tüm sorular sorulur.</translation>
    </message>
    <message>
        <source>All questions will be asked again</source>
        <translation>Tüm sorular yeniden soruluyor</translation>
    </message>
    <message>
        <source>When something goes wrong, your settings and the log of this run help to find out why.</source>
        <translation>Bir sorun olursa ayarlarınız ve bu çalıştırmanın günlüğü nedenini bulmaya yardımcı olur.</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Genel</translation>
    </message>
    <message>
        <source>Choose language and theme.</source>
        <translation>Uygulamanın dilini ve görünümünü seçin.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::MainWindow</name>
    <message>
        <source>Recording Scheduler</source>
        <translation>Kayıt Zamanlayıcı</translation>
    </message>
    <message>
        <source>Settings pages</source>
        <translation>Ayar sayfaları</translation>
    </message>
    <message>
        <source>Your changes are saved again.</source>
        <translation>Değişiklikleriniz yeniden kaydediliyor.</translation>
    </message>
    <message>
        <source>Your changes could not be saved. They will be lost if you close the window now.</source>
        <translation>Değişiklikleriniz kaydedilemedi. Pencereyi şimdi kapatırsanız kaybolacaklar.</translation>
    </message>
    <message>
        <source>Close anyway</source>
        <translation>Yine de kapat</translation>
    </message>
    <message>
        <source>Ready to record</source>
        <translation>Kayda hazır</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>Kaydı &amp;başlat</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::NoticeBar</name>
    <message>
        <source>Close</source>
        <translation>Kapat</translation>
    </message>
    <message>
        <source>Close notice</source>
        <translation>Bildirimi kapat</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelAnnouncer</name>
    <message>
        <source>Task added: %1</source>
        <translation>Görev eklendi: %1</translation>
    </message>
    <message>
        <source>All tasks deleted</source>
        <translation>Tüm görevler silindi</translation>
    </message>
    <message>
        <source>Task deleted: %1</source>
        <translation>Görev silindi: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelNameGuard</name>
    <message>
        <source>A name cannot contain line breaks or other control characters.</source>
        <translation>Bir ad, satır sonu veya başka denetim karakterleri içeremez.</translation>
    </message>
    <message>
        <source>A name cannot contain: %1</source>
        <translation>Bir ad şunları içeremez: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::PanelTaskDetails</name>
    <message>
        <source>This task is over.</source>
        <translation>Bu görevin zamanı geçti.</translation>
    </message>
    <message>
        <source>Afterwards: %1</source>
        <translation>Sonra: %1</translation>
    </message>
    <message>
        <source>Ends at %1</source>
        <translation>Bitiş: %1</translation>
    </message>
    <message>
        <source>Ends on the next day at %1</source>
        <translation>Bitiş: ertesi gün %1</translation>
    </message>
    <message>
        <source>Records screen %1, which is not connected</source>
        <translation>Bağlı olmayan %1. ekranı kaydeder</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Kaydedilen: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Takvim</translation>
    </message>
    <message>
        <source>Choose when a recording stops or starts by itself. Your choice is kept; this version does not record yet.</source>
        <translation>Bir kaydın ne zaman kendiliğinden duracağını veya başlayacağını seçin. Seçiminiz saklanır; bu sürüm henüz kayıt yapmıyor.</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Kayıt takvimi</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::ScreenshotTour</name>
    <message>
        <source>cannot create the folder %1</source>
        <translation>%1 klasörü oluşturulamıyor</translation>
    </message>
    <message>
        <source>cannot reach: %1</source>
        <translation>ulaşılamıyor: %1</translation>
    </message>
    <message>
        <source>cannot write %1</source>
        <translation>%1 yazılamıyor</translation>
    </message>
</context>
</TS>
