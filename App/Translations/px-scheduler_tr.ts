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
    <message>
        <source>the program does not run on these settings</source>
        <translation>program bu ayarlarla çalışmıyor</translation>
    </message>
</context>
<context>
    <name>AutostartEntry</name>
    <message>
        <source>Cannot delete %1</source>
        <translation>Bu silinemiyor: %1</translation>
    </message>
    <message>
        <source>Cannot write %1</source>
        <translation>Bu yazılamıyor: %1</translation>
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
    <message>
        <source>Start recording, in the program that runs already if there is one.</source>
        <translation>Kaydı başlat; zaten çalışan bir program varsa onda.</translation>
    </message>
    <message>
        <source>Stop the recording of the program that runs already.</source>
        <translation>Zaten çalışan programın kaydını durdur.</translation>
    </message>
    <message>
        <source>Pause the recording of the program that runs already, or go on with it.</source>
        <translation>Zaten çalışan programın kaydını duraklat veya kayda devam et.</translation>
    </message>
    <message>
        <source>End the program that runs already, without a question.</source>
        <translation>Zaten çalışan programı soru sormadan bitir.</translation>
    </message>
    <message>
        <source>Start without a window.</source>
        <translation>Penceresiz başlat.</translation>
    </message>
    <message>
        <source>options --%1 and --%2 cannot be used together</source>
        <translation>--%1 ve --%2 seçenekleri birlikte kullanılamaz</translation>
    </message>
</context>
<context>
    <name>DurationText</name>
    <message>
        <source>%1 s</source>
        <translation>%1 sn</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 dk</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 sa %2 dk</translation>
    </message>
</context>
<context>
    <name>FooterState</name>
    <message>
        <source>Next: %1, as soon as possible</source>
        <translation>Sıradaki: %1, en kısa sürede</translation>
    </message>
    <message>
        <source>Next: %1 on %2</source>
        <translation>Sıradaki: %1, %2</translation>
    </message>
    <message>
        <source>Next: %1 in %2</source>
        <translation>Sıradaki: %1, %2 sonra</translation>
    </message>
    <message>
        <source>The recording starts</source>
        <translation>Kayıt başlıyor</translation>
    </message>
    <message>
        <source>%1 is about to start</source>
        <translation>%1 birazdan başlıyor</translation>
    </message>
    <message>
        <source>%1 starts in %2</source>
        <translation>%1, %2 sonra başlıyor</translation>
    </message>
    <message>
        <source>%1 starts when this recording has ended</source>
        <translation>%1 bu kayıt bitince başlayacak</translation>
    </message>
    <message>
        <source>This recording will end for %1</source>
        <translation>Bu kayıt şunun için bitecek: %1</translation>
    </message>
    <message>
        <source>Ends in %1 for %2</source>
        <translation>%1 sonra bitiyor, ardından %2</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Kaydediliyor</translation>
    </message>
    <message>
        <source>Paused: %1</source>
        <translation>Duraklatıldı: %1</translation>
    </message>
    <message>
        <source>Recording: %1</source>
        <translation>Kaydediliyor: %1</translation>
    </message>
    <message>
        <source>%1 is being saved</source>
        <translation>%1 diske yazılıyor</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>%1 has been recorded</source>
        <translation>%1 kaydedildi</translation>
    </message>
    <message>
        <source>%1 has been stopped</source>
        <translation>%1 durduruldu</translation>
    </message>
    <message>
        <source>%1 has been recorded in part</source>
        <translation>%1 kısmen kaydedildi</translation>
    </message>
    <message>
        <source>%1 has not been recorded</source>
        <translation>%1 kaydedilmedi</translation>
    </message>
    <message>
        <source>%1 could not be recorded</source>
        <translation>%1 kaydedilemedi</translation>
    </message>
    <message>
        <source>Reason: %1.</source>
        <translation>Neden: %1.</translation>
    </message>
    <message>
        <source>The file is %1.</source>
        <translation>Dosya: %1.</translation>
    </message>
    <message>
        <source>The rest is recorded into a new file.</source>
        <translation>Kalanı yeni bir dosyaya kaydediliyor.</translation>
    </message>
    <message>
        <source>The computer cannot go to sleep</source>
        <translation>Bilgisayar uykuya geçirilemiyor</translation>
    </message>
    <message>
        <source>The computer cannot hibernate</source>
        <translation>Bilgisayar hazırda bekletilemiyor</translation>
    </message>
    <message>
        <source>The computer cannot be restarted</source>
        <translation>Bilgisayar yeniden başlatılamıyor</translation>
    </message>
    <message>
        <source>The computer cannot be shut down</source>
        <translation>Bilgisayar kapatılamıyor</translation>
    </message>
    <message>
        <source>The computer does not go to sleep</source>
        <translation>Bilgisayar uykuya geçmeyecek</translation>
    </message>
    <message>
        <source>The computer does not hibernate</source>
        <translation>Bilgisayar hazırda bekletilmeyecek</translation>
    </message>
    <message>
        <source>The computer is not restarted</source>
        <translation>Bilgisayar yeniden başlatılmayacak</translation>
    </message>
    <message>
        <source>The computer is not shut down</source>
        <translation>Bilgisayar kapatılmayacak</translation>
    </message>
    <message>
        <source>%1 starts at %2.</source>
        <translation>%1 için başlangıç: %2.</translation>
    </message>
    <message>
        <source>%1 is about to be recorded</source>
        <translation>%1 birazdan kaydedilecek</translation>
    </message>
    <message>
        <source>The recording starts at %1.</source>
        <translation>Kaydın başlangıcı: %1.</translation>
    </message>
    <message>
        <source>%1 is being recorded</source>
        <translation>%1 kaydediliyor</translation>
    </message>
    <message>
        <source>Your recording ends in a moment</source>
        <translation>Kaydınız birazdan bitiyor</translation>
    </message>
    <message>
        <source>%1 waits for its screen</source>
        <translation>%1 ekranını bekliyor</translation>
    </message>
    <message>
        <source>It is recorded as soon as the screen is connected.</source>
        <translation>Ekran bağlanır bağlanmaz kaydedilecek.</translation>
    </message>
    <message>
        <source>%1 does not start</source>
        <translation>%1 başlamıyor</translation>
    </message>
    <message>
        <source>The disk is full: %1 are free.</source>
        <translation>Disk dolu: %1 boş.</translation>
    </message>
    <message>
        <source>The recording is finished.</source>
        <translation>Kayıt bitti.</translation>
    </message>
    <message>
        <source>There is a problem with %1</source>
        <translation>%1: bir sorun var</translation>
    </message>
    <message>
        <source>your recording</source>
        <translation>Kaydınız</translation>
    </message>
    <message>
        <source>The disk may be too small for the scheduled tasks</source>
        <translation>Disk, zamanlanan görevler için yetersiz olabilir</translation>
    </message>
    <message>
        <source>They are likely to need %1, and %2 can be used.</source>
        <translation>Görevler için gereken alan yaklaşık %1, kullanılabilir alan %2.</translation>
    </message>
    <message>
        <source>The program runs on</source>
        <translation>Program çalışmaya devam ediyor</translation>
    </message>
    <message>
        <source>Its icon shows the window again. You can change this on the page &quot;General&quot;.</source>
        <translation>Simgesi pencereyi yeniden gösterir. Bunu “Genel” sayfasında değiştirebilirsiniz.</translation>
    </message>
    <message>
        <source>Not everything works on this desktop</source>
        <translation>Bu masaüstünde her şey çalışmıyor</translation>
    </message>
    <message>
        <source>Skip</source>
        <translation>Atla</translation>
    </message>
    <message>
        <source>Keep recording</source>
        <translation>Kaydı sürdür</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Aç</translation>
    </message>
    <message>
        <source>Show in folder</source>
        <translation>Klasörde göster</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Şimdi</translation>
    </message>
    <message>
        <source>The computer goes to sleep in %1</source>
        <translation>Bilgisayar %1 sonra uykuya geçecek</translation>
    </message>
    <message>
        <source>The computer hibernates in %1</source>
        <translation>Bilgisayar %1 sonra hazırda bekletilecek</translation>
    </message>
    <message>
        <source>The computer restarts in %1</source>
        <translation>Bilgisayar %1 sonra yeniden başlatılacak</translation>
    </message>
    <message>
        <source>The computer shuts down in %1</source>
        <translation>Bilgisayar %1 sonra kapatılacak</translation>
    </message>
    <message>
        <source>Your recording</source>
        <translation>Kaydınız</translation>
    </message>
    <message>
        <source>“%1”</source>
        <translation>“%1”</translation>
    </message>
</context>
<context>
    <name>RecordingTexts</name>
    <message>
        <source>it started late</source>
        <translation>geç başladı</translation>
    </message>
    <message>
        <source>an earlier part of it broke off</source>
        <translation>önceki bir bölümü yarıda kesildi</translation>
    </message>
    <message>
        <source>the recorder broke down</source>
        <translation>kaydedici çöktü</translation>
    </message>
    <message>
        <source>the program ended unexpectedly</source>
        <translation>program beklenmedik biçimde sonlandı</translation>
    </message>
    <message>
        <source>a task was due</source>
        <translation>bir görevin zamanı gelmişti</translation>
    </message>
    <message>
        <source>the computer was shut down</source>
        <translation>bilgisayar kapatıldı</translation>
    </message>
    <message>
        <source>the computer was asleep</source>
        <translation>bilgisayar uykudaydı</translation>
    </message>
    <message>
        <source>the program was not running</source>
        <translation>program çalışmıyordu</translation>
    </message>
    <message>
        <source>the schedule was off</source>
        <translation>takvim kapalıydı</translation>
    </message>
    <message>
        <source>the clock was set</source>
        <translation>saat değiştirildi</translation>
    </message>
    <message>
        <source>another recording was running</source>
        <translation>başka bir kayıt sürüyordu</translation>
    </message>
    <message>
        <source>the screen was not connected</source>
        <translation>ekran bağlı değildi</translation>
    </message>
    <message>
        <source>you skipped it</source>
        <translation>siz atladınız</translation>
    </message>
    <message>
        <source>the recorder is not installed</source>
        <translation>kaydedici kurulu değil</translation>
    </message>
    <message>
        <source>the disk was nearly full</source>
        <translation>disk neredeyse doluydu</translation>
    </message>
    <message>
        <source>the disk was full</source>
        <translation>disk doluydu</translation>
    </message>
    <message>
        <source>the display was gone</source>
        <translation>ekrana erişim kesildi</translation>
    </message>
    <message>
        <source>the program was ended</source>
        <translation>programdan çıkıldı</translation>
    </message>
    <message>
        <source>the file existed already</source>
        <translation>dosya zaten vardı</translation>
    </message>
    <message>
        <source>the folder did not exist</source>
        <translation>klasör yoktu</translation>
    </message>
    <message>
        <source>the folder could not be written to</source>
        <translation>klasöre yazılamadı</translation>
    </message>
    <message>
        <source>the desktop did not allow it</source>
        <translation>masaüstü buna izin vermedi</translation>
    </message>
    <message>
        <source>no encoder works on this computer</source>
        <translation>bu bilgisayarda hiçbir kodlayıcı çalışmıyor</translation>
    </message>
    <message>
        <source>nothing was recorded</source>
        <translation>hiçbir şey kaydedilmedi</translation>
    </message>
    <message>
        <source>the conversion to MP4 failed</source>
        <translation>MP4 biçimine dönüştürülemedi</translation>
    </message>
    <message>
        <source>the recorder reported an error</source>
        <translation>kaydedici bir hata bildirdi</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Tam</translation>
    </message>
    <message>
        <source>Incomplete</source>
        <translation>Eksik</translation>
    </message>
    <message>
        <source>Stopped by you</source>
        <translation>Siz durdurdunuz</translation>
    </message>
    <message>
        <source>Missed</source>
        <translation>Kaçırıldı</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Başarısız</translation>
    </message>
    <message>
        <source>Recording now</source>
        <translation>Şimdi kaydediliyor</translation>
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
        <translation>Ekran alanı</translation>
    </message>
    <message>
        <source>Draw the area with the mouse, or move it with the arrow keys and resize it with Shift and the arrow keys. Enter takes it, Escape cancels.</source>
        <translation>Alanı fareyle çizin veya ok tuşlarıyla taşıyıp Shift ve ok tuşlarıyla boyutlandırın. Enter alanı seçer, Escape iptal eder.</translation>
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
    <name>Zentor::Desktop::DesktopNotices</name>
    <message>
        <source>Show the window</source>
        <translation>Pencereyi göster</translation>
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
    <message>
        <source>Start &amp;with the desktop</source>
        <translation>M&amp;asaüstüyle birlikte başlat</translation>
    </message>
    <message>
        <source>&amp;Keep running when the window is closed</source>
        <translation>Pencere kapatılınca çalışmayı &amp;sürdür</translation>
    </message>
    <message>
        <source>While tasks are pending or a recording runs, the program stays in the tray. Where there is none, its window is minimized.</source>
        <translation>Bekleyen görev varken veya kayıt sürerken program sistem tepsisinde kalır. Sistem tepsisi yoksa penceresi simge durumuna küçültülür.</translation>
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
        <source>The recording that is running will be stopped.</source>
        <translation>Süren kayıt durdurulacak.</translation>
    </message>
    <message numerus="yes">
        <source>%n task(s) are still to come. They will not be recorded when the program is not running.</source>
        <translation>
            <numerusform>Daha %n görev var. Program çalışmazken kaydedilmeyecek.</numerusform>
        </translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
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
    <name>Zentor::Desktop::PanelAreaTip</name>
    <message>
        <source>No area has been selected yet: all of screen 1 (%1) is recorded. You can select an area on the page &quot;Recording&quot;.</source>
        <translation>Henüz bir alan seçilmedi: 1. ekranın tamamı (%1) kaydedilir. “Kayıt” sayfasında bir alan seçebilirsiniz.</translation>
    </message>
    <message>
        <source>Records %1, the area that is selected on the page &quot;Recording&quot;.</source>
        <translation>“Kayıt” sayfasında seçilen alanı kaydeder: %1.</translation>
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
    <name>Zentor::Desktop::PictureCard</name>
    <message>
        <source>&amp;Frames per second:</source>
        <translation>Saniye başına &amp;kare:</translation>
    </message>
    <message>
        <source>&amp;Quality:</source>
        <translation>Kali&amp;te:</translation>
    </message>
    <message>
        <source>Fil&amp;e format:</source>
        <translation>Dosya bi&amp;çimi:</translation>
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
        <translation>&amp;Fare imlecini kaydet</translation>
    </message>
    <message>
        <source>Small: about %1 an hour</source>
        <translation>Düşük: saatte yaklaşık %1</translation>
    </message>
    <message>
        <source>Normal: about %1 an hour</source>
        <translation>Normal: saatte yaklaşık %1</translation>
    </message>
    <message>
        <source>High: about %1 an hour</source>
        <translation>Yüksek: saatte yaklaşık %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingControl</name>
    <message>
        <source>A task is about to start.</source>
        <translation>Bir görev birazdan başlıyor.</translation>
    </message>
    <message>
        <source>The desktop shows no notifications. The page &quot;Recordings&quot; tells what was recorded, and what was not.</source>
        <translation>Masaüstü bildirim göstermiyor. “Kayıtlar” sayfası nelerin kaydedildiğini, nelerin kaydedilmediğini gösterir.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingFooter</name>
    <message>
        <source>Recording</source>
        <translation>Kaydediliyor</translation>
    </message>
    <message>
        <source>Recorded</source>
        <translation>Kaydedilen</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Bitiş</translation>
    </message>
    <message>
        <source>Size of the file</source>
        <translation>Dosya boyutu</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>Boş alan</translation>
    </message>
    <message>
        <source>Dropped frames</source>
        <translation>Atlanan kareler</translation>
    </message>
    <message>
        <source>&amp;Start recording</source>
        <translation>Kaydı &amp;başlat</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>D&amp;urdur</translation>
    </message>
    <message>
        <source>S&amp;kip</source>
        <translation>Bu&amp;nu atla</translation>
    </message>
    <message>
        <source>Skip this task</source>
        <translation>Bu görevi atla</translation>
    </message>
    <message>
        <source>&amp;Keep recording</source>
        <translation>Kaydı s&amp;ürdür</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>İ&amp;ptal</translation>
    </message>
    <message>
        <source>&amp;Now</source>
        <translation>Şi&amp;mdi</translation>
    </message>
    <message>
        <source>until %1</source>
        <translation>bitiş %1</translation>
    </message>
    <message>
        <source>%1 free</source>
        <translation>%1 boş</translation>
    </message>
    <message numerus="yes">
        <source>%n frame(s) dropped</source>
        <translation>
            <numerusform>%n kare atlandı</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>De&amp;vam et</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Durak&amp;lat</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingPage</name>
    <message>
        <source>Recording</source>
        <translation>Kayıt</translation>
    </message>
    <message>
        <source>Choose what is recorded, and how.</source>
        <translation>Neyin nasıl kaydedileceğini seçin.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsModel</name>
    <message>
        <source>the file is gone</source>
        <translation>dosya artık yok</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::RecordingsPage</name>
    <message>
        <source>Recordings</source>
        <translation>Kayıtlar</translation>
    </message>
    <message>
        <source>What was recorded, and what was not.</source>
        <translation>Kaydedilenler ve kaydedilemeyenler.</translation>
    </message>
    <message>
        <source>Nothing has been recorded yet. Start a recording with the button below, or plan one on the page Schedule; it is listed here then.</source>
        <translation>Henüz hiçbir şey kaydedilmedi. Aşağıdaki düğmeyle bir kayıt başlatın veya “Takvim” sayfasında bir kayıt planlayın; kayıt o zaman burada listelenir.</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Aç</translation>
    </message>
    <message>
        <source>Show in &amp;folder</source>
        <translation>&amp;Klasörde göster</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>&amp;Onar</translation>
    </message>
    <message>
        <source>Adds what a crash has kept from the end of the file, so that players can seek in it.</source>
        <translation>Çökme yüzünden dosyanın sonunda eksik kalanı ekler; böylece oynatıcılar dosyada ileri geri gidebilir.</translation>
    </message>
    <message>
        <source>Move to &amp;trash</source>
        <translation>Çöp kutusuna &amp;taşı</translation>
    </message>
    <message>
        <source>Remove from &amp;list</source>
        <translation>Liste&amp;den çıkar</translation>
    </message>
    <message>
        <source>There is no file of this recording.</source>
        <translation>Bu kaydın dosyası yok.</translation>
    </message>
    <message>
        <source>Cannot open %1</source>
        <translation>Bu açılamıyor: %1</translation>
    </message>
    <message>
        <source>Repairing: %1</source>
        <translation>Onarılıyor: %1</translation>
    </message>
    <message>
        <source>Repaired: %1</source>
        <translation>Onarıldı: %1</translation>
    </message>
    <message>
        <source>%1 could not be repaired</source>
        <translation>%1 onarılamadı</translation>
    </message>
    <message>
        <source>The recording &quot;%1&quot; will be moved to the trash. Are you sure?</source>
        <translation>“%1” kaydı çöp kutusuna taşınacak. Emin misiniz?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; will be removed from the list. Are you sure?</source>
        <translation>“%1” listeden çıkarılacak. Emin misiniz?</translation>
    </message>
    <message>
        <source>Move to trash</source>
        <translation>Çöp kutusuna taşı</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Çıkar</translation>
    </message>
    <message>
        <source>%1 could not be moved to the trash</source>
        <translation>%1 çöp kutusuna taşınamadı</translation>
    </message>
    <message>
        <source>Removed from the list: %1</source>
        <translation>Listeden çıkarıldı: %1</translation>
    </message>
    <message>
        <source>Moved to the trash: %1</source>
        <translation>Çöp kutusuna taşındı: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SchedulePage</name>
    <message>
        <source>Schedule</source>
        <translation>Takvim</translation>
    </message>
    <message>
        <source>Recording schedule</source>
        <translation>Kayıt takvimi</translation>
    </message>
    <message>
        <source>Choose when a recording stops by itself, and which recordings start by themselves.</source>
        <translation>Bir kaydın ne zaman kendiliğinden duracağını ve hangi kayıtların kendiliğinden başlayacağını seçin.</translation>
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
<context>
    <name>Zentor::Desktop::SoundCard</name>
    <message>
        <source>Record the sound of:</source>
        <translation>Sesi kaydedilecek aygıtlar:</translation>
    </message>
    <message>
        <source>Sound devices</source>
        <translation>Ses aygıtları</translation>
    </message>
    <message>
        <source>All sound in one trac&amp;k</source>
        <translation>Tüm sesler tek i&amp;zde</translation>
    </message>
    <message>
        <source>Otherwise each device has a track of its own, for editing. Most players play only the first.</source>
        <translation>Aksi hâlde düzenleme için her aygıtın kendi izi olur. Oynatıcıların çoğu yalnızca ilkini çalar.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceList</name>
    <message>
        <source>Looking for sound devices...</source>
        <translation>Ses aygıtları aranıyor…</translation>
    </message>
    <message>
        <source>The sound devices of this computer cannot be listed.</source>
        <translation>Bu bilgisayarın ses aygıtları listelenemiyor.</translation>
    </message>
    <message>
        <source>There are no sound devices on this computer.</source>
        <translation>Bu bilgisayarda ses aygıtı yok.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SoundDeviceRow</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (bağlı değil)</translation>
    </message>
    <message>
        <source>Level of %1</source>
        <translation>Düzey: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::SourceCard</name>
    <message>
        <source>Record a s&amp;creen</source>
        <translation>&amp;Ekranı kaydet</translation>
    </message>
    <message>
        <source>Screen that is recorded</source>
        <translation>Kaydedilen ekran</translation>
    </message>
    <message>
        <source>Record the selected &amp;area</source>
        <translation>Seçilen &amp;alanı kaydet</translation>
    </message>
    <message>
        <source>&amp;Left:</source>
        <translation>S&amp;ol:</translation>
    </message>
    <message>
        <source>&amp;Top:</source>
        <translation>Ü&amp;st:</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Genişlik:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Yükseklik:</translation>
    </message>
    <message>
        <source>Left edge of the area in pixels</source>
        <translation>Piksel olarak alanın sol kenarı</translation>
    </message>
    <message>
        <source>Top edge of the area in pixels</source>
        <translation>Piksel olarak alanın üst kenarı</translation>
    </message>
    <message>
        <source>Width of the area in pixels</source>
        <translation>Piksel olarak alanın genişliği</translation>
    </message>
    <message>
        <source>Height of the area in pixels</source>
        <translation>Piksel olarak alanın yüksekliği</translation>
    </message>
    <message>
        <source>Choose o&amp;n the screen...</source>
        <translation>Ekran&amp;da seç…</translation>
    </message>
    <message>
        <source>Show &amp;outline</source>
        <translation>Çe&amp;rçeveyi göster</translation>
    </message>
    <message>
        <source>Screen %1, %2</source>
        <translation>Ekran %1, %2</translation>
    </message>
    <message>
        <source>%1: %2, %3</source>
        <translation>%1: %2, %3</translation>
    </message>
    <message>
        <source>Screen %1 (not connected)</source>
        <translation>Ekran %1 (bağlı değil)</translation>
    </message>
    <message>
        <source>No area has been selected yet: all of screen 1 is recorded instead, also by tasks with &quot;Selected area&quot;.</source>
        <translation>Henüz bir alan seçilmedi: bunun yerine 1. ekranın tamamı kaydedilir; “Seçilen alan” kullanan görevlerde de.</translation>
    </message>
    <message>
        <source>Tasks with &quot;Selected area&quot; record this area, too.</source>
        <translation>“Seçilen alan” kullanan görevler de bu alanı kaydeder.</translation>
    </message>
    <message>
        <source>The screen that is to be recorded is not connected.</source>
        <translation>Kaydedilecek ekran bağlı değil.</translation>
    </message>
    <message>
        <source>The selected area is not on any screen.</source>
        <translation>Seçilen alan hiçbir ekranda değil.</translation>
    </message>
</context>
<context>
    <name>Zentor::Desktop::TrayIcon</name>
    <message>
        <source>&amp;Start recording</source>
        <translation>Kaydı &amp;başlat</translation>
    </message>
    <message>
        <source>S&amp;top</source>
        <translation>&amp;Durdur</translation>
    </message>
    <message>
        <source>Show &amp;window</source>
        <translation>&amp;Pencereyi göster</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>Çı&amp;k</translation>
    </message>
    <message>
        <source>Not recording</source>
        <translation>Kayıt yapılmıyor</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Duraklatıldı</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Kaydediliyor</translation>
    </message>
    <message>
        <source>&amp;Resume</source>
        <translation>De&amp;vam et</translation>
    </message>
    <message>
        <source>&amp;Pause</source>
        <translation>Durak&amp;lat</translation>
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
        <translation>Bu ayarlarla bir kaydın nasıl olacağını görün ve dinleyin.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Try fi&amp;ve seconds</source>
        <translation>Be&amp;ş saniye dene</translation>
    </message>
    <message>
        <source>Trial recording</source>
        <translation>Deneme kaydı</translation>
    </message>
    <message>
        <source>The trial recording was cancelled.</source>
        <translation>Deneme kaydı iptal edildi.</translation>
    </message>
    <message>
        <source>The trial recording was made, but there is no program that opens it: %1</source>
        <translation>Deneme kaydı yapıldı, ancak onu açacak bir program yok: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened. The recorder says: %1</source>
        <translation>Deneme kaydı yapıldı ve açıldı. Kaydedicinin bildirdiği: %1</translation>
    </message>
    <message>
        <source>The trial recording was made and opened.</source>
        <translation>Deneme kaydı yapıldı ve açıldı.</translation>
    </message>
    <message>
        <source>The recorder px-recorder cannot be started. Is it installed completely?</source>
        <translation>px-recorder kaydedicisi başlatılamıyor. Eksiksiz kurulu mu?</translation>
    </message>
    <message>
        <source>Nothing could be recorded. The recorder says: %1</source>
        <translation>Hiçbir şey kaydedilemedi. Kaydedicinin bildirdiği: %1</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::Inhibitors</name>
    <message>
        <source>The computer cannot be kept from going to sleep while it records.</source>
        <translation>Kayıt sırasında bilgisayarın uykuya geçmesi engellenemiyor.</translation>
    </message>
    <message>
        <source>The computer cannot be kept from being shut down before the file is closed.</source>
        <translation>Dosya kapanmadan bilgisayarın kapatılması engellenemiyor.</translation>
    </message>
    <message>
        <source>The screen cannot be kept from going dark while it is recorded.</source>
        <translation>Ekran kaydedilirken kararması engellenemiyor.</translation>
    </message>
    <message>
        <source>A recording is running.</source>
        <translation>Kayıt sürüyor.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecorderProcess</name>
    <message>
        <source>%1 is of another version</source>
        <translation>%1 başka bir sürümde</translation>
    </message>
    <message>
        <source>%1 cannot be started: %2</source>
        <translation>%1 başlatılamıyor: %2</translation>
    </message>
    <message>
        <source>The recorder crashed (signal %1).</source>
        <translation>Kaydedici çöktü (sinyal %1).</translation>
    </message>
    <message>
        <source>The recorder ended unexpectedly (exit status %1).</source>
        <translation>Kaydedici beklenmedik biçimde sonlandı (çıkış kodu %1).</translation>
    </message>
    <message>
        <source>The recorder did not start in time.</source>
        <translation>Kaydedici zamanında başlamadı.</translation>
    </message>
    <message>
        <source>The recorder stopped responding.</source>
        <translation>Kaydedici yanıt vermeyi kesti.</translation>
    </message>
</context>
<context>
    <name>Zentor::Schedule::RecordingsList</name>
    <message>
        <source>The list of recordings %1 cannot be read: %2</source>
        <translation>%1 kayıt listesi okunamıyor: %2</translation>
    </message>
    <message>
        <source>The list of recordings %1 is damaged, and it cannot be kept under another name: %2</source>
        <translation>%1 kayıt listesi hasarlı ve başka bir adla saklanamıyor: %2</translation>
    </message>
    <message>
        <source>Some entries of the list of recordings could not be used. What the file held is kept in %1.</source>
        <translation>Kayıt listesinin bazı girdileri kullanılamadı. Dosyanın içeriği şurada saklanıyor: %1.</translation>
    </message>
    <message>
        <source>The list of recordings could not be understood, so it begins anew. What it held is kept in %1.</source>
        <translation>Kayıt listesi anlaşılamadı, bu yüzden yeniden başlatılıyor. Listenin içeriği şurada saklanıyor: %1.</translation>
    </message>
    <message>
        <source>%1: the list of recordings is not saved in %2</source>
        <translation>%1: kayıt listesi %2 içine kaydedilmedi</translation>
    </message>
</context>
</TS>
