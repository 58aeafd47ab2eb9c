<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>AccessibleNames</name>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>Two sentences</comment>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>ColorNames</name>
    <message>
        <source>pink</source>
        <translation>وردي</translation>
    </message>
    <message>
        <source>red</source>
        <translation>أحمر</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>برتقالي</translation>
    </message>
    <message>
        <source>brown</source>
        <translation>بني</translation>
    </message>
    <message>
        <source>golden yellow</source>
        <translation>أصفر ذهبي</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>أصفر</translation>
    </message>
    <message>
        <source>olive</source>
        <translation>زيتوني</translation>
    </message>
    <message>
        <source>yellow green</source>
        <translation>أخضر مصفر</translation>
    </message>
    <message>
        <source>green</source>
        <translation>أخضر</translation>
    </message>
    <message>
        <source>turquoise</source>
        <translation>فيروزي</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>سماوي</translation>
    </message>
    <message>
        <source>azure</source>
        <translation>لازوردي</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>أزرق</translation>
    </message>
    <message>
        <source>violet</source>
        <translation>بنفسجي</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>أرجواني</translation>
    </message>
    <message>
        <source>black</source>
        <translation>أسود</translation>
    </message>
    <message>
        <source>very dark grey</source>
        <translation>رمادي داكن جدًا</translation>
    </message>
    <message>
        <source>dark grey</source>
        <translation>رمادي داكن</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>رمادي</translation>
    </message>
    <message>
        <source>light grey</source>
        <translation>رمادي فاتح</translation>
    </message>
    <message>
        <source>very light grey</source>
        <translation>رمادي فاتح جدًا</translation>
    </message>
    <message>
        <source>white</source>
        <translation>أبيض</translation>
    </message>
    <message>
        <source>very dark %1</source>
        <translation>%1 داكن جدًا</translation>
    </message>
    <message>
        <source>very light %1</source>
        <translation>%1 فاتح جدًا</translation>
    </message>
    <message>
        <source>greyish %1</source>
        <translation>%1 مائل إلى الرمادي</translation>
    </message>
    <message>
        <source>dark %1</source>
        <translation>%1 داكن</translation>
    </message>
    <message>
        <source>light %1</source>
        <translation>%1 فاتح</translation>
    </message>
    <message>
        <source>several colours</source>
        <translation>عدة ألوان</translation>
    </message>
    <message>
        <source>no colour</source>
        <translation>بلا لون</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>%1, %2 %</source>
        <translation>%1، %2 %</translation>
    </message>
</context>
<context>
    <name>ColorPickerWidget</name>
    <message>
        <source>Other:</source>
        <translation>أخرى:</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>العتامة:</translation>
    </message>
    <message>
        <source>Colour value</source>
        <translation>قيمة اللون</translation>
    </message>
    <message>
        <source>Pick a colour from the screen</source>
        <translation>التقاط لون من الشاشة</translation>
    </message>
    <message>
        <source>Choose another colour</source>
        <translation>اختيار لون آخر</translation>
    </message>
    <message>
        <source>Current colour</source>
        <translation>اللون الحالي</translation>
    </message>
    <message>
        <source>Needs a mouse; without one, type the colour value</source>
        <translation>يحتاج إلى فأرة؛ وبدونها اكتب قيمة اللون</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>لوحة الألوان</translation>
    </message>
    <message>
        <source>Own colours</source>
        <translation>ألوان خاصة</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>العتامة</translation>
    </message>
    <message>
        <source>Opacity in percent</source>
        <translation>العتامة بالنسبة المئوية</translation>
    </message>
    <message>
        <source>Empty place</source>
        <translation>مكان فارغ</translation>
    </message>
</context>
<context>
    <name>CustomColorSelectWidget</name>
    <message>
        <source>Hue</source>
        <translation>تدرج اللون</translation>
    </message>
    <message>
        <source>Saturation and brightness</source>
        <translation>التشبع والسطوع</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>التشبع</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>السطوع</translation>
    </message>
</context>
<context>
    <name>DialogGuideWidget</name>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Animated picture</source>
        <translation>صورة متحركة</translation>
    </message>
</context>
<context>
    <name>EditSessionCover</name>
    <message>
        <source>Several values</source>
        <translation>عدة قيم</translation>
    </message>
</context>
<context>
    <name>FileUtil</name>
    <message>
        <source>No path is given</source>
        <translation>لم يُحدَّد أي مسار</translation>
    </message>
    <message>
        <source>Not a path on a disk: %1</source>
        <translation>ليس مسارًا على قرص: %1</translation>
    </message>
    <message>
        <source>The path has characters that names on this disk cannot have: %1</source>
        <translation>في المسار رموز لا تقبلها الأسماء على هذا القرص: %1</translation>
    </message>
    <message>
        <source>The path is too long: %1</source>
        <translation>المسار طويل جدًا: %1</translation>
    </message>
    <message>
        <source>A name in the path is too long: %1</source>
        <translation>في المسار اسم طويل جدًا: %1</translation>
    </message>
    <message>
        <source>There is something else in the place of a folder: %1</source>
        <translation>يوجد شيء آخر مكان المجلد: %1</translation>
    </message>
</context>
<context>
    <name>FormatFileSize</name>
    <message>
        <source>%1 B</source>
        <translation>%1 بايت</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 كيلوبايت</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 ميغابايت</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 غيغابايت</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 تيرابايت</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1 بيتابايت</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1 إكسابايت</translation>
    </message>
</context>
<context>
    <name>GuideWidget</name>
    <message>
        <source>Animated picture</source>
        <translation>صورة متحركة</translation>
    </message>
    <message>
        <source>Playing; Space pauses it</source>
        <translation>قيد التشغيل؛ مفتاح المسافة يوقفه مؤقتًا</translation>
    </message>
    <message>
        <source>Paused; Space plays it</source>
        <translation>متوقف مؤقتًا؛ مفتاح المسافة يشغّله</translation>
    </message>
</context>
<context>
    <name>Orvane::Tessel::TesselLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;تراجع</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;إعادة</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>&amp;قص</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;نسخ</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;لصق</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;حذف</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>تحديد &amp;الكل</translation>
    </message>
</context>
<context>
    <name>PathSelectionWidget</name>
    <message>
        <source>Selected path is not readable</source>
        <translation>المسار المختار غير قابل للقراءة</translation>
    </message>
    <message>
        <source>Selected path is not writable</source>
        <translation>المسار المختار غير قابل للكتابة</translation>
    </message>
    <message>
        <source>Required: %1</source>
        <translation>المطلوب: %1</translation>
    </message>
    <message>
        <source>Available: %1</source>
        <translation>المتاح: %1</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>اختيار مجلد</translation>
    </message>
    <message>
        <source>Back to the default folder</source>
        <translation>العودة إلى المجلد الافتراضي</translation>
    </message>
</context>
<context>
    <name>PointSelectorWidget</name>
    <message>
        <source>Position on the x-axis</source>
        <translation>الموضع على المحور x</translation>
    </message>
    <message>
        <source>Position on the y-axis</source>
        <translation>الموضع على المحور y</translation>
    </message>
    <message>
        <source>x</source>
        <translation>س</translation>
    </message>
    <message>
        <source>y</source>
        <translation>ص</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>RTL</translation>
    </message>
</context>
<context>
    <name>ScreenColorPortal</name>
    <message>
        <source>This desktop has no service for colours of the screen.</source>
        <translation>ليس في سطح المكتب هذا خدمة لألوان الشاشة.</translation>
    </message>
    <message>
        <source>This desktop cannot pick colours from the screen for programs.</source>
        <translation>لا يستطيع سطح المكتب هذا التقاط ألوان من الشاشة للبرامج.</translation>
    </message>
    <message>
        <source>The desktop&apos;s service for colours of the screen does not answer.</source>
        <translation>خدمة ألوان الشاشة في سطح المكتب لا تستجيب.</translation>
    </message>
    <message>
        <source>The desktop&apos;s service for colours of the screen has refused.</source>
        <translation>رفضت خدمة ألوان الشاشة في سطح المكتب الطلب.</translation>
    </message>
</context>
<context>
    <name>SearchWidget</name>
    <message>
        <source>Clear the search</source>
        <translation>مسح البحث</translation>
    </message>
</context>
<context>
    <name>SliderInputWidget</name>
    <message>
        <source>number</source>
        <translation>رقم</translation>
    </message>
</context>
<context>
    <name>WidgetColorPickerButton</name>
    <message>
        <source>Needs a mouse; without one, type the value in a colour panel</source>
        <translation>يحتاج إلى فأرة؛ وبدونها اكتب القيمة في لوحة ألوان</translation>
    </message>
</context>
<context>
    <name>blendingModes</name>
    <message>
        <source>Overlay</source>
        <translation>تراكب</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>تفتيح</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>لون</translation>
    </message>
    <message>
        <source>ColorDodge</source>
        <translation>تفتيح اللون</translation>
    </message>
    <message>
        <source>LinearDodge</source>
        <translation>تفتيح خطي</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>شاشة</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>فرق</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>ضرب</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>تغميق</translation>
    </message>
    <message>
        <source>ColorBurn</source>
        <translation>حرق اللون</translation>
    </message>
    <message>
        <source>HardLight</source>
        <translation>ضوء قاس</translation>
    </message>
    <message>
        <source>SoftLight</source>
        <translation>ضوء ناعم</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>استبعاد</translation>
    </message>
    <message>
        <source>SourceOver</source>
        <translation>عادي</translation>
    </message>
</context>
</TS>
