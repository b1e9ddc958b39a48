<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>CupsSupport</name>
    <message>
        <source>The options of %1 cannot be stored: they are too long, or hold a line break.</source>
        <translation>%1 seçenekleri kaydedilemiyor: çok uzunlar veya satır sonu içeriyorlar.</translation>
    </message>
    <message>
        <source>Password for %1 on %2? </source>
        <translation>%1 için %2 üzerindeki parola? </translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached.</source>
        <translation>&quot;%1&quot; yazıcısına ulaşılamıyor.</translation>
    </message>
    <message>
        <source>The print server did not answer in time.</source>
        <translation>Yazdırma sunucusu zamanında yanıt vermedi.</translation>
    </message>
    <message>
        <source>The print server broke off in the middle of an answer.</source>
        <translation>Yazdırma sunucusu yanıtın ortasında bağlantıyı kesti.</translation>
    </message>
</context>
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>Genişletilmiş Yazdırma Kaydırması Seç</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>Kaydırma:</translation>
    </message>
    <message>
        <source>-0.75mm</source>
        <translation>-0.75mm</translation>
    </message>
    <message>
        <source>-0.50mm</source>
        <translation>-0.50mm</translation>
    </message>
    <message>
        <source>-0.25mm</source>
        <translation>-0.25mm</translation>
    </message>
    <message>
        <source> 0.00mm</source>
        <translation> 0.00mm</translation>
    </message>
    <message>
        <source> 0.25mm</source>
        <translation> 0.25mm</translation>
    </message>
    <message>
        <source> 0.50mm</source>
        <translation> 0.50mm</translation>
    </message>
    <message>
        <source> 0.75mm</source>
        <translation> 0.75mm</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>%1 to %2 inches</source>
        <translation>%1 ile %2 inç arası</translation>
    </message>
    <message>
        <source>%1 inches = %2 mm</source>
        <translation>%1 inç = %2 mm</translation>
    </message>
    <message>
        <source>Only numbers from %1 to %2, with two decimals at most.</source>
        <translation>Yalnızca %1 ile %2 arasında, en fazla iki ondalık basamaklı sayılar.</translation>
    </message>
    <message>
        <source>%1 to %2 dots</source>
        <translation>%1 ile %2 nokta arası</translation>
    </message>
    <message>
        <source>%1 dots = %2 mm</source>
        <translation>%1 nokta = %2 mm</translation>
    </message>
    <message>
        <source>Only whole numbers from %1 to %2.</source>
        <translation>Yalnızca %1 ile %2 arasındaki tam sayılar.</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>Parola</translation>
    </message>
    <message>
        <source>The print server asks for a user name and a password.</source>
        <translation>Yazdırma sunucusu bir kullanıcı adı ve parola istiyor.</translation>
    </message>
    <message>
        <source>They were not accepted. Please try again.</source>
        <translation>Girilenler kabul edilmedi. Lütfen yeniden deneyin.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>Kullanıcı adı:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Parola:</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Warning</source>
        <translation>Uyarı</translation>
    </message>
    <message>
        <source>%1 cannot be modified.</source>
        <translation>%1 değiştirilemez.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Warning</source>
        <translation>Uyarı</translation>
    </message>
    <message>
        <source>%1 cannot be deleted.</source>
        <translation>%1 silinemez.</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>DL</source>
        <translation>DL</translation>
    </message>
</context>
<context>
    <name>PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>Yazdır</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Ad:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Özellikler</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>Durum:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Hazır</translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation>Varsayılan</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>Tür:</translation>
    </message>
    <message>
        <source>Vantry</source>
        <translation>Vantry</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>Konum:</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>Burada</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>Dosyaya yazdır</translation>
    </message>
    <message>
        <source>Number of Copies:</source>
        <translation>Kopya Sayısı:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Request Print Job Now</source>
        <translation>Şimdi yazdırılsın mı?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Evet</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Hayır</translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation>Geçerli yazıcı şununla değiştirilsin mi: 
</translation>
    </message>
    <message>
        <source> ?</source>
        <translation>?</translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation>Yazıcı Değişikliği</translation>
    </message>
</context>
<context>
    <name>PrintPropertiesDialog</name>
    <message>
        <source>PrintPropertiesDialog</source>
        <translation>PrintPropertiesDialog</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>Sayfa Yapısı</translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation>Özel Sayfa Boyutu</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>Genişlik:</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>inç</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>Yükseklik:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Önizleme</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>Yönelim</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>Dikey</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>Yatay</translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation>Dikey 180°</translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation>Yatay 180°</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Efektler</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>Ayna</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>Negatif</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Ön Ayar</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Ad:</translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation>Yönet...</translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation>Hız Ayarları</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>Baskı Yoğunluğu</translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation>Copyright © 2026 The PropertiesDialog authors</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>Ön Ayarlar</translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation>Ön ayarlar, yazdırma ayarlarınızı bir adla kaydederek
yapılandırmalar arasında hızla geçiş yapmanızı sağlar.</translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation>Ön Ayar Listesi:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>Açıklama:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Yeni</translation>
    </message>
    <message>
        <source>Update...</source>
        <translation>Güncelle...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Sil</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>Ortam</translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation>Ortam Ayarları</translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation>Ortam Türü:</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>Siyah İşaret Genişliği:</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>Siyah İşaret Kaydırması:</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>Yazdırma Yöntemi:</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>Ortam İşleme</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Kesme:</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>Besleme:</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>Geri Besleme:</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>nokta</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>Örtüşme:</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>Konum Ayarları</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>Durma Konumu:</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>Başlangıç Konumu:</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>Gelişmiş</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>Kullanıcı Komutları</translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation>İş Başı</translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation>Etiket Başı</translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation>Etiket Sonu</translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation>İş Sonu</translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation>Konum Ayarı</translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation>Yatay Kaydırma:</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>Dikey Kaydırma:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Hakkında</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Tarih</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Uygula</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Yardım</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>Sürekli</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Boşluklu Etiketler</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>İşaretli Etiketler</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Kesme Yok</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>İşten Sonra Kes</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Sayfadan Sonra Kes</translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation>Dikey Kaydırma</translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation>Durma Konumu</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Sürüm %1</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Gap Size</source>
        <translation>Boşluk Boyutu</translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation>Boşluk Kaydırması</translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation>Siyah İşaret Boyutu</translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation>Siyah İşaret Kaydırması</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>Yeni Ön Ayar</translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation>Yeni Ön Ayar %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>Yönelim: %1</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored</source>
        <translation>Yönelim: %1, aynalanmış</translation>
    </message>
    <message>
        <source>Orientation: %1, negative</source>
        <translation>Yönelim: %1, negatif</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored and negative</source>
        <translation>Yönelim: %1, aynalanmış ve negatif</translation>
    </message>
    <message>
        <source>The driver of this printer does not have this setting.</source>
        <translation>Bu yazıcının sürücüsünde bu ayar yok.</translation>
    </message>
    <message>
        <source>From %1 x %2 to %3 x %4 inches.</source>
        <translation>%1 x %2 ile %3 x %4 inç arası.</translation>
    </message>
    <message>
        <source>The driver of this printer accepts only the page sizes that it lists.</source>
        <translation>Bu yazıcının sürücüsü yalnızca kendi listesindeki sayfa boyutlarını kabul eder.</translation>
    </message>
    <message>
        <source>Left to the printer (%1).</source>
        <translation>Yazıcıya bırakılır (%1).</translation>
    </message>
    <message>
        <source>Empty: left to the printer (%1).</source>
        <translation>Boş: yazıcıya bırakılır (%1).</translation>
    </message>
    <message>
        <source>The driver of this printer has no label settings. Only the page size and the orientation take effect.</source>
        <translation>Bu yazıcının sürücüsünde etiket ayarları yok. Yalnızca sayfa boyutu ve yönelim etkili olur.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be used together.</source>
        <translation>%1 ve %2 birlikte kullanılamaz.</translation>
    </message>
    <message>
        <source>This preset cannot hold the printer&apos;s present settings: %1. Choosing it would change them.</source>
        <translation>Bu ön ayar, yazıcının geçerli ayarlarını saklayamaz: %1. Seçilirse bu ayarlar değişir.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Label Printer Properties</source>
        <translation>Etiket Yazıcısı Özellikleri</translation>
    </message>
    <message>
        <source>Choose a &amp;printer:</source>
        <translation>Bir &amp;yazıcı seçin:</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>Kuyruk</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Açıklama</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Konum</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Durum</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>İş kabul etmiyor</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>Boşta</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Yazdırıyor</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Durduruldu</translation>
    </message>
    <message>
        <source>Print &amp;Test Label</source>
        <translation>&amp;Test Etiketi Yazdır</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>Bir etiket yazıcısının ayarlarını gösterir ve değiştirir.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>AD</translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation>Kuyrukları listeler; varsayılan kuyruk yıldızla işaretlenir.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>beklenmeyen argüman &quot;%1&quot;</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation>&quot;%1&quot; adlı yazıcı yok; --list var olanları gösterir</translation>
    </message>
    <message>
        <source>Label Printer Properties</source>
        <translation>Etiket Yazıcısı Özellikleri</translation>
    </message>
    <message>
        <source>The queue, instead of one chosen from a list.</source>
        <translation>Listeden seçilen yerine kullanılacak kuyruk.</translation>
    </message>
    <message>
        <source>Prints a label to adjust offsets and darkness by, on the queue or the default one.</source>
        <translation>Belirtilen kuyrukta veya varsayılan kuyrukta, kaydırmaları ve baskı yoğunluğunu ayarlamak için bir etiket yazdırır.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>Bu yardımı gösterir.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Sürümü gösterir.</translation>
    </message>
    <message>
        <source>The print service cannot be reached: %1</source>
        <translation>Yazdırma hizmetine ulaşılamıyor: %1</translation>
    </message>
    <message>
        <source>No printers have been set up.</source>
        <translation>Hiçbir yazıcı kurulmamış.</translation>
    </message>
    <message>
        <source>The test label could not be printed: %1</source>
        <translation>Test etiketi yazdırılamadı: %1</translation>
    </message>
    <message>
        <source>there is no default printer; name one with -p</source>
        <translation>varsayılan yazıcı yok; -p ile bir yazıcı belirtin</translation>
    </message>
    <message>
        <source>The test label was sent to %1.</source>
        <translation>Test etiketi %1 kuyruğuna gönderildi.</translation>
    </message>
    <message>
        <source>no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>pencere gösterilemiyor: ne DISPLAY ne de WAYLAND_DISPLAY ayarlanmış</translation>
    </message>
    <message>
        <source>no window can be shown with %1</source>
        <translation>%1 ile pencere gösterilemiyor</translation>
    </message>
    <message>
        <source>The default printer &quot;%1&quot; does not exist.</source>
        <translation>Varsayılan yazıcı &quot;%1&quot; mevcut değil.</translation>
    </message>
    <message>
        <source>The presets could not be saved.</source>
        <translation>Ön ayarlar kaydedilemedi.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>Ayarlar kaydedilemedi: %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 ve %2</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>Bu ayarlar birlikte kullanılamaz:</translation>
    </message>
    <message>
        <source>Do you want to change them to the following?</source>
        <translation>Aşağıdakilerle değiştirilsin mi?</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>Kullanım: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[seçenekler]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>Seçenekler:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>Bilinmeyen seçenek &quot;%1&quot;.</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>&quot;%1&quot; sonrasında değer eksik.</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>&quot;%1&quot; sonrasında beklenmeyen değer.</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation>Bu ön ayar, bu sürücünün geçerli ayarlarını içerir.</translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation>Bu ön ayar, bu sürücünün özgün varsayılan ayarlarını içerir.</translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation>%1 Yazdırma Tercihleri</translation>
    </message>
</context>
<context>
    <name>TestLabel</name>
    <message>
        <source>Continuous</source>
        <translation>Sürekli</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>Boşluklu Etiketler</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>İşaretli Etiketler</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>Kesme Yok</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>İşten Sonra Kes</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>Sayfadan Sonra Kes</translation>
    </message>
    <message>
        <source>Darkness %1</source>
        <translation>Baskı Yoğunluğu %1</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>Hız %1</translation>
    </message>
    <message>
        <source>Offset %1, %2 dots</source>
        <translation>Kaydırma %1, %2 nokta</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>Varsayılan ayarlar</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>Test label</source>
        <translation>Test etiketi</translation>
    </message>
</context>
</TS>
