<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>CupsSupport</name>
    <message>
        <source>The options of %1 cannot be stored: they are too long, or hold a line break.</source>
        <translation>تعذر حفظ خيارات %1: إما أنها طويلة جدًا أو تحتوي على فاصل أسطر.</translation>
    </message>
    <message>
        <source>Password for %1 on %2? </source>
        <translation>كلمة مرور %1 على %2؟ </translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached.</source>
        <translation>يتعذر الوصول إلى الطابعة «%1».</translation>
    </message>
    <message>
        <source>The print server did not answer in time.</source>
        <translation>لم يستجب خادم الطباعة في الوقت المحدد.</translation>
    </message>
    <message>
        <source>The print server broke off in the middle of an answer.</source>
        <translation>قطع خادم الطباعة الاتصال في منتصف الرد.</translation>
    </message>
</context>
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>اختيار إزاحة الطباعة الموسعة</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>الإزاحة:</translation>
    </message>
    <message>
        <source>-0.75mm</source>
        <translation>‎-0.75مم</translation>
    </message>
    <message>
        <source>-0.50mm</source>
        <translation>‎-0.50مم</translation>
    </message>
    <message>
        <source>-0.25mm</source>
        <translation>‎-0.25مم</translation>
    </message>
    <message>
        <source> 0.00mm</source>
        <translation>‎ 0.00مم</translation>
    </message>
    <message>
        <source> 0.25mm</source>
        <translation>‎ 0.25مم</translation>
    </message>
    <message>
        <source> 0.50mm</source>
        <translation>‎ 0.50مم</translation>
    </message>
    <message>
        <source> 0.75mm</source>
        <translation>‎ 0.75مم</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>%1 to %2 inches</source>
        <translation>من ‎%1 إلى ‎%2 بوصة</translation>
    </message>
    <message>
        <source>%1 inches = %2 mm</source>
        <translation>‎%1 بوصة = ‎%2 مم</translation>
    </message>
    <message>
        <source>Only numbers from %1 to %2, with two decimals at most.</source>
        <translation>أرقام من ‎%1 إلى ‎%2 فقط، بمنزلتين عشريتين على الأكثر.</translation>
    </message>
    <message>
        <source>%1 to %2 dots</source>
        <translation>من ‎%1 إلى ‎%2 نقطة</translation>
    </message>
    <message>
        <source>%1 dots = %2 mm</source>
        <translation>‎%1 نقطة = ‎%2 مم</translation>
    </message>
    <message>
        <source>Only whole numbers from %1 to %2.</source>
        <translation>أعداد صحيحة من ‎%1 إلى ‎%2 فقط.</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>كلمة المرور</translation>
    </message>
    <message>
        <source>The print server asks for a user name and a password.</source>
        <translation>يطلب خادم الطباعة اسم مستخدم وكلمة مرور.</translation>
    </message>
    <message>
        <source>They were not accepted. Please try again.</source>
        <translation>لم يُقبل اسم المستخدم أو كلمة المرور. يرجى المحاولة مرة أخرى.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>اسم المستخدم:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>كلمة المرور:</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>%1 cannot be modified.</source>
        <translation>لا يمكن تعديل %1.</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Warning</source>
        <translation>تحذير</translation>
    </message>
    <message>
        <source>%1 cannot be deleted.</source>
        <translation>لا يمكن حذف %1.</translation>
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
        <translation>طباعة</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>الاسم:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>الخصائص</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>الحالة:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>جاهزة</translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation>الافتراضية</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>النوع:</translation>
    </message>
    <message>
        <source>Vantry</source>
        <translation>Vantry</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>المكان:</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>هنا</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>الطباعة إلى ملف</translation>
    </message>
    <message>
        <source>Number of Copies:</source>
        <translation>عدد النسخ:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Request Print Job Now</source>
        <translation>هل تريد الطباعة الآن؟</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>No</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation>هل تريد تغيير الطابعة الحالية إلى 
</translation>
    </message>
    <message>
        <source> ?</source>
        <translation>؟</translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation>تغيير الطابعة</translation>
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
        <translation>إعداد الصفحة</translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation>حجم صفحة مخصص</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>العرض:</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>بوصة</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>الارتفاع:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>طولي</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>عرضي</translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation>طولي ‎180°</translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation>عرضي ‎180°</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>التأثيرات</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>معكوس</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>سلبي</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>إعداد مسبق</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>الاسم:</translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation>إدارة...</translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation>إعدادات السرعة</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>كثافة الطباعة</translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation>Copyright © 2026 The PropertiesDialog authors</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>الإعدادات المسبقة</translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation>تحفظ الإعدادات المسبقة إعدادات الطباعة باسم
لتتمكن من التبديل السريع بينها.</translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation>قائمة الإعدادات المسبقة:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>الوصف:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>جديد</translation>
    </message>
    <message>
        <source>Update...</source>
        <translation>تحديث...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>حذف</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>الوسائط</translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation>إعدادات الوسائط</translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation>نوع الوسائط:</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>عرض العلامة السوداء:</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>إزاحة العلامة السوداء:</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>طريقة الطباعة:</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>معالجة الوسائط</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>القص:</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>التغذية:</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>التغذية العكسية:</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>نقطة</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>التداخل:</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>ضبط الموضع</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>موضع التوقف:</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>موضع البدء:</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>متقدم</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>أوامر المستخدم</translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation>بداية المهمة</translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation>بداية الملصق</translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation>نهاية الملصق</translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation>نهاية المهمة</translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation>ضبط الموضع</translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation>الإزاحة الأفقية:</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>الإزاحة الرأسية:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>حول</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>الإصدار</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>موافق</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>تطبيق</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>ملصقات بفجوات</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>ملصقات بعلامات</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>بدون قص</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>قص بعد المهمة</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>قص بعد الصفحة</translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation>الإزاحة الرأسية</translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation>موضع التوقف</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>الإصدار %1</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Gap Size</source>
        <translation>حجم الفجوة</translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation>إزاحة الفجوة</translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation>حجم العلامة السوداء</translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation>إزاحة العلامة السوداء</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>إعداد مسبق جديد</translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation>إعداد مسبق جديد %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>الاتجاه: %1</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored</source>
        <translation>الاتجاه: %1، معكوس</translation>
    </message>
    <message>
        <source>Orientation: %1, negative</source>
        <translation>الاتجاه: %1، سلبي</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored and negative</source>
        <translation>الاتجاه: %1، معكوس وسلبي</translation>
    </message>
    <message>
        <source>The driver of this printer does not have this setting.</source>
        <translation>لا يوفر برنامج تشغيل هذه الطابعة هذا الإعداد.</translation>
    </message>
    <message>
        <source>From %1 x %2 to %3 x %4 inches.</source>
        <translation>من ‎%1 x %2‎ إلى ‎%3 x %4‎ بوصة.</translation>
    </message>
    <message>
        <source>The driver of this printer accepts only the page sizes that it lists.</source>
        <translation>لا يقبل برنامج تشغيل هذه الطابعة إلا أحجام الصفحات المدرجة في قائمته.</translation>
    </message>
    <message>
        <source>Left to the printer (%1).</source>
        <translation>متروك للطابعة (%1).</translation>
    </message>
    <message>
        <source>Empty: left to the printer (%1).</source>
        <translation>فارغ: متروك للطابعة (%1).</translation>
    </message>
    <message>
        <source>The driver of this printer has no label settings. Only the page size and the orientation take effect.</source>
        <translation>لا يوفر برنامج تشغيل هذه الطابعة إعدادات للملصقات. لا يسري سوى حجم الصفحة والاتجاه.</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be used together.</source>
        <translation>لا يمكن استخدام %1 مع %2.</translation>
    </message>
    <message>
        <source>This preset cannot hold the printer&apos;s present settings: %1. Choosing it would change them.</source>
        <translation>لا يمكن لهذا الإعداد المسبق حفظ الإعدادات الحالية للطابعة: %1. سيؤدي اختياره إلى تغييرها.</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Label Printer Properties</source>
        <translation>خصائص طابعة الملصقات</translation>
    </message>
    <message>
        <source>Choose a &amp;printer:</source>
        <translation>اختر &amp;طابعة:</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>صف الطباعة</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>الوصف</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>المكان</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>الحالة</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>لا تقبل المهام</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>خاملة</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>تطبع</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>متوقفة</translation>
    </message>
    <message>
        <source>Print &amp;Test Label</source>
        <translation>طباعة ملصق ا&amp;ختبار</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>يعرض إعدادات طابعة ملصقات ويغيرها.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation>يسرد صفوف الطباعة مع تمييز الصف الافتراضي بنجمة.</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>معامل غير متوقع «%1»</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation>لا توجد طابعة باسم «%1»؛ الخيار ‎--list‎ يسرد الموجودة</translation>
    </message>
    <message>
        <source>Label Printer Properties</source>
        <translation>خصائص طابعة الملصقات</translation>
    </message>
    <message>
        <source>The queue, instead of one chosen from a list.</source>
        <translation>صف الطباعة، بدلًا من اختياره من قائمة.</translation>
    </message>
    <message>
        <source>Prints a label to adjust offsets and darkness by, on the queue or the default one.</source>
        <translation>يطبع ملصقًا لضبط الإزاحات وكثافة الطباعة، على صف الطباعة المحدد أو الافتراضي.</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>يعرض هذه المساعدة.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>يعرض الإصدار.</translation>
    </message>
    <message>
        <source>The print service cannot be reached: %1</source>
        <translation>يتعذر الوصول إلى خدمة الطباعة: %1</translation>
    </message>
    <message>
        <source>No printers have been set up.</source>
        <translation>لم يتم إعداد أي طابعات.</translation>
    </message>
    <message>
        <source>The test label could not be printed: %1</source>
        <translation>تعذرت طباعة ملصق الاختبار: %1</translation>
    </message>
    <message>
        <source>there is no default printer; name one with -p</source>
        <translation>لا توجد طابعة افتراضية؛ حدد طابعة بالخيار ‎-p‎</translation>
    </message>
    <message>
        <source>The test label was sent to %1.</source>
        <translation>أُرسل ملصق الاختبار إلى %1.</translation>
    </message>
    <message>
        <source>no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>لا يمكن عرض أي نافذة: لم يُعيَّن ‎DISPLAY‎ ولا ‎WAYLAND_DISPLAY‎</translation>
    </message>
    <message>
        <source>no window can be shown with %1</source>
        <translation>لا يمكن عرض أي نافذة مع ‎%1‎</translation>
    </message>
    <message>
        <source>The default printer &quot;%1&quot; does not exist.</source>
        <translation>الطابعة الافتراضية «%1» غير موجودة.</translation>
    </message>
    <message>
        <source>The presets could not be saved.</source>
        <translation>تعذر حفظ الإعدادات المسبقة.</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>تعذر حفظ الإعدادات: %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 و %2</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>لا يمكن استخدام هذه الإعدادات معًا:</translation>
    </message>
    <message>
        <source>Do you want to change them to the following?</source>
        <translation>هل تريد تغييرها إلى ما يلي؟</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>الاستخدام: ‎%1‎</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[خيارات]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>الخيارات:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>خيار غير معروف «%1».</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>قيمة مفقودة بعد «%1».</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>قيمة غير متوقعة بعد «%1».</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation>يحتوي هذا الإعداد المسبق على الإعدادات الحالية لبرنامج التشغيل.</translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation>يحتوي هذا الإعداد المسبق على الإعدادات الافتراضية الأصلية لبرنامج التشغيل.</translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation>تفضيلات الطباعة لـ %1</translation>
    </message>
</context>
<context>
    <name>TestLabel</name>
    <message>
        <source>Continuous</source>
        <translation>متصل</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>ملصقات بفجوات</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>ملصقات بعلامات</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>بدون قص</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>قص بعد المهمة</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>قص بعد الصفحة</translation>
    </message>
    <message>
        <source>Darkness %1</source>
        <translation>كثافة الطباعة ‎%1</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>السرعة ‎%1</translation>
    </message>
    <message>
        <source>Offset %1, %2 dots</source>
        <translation>الإزاحة ‎%1 و ‎%2 نقطة</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>الإعدادات الافتراضية</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>‎%1 x %2 مم</translation>
    </message>
    <message>
        <source>Test label</source>
        <translation>ملصق اختبار</translation>
    </message>
</context>
</TS>
