<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
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
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>يعرض إعدادات طابعة ملصقات ويغيرها.</translation>
    </message>
    <message>
        <source>The queue, instead of the default one.</source>
        <translation>صف الطباعة بدلا من الصف الافتراضي.</translation>
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
</TS>
