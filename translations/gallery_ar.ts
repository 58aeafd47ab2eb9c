<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>Broken</name>
    <message>
        <source>Now it loads. Click to close.</source>
        <translation>يمكن تحميله الآن. انقر للإغلاق.</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Discard the sequence?</source>
        <translation>هل تريد تجاهل التسلسل؟</translation>
    </message>
    <message>
        <source>Its cuts and titles will be gone. The clips stay in the project.</source>
        <translation>ستضيع القصّات والعناوين. تبقى المقاطع في المشروع.</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>إبقاء</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>تجاهل</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>Pick a colour</source>
        <translation>اختيار لون</translation>
    </message>
</context>
<context>
    <name>FolderBrowser</name>
    <message>
        <source>Choose a folder</source>
        <translation>اختيار مجلد</translation>
    </message>
</context>
<context>
    <name>Form</name>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>Sequence 1</source>
        <translation>التسلسل 1</translation>
    </message>
    <message>
        <source>Frames a second, 1 to 240</source>
        <translation>إطارات في الثانية، من 1 إلى 240</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>إنشاء</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The style sheet %1 cannot be read.</source>
        <translation>تتعذر قراءة ورقة الأنماط %1.</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>ورقة أنماط</translation>
    </message>
    <message>
        <source>Style sheets (*.qss)</source>
        <translation>أوراق الأنماط (‎*.qss)</translation>
    </message>
    <message>
        <source>%1 – UiComponents Gallery</source>
        <translation>%1 – معرض UiComponents</translation>
    </message>
</context>
<context>
    <name>Page</name>
    <message>
        <source>Enabled</source>
        <translation>ممكّن</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>معطّل</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Search title, class, keyword</source>
        <translation>ابحث بالعنوان أو الصنف أو الكلمة</translation>
    </message>
    <message>
        <source>Search pages</source>
        <translation>البحث في الصفحات</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>الصفحات</translation>
    </message>
</context>
<context>
    <name>PageRegistry</name>
    <message>
        <source>Colour</source>
        <translation>اللون</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>الإدخال</translation>
    </message>
    <message>
        <source>Layout and styling</source>
        <translation>التخطيط والنمط</translation>
    </message>
    <message>
        <source>Bubbles and frames</source>
        <translation>الفقاعات والإطارات</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>الخدمات</translation>
    </message>
    <message>
        <source>Guides and dialogs</source>
        <translation>الإرشادات ومربعات الحوار</translation>
    </message>
    <message>
        <source>Colour button</source>
        <translation>زر اللون</translation>
    </message>
    <message>
        <source>A button whose face is a colour. A click hands over to an exchangeable picker, here the colour panel or Qt&apos;s colour dialog: every colour that is tried is on the button at once.</source>
        <translation>زر وجهه لون. النقرة تسلّم الأمر إلى منتقٍ قابل للاستبدال، وهو هنا لوحة الألوان أو مربع حوار الألوان في Qt: كل لون يُجرَّب يظهر على الزر فورًا.</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>لون</translation>
    </message>
    <message>
        <source>picker</source>
        <translation>منتقٍ</translation>
    </message>
    <message>
        <source>dialog</source>
        <translation>حوار</translation>
    </message>
    <message>
        <source>Colour field</source>
        <translation>حقل اللون</translation>
    </message>
    <message>
        <source>A colour button in a frame, ready for a row of a form. The frame&apos;s margins belong to the style sheet; the button inside is the anchor for a pop-up picker.</source>
        <translation>زر لون داخل إطار، جاهز لصف في نموذج. هوامش الإطار تعود إلى ورقة الأنماط؛ والزر في داخله هو مرساة المنتقي المنبثق.</translation>
    </message>
    <message>
        <source>form</source>
        <translation>نموذج</translation>
    </message>
    <message>
        <source>row</source>
        <translation>صف</translation>
    </message>
    <message>
        <source>Colour panel</source>
        <translation>لوحة الألوان</translation>
    </message>
    <message>
        <source>The panel that a colour field opens: a palette, a hexadecimal value, the user&apos;s own colours, a selector of any colour, and opacity.</source>
        <translation>اللوحة التي يفتحها حقل اللون: مجموعة ألوان، وقيمة ست عشرية، وألوان المستخدم الخاصة، ومحدد لأي لون، والعتامة.</translation>
    </message>
    <message>
        <source>palette</source>
        <translation>مجموعة ألوان</translation>
    </message>
    <message>
        <source>opacity</source>
        <translation>عتامة</translation>
    </message>
    <message>
        <source>Free colour selector</source>
        <translation>محدد الألوان الحر</translation>
    </message>
    <message>
        <source>A colour plane above a slider for its hue: one selector for any colour. A colour that code sets appears on the next turn of the event loop.</source>
        <translation>مستوى ألوان فوق شريط تمرير لتدرجه: محدد واحد لأي لون. اللون الذي يضبطه البرنامج يظهر في الدورة التالية من حلقة الأحداث.</translation>
    </message>
    <message>
        <source>custom</source>
        <translation>مخصص</translation>
    </message>
    <message>
        <source>hue</source>
        <translation>تدرج</translation>
    </message>
    <message>
        <source>slider</source>
        <translation>شريط تمرير</translation>
    </message>
    <message>
        <source>Colour plane</source>
        <translation>مستوى الألوان</translation>
    </message>
    <message>
        <source>All colours of one hue: saturation grows to the right, brightness upwards. Drag the marker, also beyond the edge, or move it with the arrow keys, by ten pixels with Shift.</source>
        <translation>جميع ألوان التدرج الواحد: يزداد التشبع نحو اليمين والسطوع نحو الأعلى. اسحب العلامة، ولو خارج الحافة، أو حرّكها بمفاتيح الأسهم، عشر بكسلات مع Shift.</translation>
    </message>
    <message>
        <source>saturation</source>
        <translation>تشبع</translation>
    </message>
    <message>
        <source>marker</source>
        <translation>علامة</translation>
    </message>
    <message>
        <source>Blending modes</source>
        <translation>أوضاع المزج</translation>
    </message>
    <message>
        <source>How the colour of a layer is combined with what lies under it. The names are sorted in the user&apos;s language, behind the first, which is no blending at all. Here the layer is a grey ramp and three lights, on a landscape.</source>
        <translation>كيف يُدمج لون الطبقة مع ما تحتها. الأسماء مرتبة بلغة المستخدم، بعد الأول الذي لا يمزج شيئًا. الطبقة هنا تدرج رمادي وثلاثة أضواء على منظر طبيعي.</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>طبقة</translation>
    </message>
    <message>
        <source>combo box</source>
        <translation>مربع تحرير وسرد</translation>
    </message>
    <message>
        <source>composition</source>
        <translation>تركيب</translation>
    </message>
    <message>
        <source>Screen pipette</source>
        <translation>قطارة الشاشة</translation>
    </message>
    <message>
        <source>Picks the colour of any pixel on any screen, of other applications too. A click picks, any key gives up. The loupe beside the cursor shows the pixels around it.</source>
        <translation>تلتقط لون أي بكسل على أي شاشة، حتى من التطبيقات الأخرى. النقرة تلتقط، وأي مفتاح يلغي. العدسة قرب المؤشر تعرض البكسلات حوله.</translation>
    </message>
    <message>
        <source>pick</source>
        <translation>التقاط</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>شاشة</translation>
    </message>
    <message>
        <source>magnifier</source>
        <translation>مكبّر</translation>
    </message>
    <message>
        <source>eyedropper</source>
        <translation>قطارة</translation>
    </message>
    <message>
        <source>Colour from a widget</source>
        <translation>لون من عنصر</translation>
    </message>
    <message>
        <source>Click a button, then into the film: the colour of that pixel is picked. Any other click or key ends it too; with the cursor elsewhere nothing is picked.</source>
        <translation>انقر زرًا ثم داخل الفيلم: يُلتقط لون ذلك البكسل. أي نقرة أو مفتاح آخر ينهي ذلك أيضًا؛ وإذا كان المؤشر في مكان آخر فلا يُلتقط شيء.</translation>
    </message>
    <message>
        <source>preview</source>
        <translation>معاينة</translation>
    </message>
    <message>
        <source>cursor</source>
        <translation>مؤشر</translation>
    </message>
    <message>
        <source>Slider field</source>
        <translation>حقل شريط التمرير</translation>
    </message>
    <message>
        <source>A slider and a spin box of one whole number, kept in step. Each change is reported by both, so the signal arrives twice with the same value.</source>
        <translation>شريط تمرير وخانة أرقام لعدد صحيح واحد، متوافقان دائمًا. كلاهما يبلّغ عن كل تغيير، فتصل الإشارة مرتين بالقيمة نفسها.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>رقم</translation>
    </message>
    <message>
        <source>integer</source>
        <translation>عدد صحيح</translation>
    </message>
    <message>
        <source>range</source>
        <translation>نطاق</translation>
    </message>
    <message>
        <source>spin box</source>
        <translation>خانة أرقام</translation>
    </message>
    <message>
        <source>Slider field for fractions</source>
        <translation>حقل شريط التمرير للكسور</translation>
    </message>
    <message>
        <source>A slider and a spin box of one number with a fixed count of decimals, exact to the last digit. Both the point and the comma are decimal marks while typing.</source>
        <translation>شريط تمرير وخانة أرقام لعدد واحد ذي منازل عشرية ثابتة، دقيق حتى آخر رقم. عند الكتابة تُقبل النقطة والفاصلة علامةً عشرية.</translation>
    </message>
    <message>
        <source>decimals</source>
        <translation>منازل عشرية</translation>
    </message>
    <message>
        <source>Point plane</source>
        <translation>مستوى النقاط</translation>
    </message>
    <message>
        <source>A pad on which a point is picked by clicking, dragging, also out of the window, and with the arrow keys, ten pixels at a time with Shift. Here it stands for -1 to 1 both ways.</source>
        <translation>مساحة تُختار عليها نقطة بالنقر أو بالسحب، حتى خارج النافذة، وبمفاتيح الأسهم، عشر بكسلات في كل مرة مع Shift. تمثل هنا من ‎-1 إلى 1 في الاتجاهين.</translation>
    </message>
    <message>
        <source>point</source>
        <translation>نقطة</translation>
    </message>
    <message>
        <source>position</source>
        <translation>موضع</translation>
    </message>
    <message>
        <source>pad</source>
        <translation>مساحة</translation>
    </message>
    <message>
        <source>drag</source>
        <translation>سحب</translation>
    </message>
    <message>
        <source>Point selector</source>
        <translation>محدد النقطة</translation>
    </message>
    <message>
        <source>A point plane and a spin box for each coordinate, kept in step. A point that is picked is reported as it is, and then as the spin boxes round it.</source>
        <translation>مستوى نقاط وخانة أرقام لكل إحداثي، متوافقة دائمًا. تُبلَّغ النقطة المختارة كما هي، ثم كما تقرّبها الخانات.</translation>
    </message>
    <message>
        <source>coordinates</source>
        <translation>إحداثيات</translation>
    </message>
    <message>
        <source>Spin box</source>
        <translation>خانة الأرقام</translation>
    </message>
    <message>
        <source>A spin box that is safe to scroll past, since the wheel changes it only while it has the focus, and quick to type into: Enter commits the number and leaves it selected.</source>
        <translation>خانة أرقام يمكن التمرير فوقها بأمان، إذ لا تغيّرها العجلة إلا وعليها التركيز، والكتابة فيها سريعة: Enter يعتمد العدد ويتركه محددًا.</translation>
    </message>
    <message>
        <source>wheel</source>
        <translation>عجلة</translation>
    </message>
    <message>
        <source>Spin box for fractions</source>
        <translation>خانة الأرقام للكسور</translation>
    </message>
    <message>
        <source>The spin box for fractions. On request it takes both the point and the comma as the decimal mark, whatever the language, so that nobody has to look for the right key.</source>
        <translation>خانة أرقام للكسور. عند الطلب تقبل النقطة والفاصلة علامةً عشرية مهما كانت اللغة، فلا يبحث أحد عن المفتاح الصحيح.</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>فاصلة</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>شريط التمرير</translation>
    </message>
    <message>
        <source>A slider that goes where it is clicked: a press on the groove moves the handle there at once and the drag goes on from it. The wheel changes it only while it has the focus.</source>
        <translation>شريط تمرير يذهب حيث يُنقر: الضغط على المجرى ينقل المقبض إليه فورًا ويتابع السحب من هناك. لا تغيّره العجلة إلا وعليه التركيز.</translation>
    </message>
    <message>
        <source>groove</source>
        <translation>مجرى</translation>
    </message>
    <message>
        <source>Slider for fractions</source>
        <translation>شريط التمرير للكسور</translation>
    </message>
    <message>
        <source>A slider with a fractional value: its steps times a multiplier. A value that code sets is kept exactly, also between two steps, in whatever order multiplier, range and value come.</source>
        <translation>شريط تمرير بقيمة كسرية: خطواته مضروبة في معامل. القيمة التي يضبطها البرنامج تُحفظ بدقة، ولو بين خطوتين، مهما كان ترتيب المعامل والنطاق والقيمة.</translation>
    </message>
    <message>
        <source>multiplier</source>
        <translation>معامل</translation>
    </message>
    <message>
        <source>step</source>
        <translation>خطوة</translation>
    </message>
    <message>
        <source>Slider and spin box in step</source>
        <translation>شريط تمرير وخانة متوافقان</translation>
    </message>
    <message>
        <source>Keeps a slider and a spin box on one value, in both directions. What is typed reads back digit for digit; the handle goes to the nearest step.</source>
        <translation>يُبقي شريط تمرير وخانة أرقام على قيمة واحدة في الاتجاهين. ما يُكتب يُقرأ رقمًا رقمًا؛ والمقبض يذهب إلى أقرب خطوة.</translation>
    </message>
    <message>
        <source>binding</source>
        <translation>ربط</translation>
    </message>
    <message>
        <source>Combo box</source>
        <translation>مربع التحرير والسرد</translation>
    </message>
    <message>
        <source>A combo box that gives way in a narrow panel: the text is cut off with an ellipsis, while the pop-up is as wide as its widest item. The wheel changes it only while it has the focus.</source>
        <translation>مربع تحرير وسرد يتنازل في اللوحة الضيقة: يُقطع النص بعلامة حذف، أما القائمة فبعرض أعرض عناصرها. لا تغيّره العجلة إلا وعليه التركيز.</translation>
    </message>
    <message>
        <source>list</source>
        <translation>قائمة</translation>
    </message>
    <message>
        <source>choice</source>
        <translation>اختيار</translation>
    </message>
    <message>
        <source>pop-up</source>
        <translation>منبثق</translation>
    </message>
    <message>
        <source>Line edit</source>
        <translation>حقل نص</translation>
    </message>
    <message>
        <source>The design system&apos;s line edit. Its context menu always has the same shape: what can do nothing at the moment is disabled, not missing.</source>
        <translation>حقل النص في نظام التصميم. قائمة السياق لها دائمًا الشكل نفسه: ما لا يفعل شيئًا الآن معطّل وليس غائبًا.</translation>
    </message>
    <message>
        <source>text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>context menu</source>
        <translation>قائمة السياق</translation>
    </message>
    <message>
        <source>field</source>
        <translation>حقل</translation>
    </message>
    <message>
        <source>Elegant slider</source>
        <translation>شريط تمرير أنيق</translation>
    </message>
    <message>
        <source>The design system&apos;s slider: a slim groove and a round handle. Where no style sheet speaks of its parts it draws them in the colours of its palette.</source>
        <translation>شريط التمرير في نظام التصميم: مجرى نحيل ومقبض دائري. حيث لا تذكر ورقة الأنماط أجزاءه يرسمها بألوان لوحته.</translation>
    </message>
    <message>
        <source>Combo box of the design system</source>
        <translation>مربع التحرير والسرد في نظام التصميم</translation>
    </message>
    <message>
        <source>Gives a combo box the look of the design system in place: items, index and signals stay as they are.</source>
        <translation>يعطي مربع التحرير والسرد مظهر نظام التصميم في مكانه: تبقى العناصر والفهرس والإشارات كما هي.</translation>
    </message>
    <message>
        <source>Folder field</source>
        <translation>حقل المجلد</translation>
    </message>
    <message>
        <source>A field for a folder. It asks its host to browse, reports edits in bursts of a tenth of a second, and looks at the disk only when it is told to check the path. Here the host opens Qt&apos;s folder dialog and shows the space that is free where the path is.</source>
        <translation>حقل لمجلد. يطلب من مضيفه التصفح، ويبلّغ عن التعديلات دفعات كل عُشر ثانية، ولا ينظر إلى القرص إلا حين يُطلب منه فحص المسار. هنا يفتح المضيف مربع حوار المجلدات في Qt ويعرض المساحة الحرة عند المسار.</translation>
    </message>
    <message>
        <source>path</source>
        <translation>مسار</translation>
    </message>
    <message>
        <source>browse</source>
        <translation>تصفح</translation>
    </message>
    <message>
        <source>directory</source>
        <translation>دليل</translation>
    </message>
    <message>
        <source>disk</source>
        <translation>قرص</translation>
    </message>
    <message>
        <source>error</source>
        <translation>خطأ</translation>
    </message>
    <message>
        <source>Search field</source>
        <translation>حقل البحث</translation>
    </message>
    <message>
        <source>A field for a search: it reports each change at once, and the end of an edit by Enter or by leaving it. A text never starts with a blank. Its placeholder has three colours, which change when the mouse comes or goes.</source>
        <translation>حقل للبحث: يبلّغ عن كل تغيير فورًا، وعن نهاية التحرير عند Enter أو عند مغادرته. لا يبدأ النص بفراغ أبدًا. لنصه النائب ثلاثة ألوان تتغير عندما تأتي الفأرة أو تذهب.</translation>
    </message>
    <message>
        <source>filter</source>
        <translation>تصفية</translation>
    </message>
    <message>
        <source>find</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>placeholder</source>
        <translation>نص نائب</translation>
    </message>
    <message>
        <source>Growing list</source>
        <translation>قائمة متنامية</translation>
    </message>
    <message>
        <source>A list that is as high as all its rows for as long as it is being loaded, and scrolls like any other once it is complete. It looks at its rows when it is told to and when it is resized, and does not watch its model.</source>
        <translation>قائمة بارتفاع جميع صفوفها ما دامت تُحمَّل، ثم تُمرَّر كغيرها متى اكتملت. تنظر إلى صفوفها حين يُطلب منها وحين يتغير حجمها، ولا تراقب نموذجها.</translation>
    </message>
    <message>
        <source>list view</source>
        <translation>عرض القائمة</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>صفوف</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>تحميل</translation>
    </message>
    <message>
        <source>height</source>
        <translation>ارتفاع</translation>
    </message>
    <message>
        <source>Properties of a clip</source>
        <translation>خصائص مقطع</translation>
    </message>
    <message>
        <source>The value inputs in one panel, as an editor shows the properties of a clip. The panel can be scrolled past every field: the wheel changes only the one that has the keyboard.</source>
        <translation>حقول القيم في لوحة واحدة، كما يعرض المحرر خصائص المقطع. يمكن تمرير اللوحة فوق كل حقل: لا تغيّر العجلة إلا الحقل الذي له لوحة المفاتيح.</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>لوحة</translation>
    </message>
    <message>
        <source>inspector</source>
        <translation>مفتش</translation>
    </message>
    <message>
        <source>editor</source>
        <translation>محرر</translation>
    </message>
    <message>
        <source>Frame and layout controller</source>
        <translation>الإطار والمتحكم في التخطيط</translation>
    </message>
    <message>
        <source>Components build their layouts without margins and spacing; the style sheet sets both through the layout controller. A frame is its own controller, any other widget gets one installed.</source>
        <translation>تبني المكونات تخطيطاتها بلا هوامش ولا تباعد؛ وتضبط ورقة الأنماط كليهما عبر المتحكم في التخطيط. الإطار متحكم في نفسه، وأي عنصر آخر يُثبَّت له متحكم.</translation>
    </message>
    <message>
        <source>margins</source>
        <translation>هوامش</translation>
    </message>
    <message>
        <source>spacing</source>
        <translation>تباعد</translation>
    </message>
    <message>
        <source>Box and grid layouts</source>
        <translation>تخطيطات الصندوق والشبكة</translation>
    </message>
    <message>
        <source>A box layout takes its owner&apos;s children in the order in which they were made, or a list of items: widgets with a stretch factor, and spacers that stretch or keep their size. A grid is filled row by row.</source>
        <translation>يأخذ تخطيط الصندوق أبناء مالكه بترتيب إنشائهم، أو قائمة من العناصر: عناصر بمعامل تمدد، وفواصل تتمدد أو تحفظ حجمها. وتُملأ الشبكة صفًا بعد صف.</translation>
    </message>
    <message>
        <source>spacer</source>
        <translation>فاصل</translation>
    </message>
    <message>
        <source>stretch</source>
        <translation>تمدد</translation>
    </message>
    <message>
        <source>column</source>
        <translation>عمود</translation>
    </message>
    <message>
        <source>Style hints and properties</source>
        <translation>تلميحات النمط والخصائص</translation>
    </message>
    <message>
        <source>Code names a variant, the style sheet gives it a look: a hint is a dynamic property that the sheet selects on. Setting it polishes the widget again, and only when it changed.</source>
        <translation>يسمّي البرنامج صيغة، وتعطيها ورقة الأنماط مظهرًا: التلميح خاصية ديناميكية تختار الورقة بها. ضبطه يعيد صقل العنصر، وفقط إذا تغيّر.</translation>
    </message>
    <message>
        <source>Colour variants</source>
        <translation>صيغ الألوان</translation>
    </message>
    <message>
        <source>The editor&apos;s eight colour variants of plain controls, by name. Anything but one of the names is ignored; the empty text drops the variant.</source>
        <translation>صيغ الألوان الثماني للمحرر لعناصر التحكم البسيطة، بأسمائها. يُتجاهل أي شيء غير هذه الأسماء؛ والنص الفارغ يزيل الصيغة.</translation>
    </message>
    <message>
        <source>variant</source>
        <translation>صيغة</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>تلميح</translation>
    </message>
    <message>
        <source>Property provider</source>
        <translation>مزوّد الخصائص</translation>
    </message>
    <message>
        <source>A widget that paints itself takes its colours and sizes from a hidden child, which a style sheet selects by class name and writes with qproperty-.</source>
        <translation>العنصر الذي يرسم نفسه يأخذ ألوانه وأحجامه من ابن مخفي تختاره ورقة الأنماط باسم صنفه وتكتبه بواسطة qproperty-‎.</translation>
    </message>
    <message>
        <source>Pointing bubble</source>
        <translation>فقاعة مشيرة</translation>
    </message>
    <message>
        <source>A bubble whose arrow touches a spot. It stays on its screen, or inside its parent, goes to the other side where there is no room, and follows the widget that it annotates.</source>
        <translation>فقاعة يلامس سهمها موضعًا. تبقى على شاشتها، أو داخل أبيها، وتنتقل إلى الجهة الأخرى حيث لا متسع، وتتبع العنصر الذي تشرحه.</translation>
    </message>
    <message>
        <source>bubble</source>
        <translation>فقاعة</translation>
    </message>
    <message>
        <source>arrow</source>
        <translation>سهم</translation>
    </message>
    <message>
        <source>Rounded pop-ups</source>
        <translation>نوافذ منبثقة مستديرة</translation>
    </message>
    <message>
        <source>Real rounded corners where desktops disagree about them: a widget with the property roundedEdges is translucent, and painted all the same.</source>
        <translation>زوايا مستديرة حقًا حيث تختلف أسطح المكتب فيها: العنصر ذو الخاصية roundedEdges نصف شفاف، ويُرسم رغم ذلك.</translation>
    </message>
    <message>
        <source>corner</source>
        <translation>زاوية</translation>
    </message>
    <message>
        <source>translucent</source>
        <translation>نصف شفاف</translation>
    </message>
    <message>
        <source>Highlight frame</source>
        <translation>إطار الإبراز</translation>
    </message>
    <message>
        <source>Outlines a widget without its notice: it follows the target through moves, resizes and hiding, lies over all its children and takes neither mouse nor focus.</source>
        <translation>يحيط بعنصر دون أن يشعر: يتبع الهدف عند تحريكه وتغيير حجمه وإخفائه، ويعلو جميع أبنائه ولا يأخذ الفأرة ولا التركيز.</translation>
    </message>
    <message>
        <source>outline</source>
        <translation>مخطط خارجي</translation>
    </message>
    <message>
        <source>overlay</source>
        <translation>تراكب</translation>
    </message>
    <message>
        <source>Animated picture</source>
        <translation>صورة متحركة</translation>
    </message>
    <message>
        <source>Plays an animated picture in the size of the widget, keeps its proportions, stays sharp on scaled screens and rests while it is hidden.</source>
        <translation>يشغّل صورة متحركة بحجم العنصر، ويحفظ تناسبها، ويبقى حادًا على الشاشات المكبّرة، ويستريح وهو مخفي.</translation>
    </message>
    <message>
        <source>movie</source>
        <translation>فيلم</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>حركة</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>إرشاد</translation>
    </message>
    <message>
        <source>A short piece of help: a heading, an animated picture that plays while it is seen, a description and a link to further reading. What is empty is left out.</source>
        <translation>مساعدة قصيرة: عنوان، وصورة متحركة تعمل ما دامت تُرى، ووصف، ورابط للمزيد. ما كان فارغًا يُحذف.</translation>
    </message>
    <message>
        <source>help</source>
        <translation>مساعدة</translation>
    </message>
    <message>
        <source>link</source>
        <translation>رابط</translation>
    </message>
    <message>
        <source>Guide button</source>
        <translation>زر الإرشاد</translation>
    </message>
    <message>
        <source>A click opens a guide in a bubble below the button. Escape, a click elsewhere and hiding the button close it.</source>
        <translation>النقرة تفتح إرشادًا في فقاعة تحت الزر. يغلقها Escape والنقر في مكان آخر وإخفاء الزر.</translation>
    </message>
    <message>
        <source>Dialog guide</source>
        <translation>إرشاد مربع الحوار</translation>
    </message>
    <message>
        <source>A bubble that walks the user through a step and follows the widget that it annotates. Start the tour to see it at work.</source>
        <translation>فقاعة ترافق المستخدم في خطوة وتتبع العنصر الذي تشرحه. ابدأ الجولة لتراها تعمل.</translation>
    </message>
    <message>
        <source>tour</source>
        <translation>جولة</translation>
    </message>
    <message>
        <source>QML dialog</source>
        <translation>مربع حوار QML</translation>
    </message>
    <message>
        <source>A modal dialog whose whole content is a QML scene: a file that is loaded when the dialog first runs. The scene knows the dialog as &quot;callback&quot; and ends it. Change the source and open it.</source>
        <translation>مربع حوار مشروط وجهه كله مشهد QML: ملف يُحمَّل عند أول تشغيل للمربع. يعرف المشهد المربع باسم &quot;callback&quot; وينهيه. غيّر المصدر وافتحه.</translation>
    </message>
    <message>
        <source>confirmation</source>
        <translation>تأكيد</translation>
    </message>
    <message>
        <source>scene</source>
        <translation>مشهد</translation>
    </message>
    <message>
        <source>Platform services</source>
        <translation>خدمات المنصة</translation>
    </message>
    <message>
        <source>The functions and classes below the components, with their live results.</source>
        <translation>الدوال والأصناف الكامنة تحت المكونات، مع نتائجها الحية.</translation>
    </message>
    <message>
        <source>File sizes</source>
        <translation>أحجام الملفات</translation>
    </message>
    <message>
        <source>Paths</source>
        <translation>المسارات</translation>
    </message>
    <message>
        <source>Own colours and folders</source>
        <translation>الألوان الخاصة والمجلدات</translation>
    </message>
    <message>
        <source>Scheduler</source>
        <translation>المجدول</translation>
    </message>
    <message>
        <source>Headings</source>
        <translation>العناوين</translation>
    </message>
    <message>
        <source>Privacy access</source>
        <translation>الوصول إلى الخصوصية</translation>
    </message>
    <message>
        <source>Focus of hosted QML</source>
        <translation>تركيز QML المستضاف</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>بايتات</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>وحدة</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>مجلد</translation>
    </message>
    <message>
        <source>file</source>
        <translation>ملف</translation>
    </message>
    <message>
        <source>permission</source>
        <translation>إذن</translation>
    </message>
    <message>
        <source>validity</source>
        <translation>صلاحية</translation>
    </message>
    <message>
        <source>store</source>
        <translation>مخزن</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>حاسوب</translation>
    </message>
    <message>
        <source>timer</source>
        <translation>مؤقت</translation>
    </message>
    <message>
        <source>delay</source>
        <translation>تأخير</translation>
    </message>
    <message>
        <source>merge</source>
        <translation>دمج</translation>
    </message>
    <message>
        <source>burst</source>
        <translation>دفعة</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>عريض</translation>
    </message>
    <message>
        <source>language</source>
        <translation>لغة</translation>
    </message>
    <message>
        <source>script</source>
        <translation>كتابة</translation>
    </message>
    <message>
        <source>capture</source>
        <translation>التقاط الشاشة</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Arrow on top</source>
        <translation>السهم في الأعلى</translation>
    </message>
    <message>
        <source>on the left</source>
        <translation>على اليسار</translation>
    </message>
    <message>
        <source>on the right</source>
        <translation>على اليمين</translation>
    </message>
    <message>
        <source>at the bottom</source>
        <translation>في الأسفل</translation>
    </message>
    <message>
        <source>What lies behind shows through the corners.</source>
        <translation>ما خلفها يظهر عبر الزوايا.</translation>
    </message>
    <message>
        <source>Driven by the controls below</source>
        <translation>تتحكم فيها العناصر أدناه</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>ابدأ هنا</translation>
    </message>
    <message>
        <source>All sides</source>
        <translation>جميع الجهات</translation>
    </message>
    <message>
        <source>Side of the arrow</source>
        <translation>جهة السهم</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>الأعلى</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>اليمين</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>الأسفل</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>اليسار</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>البداية</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>الوسط</translation>
    </message>
    <message>
        <source>End</source>
        <translation>النهاية</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>الإزاحة</translation>
    </message>
    <message>
        <source>Open as a pop-up</source>
        <translation>فتح كنافذة منبثقة</translation>
    </message>
    <message>
        <source>A bubble of its own. It goes with the window.</source>
        <translation>فقاعة مستقلة. تذهب مع النافذة.</translation>
    </message>
    <message>
        <source>Painted by itself: a sheet sets colours and measures through the properties, and the content&apos;s margins on the frame inside.</source>
        <translation>ترسم نفسها: تضبط الورقة الألوان والمقاييس عبر الخصائص، وهوامش المحتوى على الإطار الداخلي.</translation>
    </message>
    <message>
        <source>As a part of a window</source>
        <translation>كجزء من نافذة</translation>
    </message>
    <message>
        <source>Open a pop-up</source>
        <translation>فتح نافذة منبثقة</translation>
    </message>
    <message>
        <source>Any widget that Workaround::Ui::apply() prepared: a rule for the property gives it background, border and border-radius.</source>
        <translation>أي عنصر هيّأته Workaround‎::Ui‎::apply()‎: قاعدة للخاصية تعطيه background وborder وborder-radius.</translation>
    </message>
    <message>
        <source>The target</source>
        <translation>الهدف</translation>
    </message>
    <message>
        <source>Still works</source>
        <translation>ما زال يعمل</translation>
    </message>
    <message>
        <source>Highlighted</source>
        <translation>مُبرَز</translation>
    </message>
    <message>
        <source>Height of the target</source>
        <translation>ارتفاع الهدف</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>ظاهر</translation>
    </message>
    <message>
        <source>The outline, a child of the widget that it highlights.</source>
        <translation>المخطط الخارجي، وهو ابن العنصر الذي يبرزه.</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>متوقف مؤقتًا</translation>
    </message>
    <message>
        <source>The animation</source>
        <translation>الحركة</translation>
    </message>
    <message>
        <source>A file that is not there</source>
        <translation>ملف غير موجود</translation>
    </message>
    <message>
        <source>Border and padding of a sheet surround the picture.</source>
        <translation>حد الورقة وحشوها يحيطان بالصورة.</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>بلا لون</translation>
    </message>
    <message>
        <source>The colour that it reported last</source>
        <translation>آخر لون أبلغ عنه</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>لا شيء بعد</translation>
    </message>
    <message>
        <source>A colour</source>
        <translation>لون واحد</translation>
    </message>
    <message>
        <source>Several colours</source>
        <translation>عدة ألوان</translation>
    </message>
    <message>
        <source>Picking</source>
        <translation>قيد الاختيار</translation>
    </message>
    <message>
        <source>The face is a child of its own; the button says by dynamic properties when it has no colour, or several.</source>
        <translation>الوجه ابن مستقل؛ والزر يقول بخصائص ديناميكية متى لا لون له أو متى كانت له عدة ألوان.</translation>
    </message>
    <message>
        <source>Click it to pick a colour</source>
        <translation>انقره لاختيار لون</translation>
    </message>
    <message>
        <source>A frame around one colour button.</source>
        <translation>إطار حول زر لون واحد.</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>اختر لونًا</translation>
    </message>
    <message>
        <source>Opacity can be adjusted</source>
        <translation>يمكن ضبط العتامة</translation>
    </message>
    <message>
        <source>The parts are selected by their names, and the buttons of colours as children of #colorMatrixPanel and #otherColorsQueuePanel; the one for no colour has nullColor. The panel itself writes the background-color of these and of the preview, opaque: a sheet shapes it with background-clip, and lays a background-image over it. The selector is a QDialog with roundedEdges.</source>
        <translation>تُختار الأجزاء بأسمائها، وأزرار الألوان بوصفها أبناء ‎#colorMatrixPanel و‎#otherColorsQueuePanel؛ وزر انعدام اللون له nullColor. تكتب اللوحة بنفسها background-color لهذه الأزرار وللمعاينة معتمًا: تشكّله الورقة بواسطة background-clip وتضع فوقه background-image. والمحدد هو QDialog مع roundedEdges.</translation>
    </message>
    <message>
        <source>Choose any colour</source>
        <translation>اختر أي لون</translation>
    </message>
    <message>
        <source>What the colour panel opens beside its own colours; internal to the library. The margins and gaps of both frames are the sheet&apos;s.</source>
        <translation>ما تفتحه لوحة الألوان بجانب ألوانها الخاصة؛ داخلي في المكتبة. هوامش الإطارين وفجواتهما تعود إلى الورقة.</translation>
    </message>
    <message>
        <source>Drag the marker</source>
        <translation>اسحب العلامة</translation>
    </message>
    <message>
        <source>The square of the free colour selector, and internal to the library. It asks for no room: min-width and min-height give it some.</source>
        <translation>مربع محدد الألوان الحر، وهو داخلي في المكتبة. لا يطلب مساحة: يعطيه إياها min-width وmin-height.</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>اختر وضعًا</translation>
    </message>
    <message>
        <source>Mode by its number</source>
        <translation>الوضع برقمه</translation>
    </message>
    <message>
        <source>Opacity of the layer</source>
        <translation>عتامة الطبقة</translation>
    </message>
    <message>
        <source>As OvComboBox in the look of the design system, or alone by its class name; its list is #tesselComboBoxView.</source>
        <translation>مثل OvComboBox بمظهر نظام التصميم، أو وحده باسم صنفه؛ وقائمته ‎#tesselComboBoxView.</translation>
    </message>
    <message>
        <source>none</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>حذف مع سد الفجوة</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>تشذيب</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Deletes the selected clip and closes the gap: everything behind it moves up, on &lt;b&gt;all&lt;/b&gt; tracks, so that sound and picture stay together.</source>
        <translation>يحذف المقطع المحدد ويسد الفجوة: كل ما بعده يتقدم، على &lt;b&gt;جميع&lt;/b&gt; المسارات، ليبقى الصوت والصورة معًا.</translation>
    </message>
    <message>
        <source>More about editing</source>
        <translation>المزيد عن التحرير</translation>
    </message>
    <message>
        <source>Drag the end of a clip to show less or more of it. Nothing is lost.</source>
        <translation>اسحب طرف المقطع لعرض المزيد منه أو الأقل. لا يضيع شيء.</translation>
    </message>
    <message>
        <source>More about trimming</source>
        <translation>المزيد عن التشذيب</translation>
    </message>
    <message>
        <source>Texts are measured for the width that the sheet gives the guide. Links have the colour of their label, unless their markup says another.</source>
        <translation>تُقاس النصوص للعرض الذي تعطيه الورقة للإرشاد. للروابط لون تسميتها، ما لم يقل ترميزها غير ذلك.</translation>
    </message>
    <message>
        <source>With an animated picture</source>
        <translation>مع صورة متحركة</translation>
    </message>
    <message>
        <source>A title alone</source>
        <translation>عنوان وحده</translation>
    </message>
    <message>
        <source>Nothing more to say</source>
        <translation>لا شيء آخر يقال</translation>
    </message>
    <message>
        <source>Without an info</source>
        <translation>بلا معلومات</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>المعلومات</translation>
    </message>
    <message>
        <source>A tool button. Its pop-up is a PointingWidget named pointingWidget, with a GuideWidget named guideWidget in it; both are below the button for a sheet.</source>
        <translation>زر أداة. نافذته المنبثقة PointingWidget باسم pointingWidget، وفيها GuideWidget باسم guideWidget؛ وكلاهما تحت الزر بالنسبة إلى الورقة.</translation>
    </message>
    <message>
        <source>Trim a clip</source>
        <translation>تشذيب مقطع</translation>
    </message>
    <message>
        <source>Drag its end. The picture shows how; nothing is lost.</source>
        <translation>اسحب طرفه. الصورة تبيّن كيف؛ لا يضيع شيء.</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>السابق</translation>
    </message>
    <message>
        <source>Start the tour</source>
        <translation>بدء الجولة</translation>
    </message>
    <message>
        <source>Find a component</source>
        <translation>البحث عن مكوّن</translation>
    </message>
    <message>
        <source>Type a few letters of a class, a title or a keyword.</source>
        <translation>اكتب بضعة أحرف من صنف أو عنوان أو كلمة مفتاحية.</translation>
    </message>
    <message>
        <source>Try another style</source>
        <translation>جرّب نمطًا آخر</translation>
    </message>
    <message>
        <source>Dark, light, high contrast, none at all, or a sheet of your own that reloads when you save it.</source>
        <translation>داكن أو فاتح أو عالي التباين أو بلا نمط، أو ورقة خاصة بك يعاد تحميلها عند حفظها.</translation>
    </message>
    <message>
        <source>Change it while it runs</source>
        <translation>غيّره أثناء عمله</translation>
    </message>
    <message>
        <source>The controls act on the enabled twin and the disabled one at once.</source>
        <translation>تؤثر العناصر في التوأمين معًا، الممكّن والمعطّل.</translation>
    </message>
    <message>
        <source>See what it says</source>
        <translation>انظر ما يقوله</translation>
    </message>
    <message>
        <source>Every signal of the component, newest last.</source>
        <translation>كل إشارات المكوّن، أحدثها في الآخر.</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>الأزرار</translation>
    </message>
    <message>
        <source>Close button</source>
        <translation>زر الإغلاق</translation>
    </message>
    <message>
        <source>Secondary button</source>
        <translation>الزر الثانوي</translation>
    </message>
    <message>
        <source>A PointingWidget; its bubble is painted from that one&apos;s properties.</source>
        <translation>هو PointingWidget؛ تُرسم فقاعته من خصائص ذلك الصنف.</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>المقطع %1</translation>
    </message>
    <message>
        <source>with sound</source>
        <translation>مع الصوت</translation>
    </message>
    <message>
        <source>Part of a clip&apos;s name</source>
        <translation>جزء من اسم مقطع</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>مسح البحث</translation>
    </message>
    <message>
        <source>Search clips</source>
        <translation>البحث في المقاطع</translation>
    </message>
    <message>
        <source>Beach, morning</source>
        <translation>الشاطئ، صباحًا</translation>
    </message>
    <message>
        <source>Beach, evening</source>
        <translation>الشاطئ، مساءً</translation>
    </message>
    <message>
        <source>Harbour</source>
        <translation>الميناء</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>مقابلة</translation>
    </message>
    <message>
        <source>Interview, second camera</source>
        <translation>مقابلة، الكاميرا الثانية</translation>
    </message>
    <message>
        <source>Nobody would find this folder again: %1</source>
        <translation>لن يجد أحد هذا المجلد ثانية: %1</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>مقلوب</translation>
    </message>
    <message>
        <source>Colours and sizes are those of a hidden child, selected by its class name and, where they differ for a disabled plane, with [enabled=&quot;false&quot;]. The sheet gives the plane its size.</source>
        <translation>الألوان والأحجام هي لابن مخفي يُختار باسم صنفه، وحيث تختلف للمستوى المعطّل، بواسطة [enabled=&quot;false&quot;]. تعطي الورقة المستوى حجمه.</translation>
    </message>
    <message>
        <source>Frames around a point plane and two labelled spin boxes. The labels are empty: the sheet may give them a text, with qproperty-text, or a picture.</source>
        <translation>إطارات حول مستوى نقاط وخانتي أرقام مع تسميتين. التسميتان فارغتان: قد تعطيهما الورقة نصًا بواسطة qproperty-text أو صورة.</translation>
    </message>
    <message>
        <source>Full HD, 1920 × 1080, 25 frames</source>
        <translation>دقة كاملة، 1920 × 1080، 25 إطارًا</translation>
    </message>
    <message>
        <source>Ultra HD, 3840 × 2160, 60 frames</source>
        <translation>دقة فائقة، 3840 × 2160، 60 إطارًا</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>مربع</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>مثل المصدر</translation>
    </message>
    <message>
        <source>With room</source>
        <translation>مع متسع</translation>
    </message>
    <message>
        <source>In a narrow panel</source>
        <translation>في لوحة ضيقة</translation>
    </message>
    <message>
        <source>Width of the narrow one</source>
        <translation>عرض الضيق منهما</translation>
    </message>
    <message>
        <source>As QComboBox, with its sub-controls and its view, or alone by its class name; the pop-up&apos;s state is a dynamic property.</source>
        <translation>مثل QComboBox بعناصره الفرعية وعرضه، أو وحده باسم صنفه؛ وحالة القائمة خاصية ديناميكية.</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>عادي</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>ضرب</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>شاشة</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>كما كان</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation>بعد التحويل</translation>
    </message>
    <message>
        <source>Convert the first one too</source>
        <translation>تحويل الأول أيضًا</translation>
    </message>
    <message>
        <source>A combo box with the property; the view of its list has the object name tesselComboBoxView.</source>
        <translation>مربع تحرير وسرد له هذه الخاصية؛ واسم كائن عرض قائمته tesselComboBoxView.</translation>
    </message>
    <message>
        <source>A text</source>
        <translation>نص</translation>
    </message>
    <message>
        <source>Text to edit</source>
        <translation>نص للتحرير</translation>
    </message>
    <message>
        <source>A placeholder</source>
        <translation>نص نائب</translation>
    </message>
    <message>
        <source>Name of the clip</source>
        <translation>اسم المقطع</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>للقراءة فقط</translation>
    </message>
    <message>
        <source>Text to copy</source>
        <translation>نص للنسخ</translation>
    </message>
    <message>
        <source>Selected as QLineEdit or, alone, as Orvane--Tessel--TesselLineEdit; its menu as QMenu#tesselContextMenu.</source>
        <translation>يُختار مثل QLineEdit أو وحده مثل Orvane--Tessel--TesselLineEdit؛ وقائمته مثل QMenu‎#tesselContextMenu.</translation>
    </message>
    <message>
        <source>By itself</source>
        <translation>وحده</translation>
    </message>
    <message>
        <source>Above a list that it filters</source>
        <translation>فوق قائمة يصفّيها</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>النص النائب</translation>
    </message>
    <message>
        <source>A frame around an icon, a line edit and a button that clears it. &quot;focusHint&quot; is set from the first time that the line edit gets the keyboard.</source>
        <translation>إطار حول أيقونة وحقل نص وزر يمسحه. تُضبط &quot;focusHint&quot; منذ أول مرة يأخذ فيها حقل النص لوحة المفاتيح.</translation>
    </message>
    <message>
        <source>A bin of clips</source>
        <translation>سلة مقاطع</translation>
    </message>
    <message>
        <source>Loading is finished</source>
        <translation>انتهى التحميل</translation>
    </message>
    <message>
        <source>The model</source>
        <translation>النموذج</translation>
    </message>
    <message>
        <source>Add clips: %1</source>
        <translation>إضافة مقاطع: %1</translation>
    </message>
    <message>
        <source>Remove all clips</source>
        <translation>إزالة جميع المقاطع</translation>
    </message>
    <message>
        <source>As QListView: it has no class of its own for a sheet. Its minimum height is its own, whatever the sheet says.</source>
        <translation>مثل QListView: ليس لها صنف خاص في ورقة الأنماط. ارتفاعها الأدنى يخصها مهما قالت الورقة.</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>اختيار مجلد</translation>
    </message>
    <message>
        <source>Back to the home folder</source>
        <translation>العودة إلى المجلد الشخصي</translation>
    </message>
    <message>
        <source>With a default folder and space on its disk</source>
        <translation>مع مجلد افتراضي ومساحة على قرصه</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>المجلد الشخصي</translation>
    </message>
    <message>
        <source>A relative path, with its error below</source>
        <translation>مسار نسبي، وخطؤه تحته</translation>
    </message>
    <message>
        <source>Check the upper field</source>
        <translation>فحص الحقل العلوي</translation>
    </message>
    <message>
        <source>upper</source>
        <translation>العلوي</translation>
    </message>
    <message>
        <source>Check the lower field</source>
        <translation>فحص الحقل السفلي</translation>
    </message>
    <message>
        <source>lower</source>
        <translation>السفلي</translation>
    </message>
    <message>
        <source>The upper field&apos;s error</source>
        <translation>خطأ الحقل العلوي</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>لا مكان</translation>
    </message>
    <message>
        <source>tool tip</source>
        <translation>تلميح الأداة</translation>
    </message>
    <message>
        <source>label</source>
        <translation>تسمية</translation>
    </message>
    <message>
        <source>Refuse hidden folders instead</source>
        <translation>رفض المجلدات المخفية بدلًا من ذلك</translation>
    </message>
    <message>
        <source>The upper field</source>
        <translation>الحقل العلوي</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>المسار</translation>
    </message>
    <message>
        <source>Default path&apos;s text</source>
        <translation>نص المسار الافتراضي</translation>
    </message>
    <message>
        <source>Required megabytes</source>
        <translation>الميغابايتات المطلوبة</translation>
    </message>
    <message>
        <source>A frame around a line edit and its buttons, which carries the border, the hint &quot;error&quot; and, from the first time that the line edit gets the keyboard, &quot;focusHint&quot;; figures above it and a message below it.</source>
        <translation>إطار حول حقل نص وأزراره، يحمل الحد والتلميح &quot;error&quot;، ومنذ أول مرة يأخذ فيها حقل النص لوحة المفاتيح، &quot;focusHint&quot;؛ أرقام فوقه ورسالة تحته.</translation>
    </message>
    <message>
        <source>Search parameters</source>
        <translation>البحث في المعاملات</translation>
    </message>
    <message>
        <source>A frame controls its own layout</source>
        <translation>إطار يتحكم في تخطيطه</translation>
    </message>
    <message>
        <source>A group box with an installed controller</source>
        <translation>مربع مجموعة ثُبّت له متحكم</translation>
    </message>
    <message>
        <source>The base of composite components; a sheet sets the metrics of its layout through its properties.</source>
        <translation>أساس المكونات المركبة؛ تضبط الورقة مقاييس تخطيطه عبر خصائصه.</translation>
    </message>
    <message>
        <source>Any widget with an installed controller: select the controller by its class name below the widget.</source>
        <translation>أي عنصر ثُبّت له متحكم: اختر المتحكم باسم صنفه تحت العنصر.</translation>
    </message>
    <message>
        <source>autoFill() and a stretch behind</source>
        <translation>‏autoFill()‎ وتمدد بعده</translation>
    </message>
    <message>
        <source>addItems() with a spacer</source>
        <translation>‏addItems()‎ مع فاصل</translation>
    </message>
    <message>
        <source>A grid: one cell spans two, one is aligned right</source>
        <translation>شبكة: خلية تمتد على اثنتين، وأخرى محاذاة إلى اليمين</translation>
    </message>
    <message>
        <source>A column</source>
        <translation>عمود</translation>
    </message>
    <message>
        <source>The spacer behind item 1</source>
        <translation>الفاصل بعد العنصر 1</translation>
    </message>
    <message>
        <source>Policy</source>
        <translation>السياسة</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>متمدد</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>ثابت</translation>
    </message>
    <message>
        <source>Factor or pixels</source>
        <translation>المعامل أو البكسلات</translation>
    </message>
    <message>
        <source>The frame around</source>
        <translation>الإطار المحيط</translation>
    </message>
    <message>
        <source>A button</source>
        <translation>زر</translation>
    </message>
    <message>
        <source>An edit</source>
        <translation>حقل نص</translation>
    </message>
    <message>
        <source>A slider</source>
        <translation>شريط تمرير</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>(لا شيء)</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>التلميح</translation>
    </message>
    <message>
        <source>Member name</source>
        <translation>اسم العضو</translation>
    </message>
    <message>
        <source>Choose a variant below</source>
        <translation>اختر صيغة أدناه</translation>
    </message>
    <message>
        <source>Variant of the edit</source>
        <translation>صيغة الحقل</translation>
    </message>
    <message>
        <source>Any text</source>
        <translation>أي نص</translation>
    </message>
    <message>
        <source>Any plain control: ColorHint and Util::applyStyleHint() give it one of the shared variants.</source>
        <translation>أي عنصر تحكم بسيط: تعطيه ColorHint وUtil‎::applyStyleHint()‎ إحدى الصيغ المشتركة.</translation>
    </message>
    <message>
        <source>A dial whose hand is styled</source>
        <translation>قرص منمَّط العقرب</translation>
    </message>
    <message>
        <source>An example: the provider is selected by its class name below the widget that it serves.</source>
        <translation>مثال: يُختار المزوّد باسم صنفه تحت العنصر الذي يخدمه.</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>أفقي</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>رأسي</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>القيمة</translation>
    </message>
    <message>
        <source>A frame around a slider and a spin box without arrows.</source>
        <translation>إطار حول شريط تمرير وخانة أرقام بلا أسهم.</translation>
    </message>
    <message>
        <source>Two decimals</source>
        <translation>منزلتان عشريتان</translation>
    </message>
    <message>
        <source>Six decimals</source>
        <translation>ست منازل عشرية</translation>
    </message>
    <message>
        <source>A number</source>
        <translation>عدد</translation>
    </message>
    <message>
        <source>With a unit</source>
        <translation>مع وحدة</translation>
    </message>
    <message>
        <source>As QSpinBox, with its sub-controls, or alone by its class name.</source>
        <translation>مثل QSpinBox بعناصره الفرعية، أو وحده باسم صنفه.</translation>
    </message>
    <message>
        <source>The language&apos;s decimal mark</source>
        <translation>العلامة العشرية للغة</translation>
    </message>
    <message>
        <source>Point and comma</source>
        <translation>النقطة والفاصلة</translation>
    </message>
    <message>
        <source>As QDoubleSpinBox, with its sub-controls, or alone by its class name.</source>
        <translation>مثل QDoubleSpinBox بعناصره الفرعية، أو وحده باسم صنفه.</translation>
    </message>
    <message>
        <source>As QSlider, with ::groove, ::handle, ::add-page and ::sub-page, or alone by its class name.</source>
        <translation>مثل QSlider مع ‎::groove و‎::handle و‎::add-page و‎::sub-page، أو وحده باسم صنفه.</translation>
    </message>
    <message>
        <source>As OvCustomSlider and QSlider, or alone by its class name.</source>
        <translation>مثل OvCustomSlider وQSlider، أو وحده باسم صنفه.</translation>
    </message>
    <message>
        <source>As OvCustomSlider, with ::groove, ::handle, ::add-page and ::sub-page, or alone by its class name.</source>
        <translation>مثل OvCustomSlider مع ‎::groove و‎::handle و‎::add-page و‎::sub-page، أو وحده باسم صنفه.</translation>
    </message>
    <message>
        <source>Whole numbers</source>
        <translation>أعداد صحيحة</translation>
    </message>
    <message>
        <source>Fractions</source>
        <translation>كسور</translation>
    </message>
    <message>
        <source>Picked colours</source>
        <translation>الألوان الملتقطة</translation>
    </message>
    <message>
        <source>Pick a colour from the screen</source>
        <translation>التقاط لون من الشاشة</translation>
    </message>
    <message>
        <source>What it picked, the latest first</source>
        <translation>ما التقطته، الأحدث أولًا</translation>
    </message>
    <message>
        <source>The loupe by itself</source>
        <translation>العدسة وحدها</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>الصورة</translation>
    </message>
    <message>
        <source>Anywhere</source>
        <translation>في أي مكان</translation>
    </message>
    <message>
        <source>In a corner of the desktop</source>
        <translation>في زاوية سطح المكتب</translation>
    </message>
    <message>
        <source>None</source>
        <translation>لا شيء</translation>
    </message>
    <message>
        <source>The loupe of the pipette, which carries the property roundedEdges. Its border is painted over the picture; its background must be transparent. The windows that cover the screens meanwhile are of the class PipetteScreenView: its cursorPixmap, cursorSize and cursorHotSpot are the cursor of the pick.</source>
        <translation>عدسة القطارة، وتحمل الخاصية roundedEdges. يُرسم حدها فوق الصورة؛ ويجب أن تكون خلفيتها شفافة. النوافذ التي تغطي الشاشات أثناء ذلك من الصنف PipetteScreenView: وخصائصه cursorPixmap وcursorSize وcursorHotSpot هي مؤشر الالتقاط.</translation>
    </message>
    <message>
        <source>A button that shows its colour</source>
        <translation>زر يرتدي لونه</translation>
    </message>
    <message>
        <source>Before its first pick</source>
        <translation>قبل أول التقاط</translation>
    </message>
    <message>
        <source>Pick a colour from the film</source>
        <translation>التقاط لون من الفيلم</translation>
    </message>
    <message>
        <source>A colour button with this picker</source>
        <translation>زر لون مع هذا المنتقي</translation>
    </message>
    <message>
        <source>Target and cursor</source>
        <translation>الهدف والمؤشر</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>الهدف</translation>
    </message>
    <message>
        <source>The film</source>
        <translation>الفيلم</translation>
    </message>
    <message>
        <source>The whole page</source>
        <translation>الصفحة كلها</translation>
    </message>
    <message>
        <source>Picking cursor</source>
        <translation>مؤشر الالتقاط</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>صليب</translation>
    </message>
    <message>
        <source>Pointing hand</source>
        <translation>يد مشيرة</translation>
    </message>
    <message>
        <source>Question mark</source>
        <translation>علامة استفهام</translation>
    </message>
    <message>
        <source>The film runs</source>
        <translation>الفيلم يعمل</translation>
    </message>
    <message>
        <source>Its background is its colour, written into its own sheet; size and border are the application&apos;s.</source>
        <translation>خلفيته هي لونه، مكتوبة في ورقته الخاصة؛ أما الحجم والحد فلورقة التطبيق.</translation>
    </message>
    <message>
        <source>File</source>
        <translation>الملف</translation>
    </message>
    <message>
        <source>The scene&apos;s source</source>
        <translation>مصدر المشهد</translation>
    </message>
    <message>
        <source>Result of exec()</source>
        <translation>نتيجة exec()‎</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>تتعذر كتابة %1</translation>
    </message>
    <message>
        <source>Values of the form</source>
        <translation>قيم النموذج</translation>
    </message>
    <message>
        <source>Errors in the scene</source>
        <translation>أخطاء في المشهد</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>المشهد</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>التأكيد</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>النموذج</translation>
    </message>
    <message>
        <source>One that fails to load</source>
        <translation>مشهد يتعذر تحميله</translation>
    </message>
    <message>
        <source>Centred on this page</source>
        <translation>في وسط هذه الصفحة</translation>
    </message>
    <message>
        <source>Open a new dialog</source>
        <translation>فتح مربع حوار جديد</translation>
    </message>
    <message>
        <source>Open the last dialog again</source>
        <translation>فتح آخر مربع حوار مجددًا</translation>
    </message>
    <message>
        <source>Original source</source>
        <translation>المصدر الأصلي</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>نعم</translation>
    </message>
    <message>
        <source>no</source>
        <translation>لا</translation>
    </message>
    <message>
        <source>Asked for</source>
        <translation>المطلوب</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>البايتات</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>المنازل العشرية</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>تلقائي</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>الوحدة</translation>
    </message>
    <message>
        <source>Bytes in a kilobyte</source>
        <translation>البايتات في الكيلوبايت</translation>
    </message>
    <message>
        <source>Root folder</source>
        <translation>المجلد الجذر</translation>
    </message>
    <message>
        <source>A file in the place of a folder</source>
        <translation>ملف مكان المجلد</translation>
    </message>
    <message>
        <source>Empty path</source>
        <translation>مسار فارغ</translation>
    </message>
    <message>
        <source>Own colours</source>
        <translation>الألوان الخاصة</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>قراءة من جديد</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>الطلبات</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>الاستدعاءات</translation>
    </message>
    <message>
        <source>A call is pending</source>
        <translation>استدعاء معلّق</translation>
    </message>
    <message>
        <source>Delay in milliseconds</source>
        <translation>التأخير بالميلي ثانية</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>ممكّن</translation>
    </message>
    <message>
        <source>One request</source>
        <translation>طلب واحد</translation>
    </message>
    <message>
        <source>A burst of %1 requests</source>
        <translation>دفعة من %1 طلبات</translation>
    </message>
    <message>
        <source>Your title</source>
        <translation>عنوانك</translation>
    </message>
    <message>
        <source>A title of your own</source>
        <translation>عنوان من عندك</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>العنوان</translation>
    </message>
    <message>
        <source>granted</source>
        <translation>ممنوح</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>مرفوض</translation>
    </message>
    <message>
        <source>not available on this platform</source>
        <translation>غير متاح على هذه المنصة</translation>
    </message>
    <message>
        <source>Platform</source>
        <translation>المنصة</translation>
    </message>
    <message>
        <source>Request %1</source>
        <translation>طلب %1</translation>
    </message>
    <message>
        <source>Take the view out and put it back</source>
        <translation>إخراج العرض وإعادته</translation>
    </message>
    <message>
        <source>The view</source>
        <translation>العرض</translation>
    </message>
    <message>
        <source>no widget</source>
        <translation>لا عنصر</translation>
    </message>
    <message>
        <source>Keyboard focus</source>
        <translation>تركيز لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Apply the workaround</source>
        <translation>تطبيق الحل البديل</translation>
    </message>
    <message>
        <source>Open the dialog</source>
        <translation>فتح مربع الحوار</translation>
    </message>
    <message>
        <source>Writes a number of bytes as users read it, in the current language&apos;s units and digits.</source>
        <translation>يكتب عدد البايتات كما يقرؤه المستخدمون، بوحدات اللغة الحالية وأرقامها.</translation>
    </message>
    <message>
        <source>Headings are bold where both the language and the title are written in a script that has a tradition of bold type, and plain where bold would hurt legibility. Markup in a title is shown as text.</source>
        <translation>تكون العناوين عريضة حيث كُتبت اللغة والعنوان بكتابة لها تقليد الخط العريض، وعادية حيث يضر العريض بالقراءة. يُعرض الترميز في العنوان نصًا.</translation>
    </message>
    <message>
        <source>What an editor asks about a path that a user typed: whether it could be a folder, where the nearest one is, and what the program may do there.</source>
        <translation>ما يسأل عنه المحرر في مسار كتبه المستخدم: هل يصلح مجلدًا، وأين أقربها، وماذا يجوز للبرنامج هناك.</translation>
    </message>
    <message>
        <source>Whether the system lets the program read the screen and the input of other programs, asked without troubling the user.</source>
        <translation>هل يسمح النظام للبرنامج بقراءة الشاشة وإدخال البرامج الأخرى، يُسأل دون إزعاج المستخدم.</translation>
    </message>
    <message>
        <source>The user&apos;s own colours outlive the program, also when it is killed right after the write. They are kept under the host&apos;s organisation and application name, or in a store that the host hands over. A colour is added at the front, eight are kept, and neither a colour of the fixed palette nor one that is there already is taken.</source>
        <translation>تبقى الألوان الخاصة بعد البرنامج، ولو أُنهي فور الكتابة. تُحفظ تحت اسم مؤسسة المضيف وتطبيقه، أو في مخزن يسلّمه المضيف. يُضاف اللون في المقدمة وتُحفظ ثمانية، ولا يُؤخذ لون من المجموعة الثابتة ولا لون موجود.</translation>
    </message>
    <message>
        <source>Merges a burst of requests into one deferred call. Later requests do not put the call off, so a steady stream of them still gets its calls.</source>
        <translation>يدمج دفعة من الطلبات في استدعاء مؤجل واحد. الطلبات اللاحقة لا تؤخر الاستدعاء، فيحصل السيل المستمر منها على استدعاءاته.</translation>
    </message>
    <message>
        <source>Qt forgets the focus of a view whose host is taken out of a window and put back. With the workaround the keyboard goes to the view; without it, to whatever comes first. A line edit stands for the view here: the workaround works for every kind.</source>
        <translation>ينسى Qt تركيز عرض يُخرَج مضيفه من نافذة ويُعاد. مع الحل البديل تذهب لوحة المفاتيح إلى العرض؛ وبدونه إلى أول ما يأتي. حقل نص ينوب هنا عن العرض: يعمل الحل البديل مع كل نوع.</translation>
    </message>
    <message>
        <source>One edit, one step</source>
        <translation>تحرير واحد، خطوة واحدة</translation>
    </message>
    <message>
        <source>A session tells what a user does to a field as one story, from the first change to the end of the drag, the text or the pick. Here each becomes one step of undo. Escape takes it back.</source>
        <translation>تروي الجلسة ما يفعله المستخدم بالحقل قصةً واحدة، من أول تغيير إلى نهاية السحب أو النص أو الاختيار. هنا تصبح كل منها خطوة تراجع واحدة. يعيدها Escape.</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>several values</source>
        <translation>عدة قيم</translation>
    </message>
    <message>
        <source>typing</source>
        <translation>كتابة بالمفاتيح</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>تحرير</translation>
    </message>
    <message>
        <source>Drag it, hold an arrow key, type, turn the wheel</source>
        <translation>اسحبه، أو ثبّت مفتاح سهم، أو اكتب، أو أدر العجلة</translation>
    </message>
    <message>
        <source>Drag the point</source>
        <translation>اسحب النقطة</translation>
    </message>
    <message>
        <source>Try colours, then press Escape or Enter</source>
        <translation>جرّب ألوانًا ثم اضغط Escape أو Enter</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Several values</source>
        <translation>عدة قيم</translation>
    </message>
    <message>
        <source>A field that stands for several values has multiValue, and a label #multiValueCover covers each of its line edits.</source>
        <translation>الحقل الذي يمثل عدة قيم له multiValue، وتسمية ‎#multiValueCover تغطي كلًا من حقول نصه.</translation>
    </message>
    <message>
        <source>Title cards</source>
        <translation>بطاقات العناوين</translation>
    </message>
    <message>
        <source>An application in miniature, to be read in examples/titlecard: an inspector of several cards, undo and redo of everything, presets, a tour, a QML dialog, and pictures of the canvas.</source>
        <translation>تطبيق مصغّر يُقرأ في examples/titlecard: مفتش لعدة بطاقات، وتراجع وإعادة لكل شيء، وإعدادات مسبقة، وجولة، ومربع حوار QML، وصور للوحة الرسم.</translation>
    </message>
    <message>
        <source>application</source>
        <translation>تطبيق</translation>
    </message>
    <message>
        <source>export</source>
        <translation>تصدير</translation>
    </message>
    <message>
        <source>First light</source>
        <translation>أول الضوء</translation>
    </message>
    <message>
        <source>A film</source>
        <translation>فيلم</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>اللغات</translation>
    </message>
    <message>
        <source>The languages that the library has its texts in. One call loads one of them, here by the switch of the gallery, and every component changes at once.</source>
        <translation>اللغات التي توجد بها نصوص المكتبة. استدعاء واحد يحمّل إحداها، وهنا عبر مبدّل المعرض، فيتغير كل مكوّن فورًا.</translation>
    </message>
</context>
<context>
    <name>ParameterPanel</name>
    <message>
        <source>Search</source>
        <translation>بحث</translation>
    </message>
    <message>
        <source>Part of a parameter&apos;s name</source>
        <translation>جزء من اسم معامل</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>مسح البحث</translation>
    </message>
    <message>
        <source>Search parameters</source>
        <translation>البحث في المعاملات</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>المقياس</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>الدوران</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>العتامة</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>المزج</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>الصبغة</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>اختيار مجلد</translation>
    </message>
    <message>
        <source>Back to the home folder</source>
        <translation>العودة إلى المجلد الشخصي</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>المجلد الشخصي</translation>
    </message>
    <message>
        <source>Proxies</source>
        <translation>الوكلاء</translation>
    </message>
    <message>
        <source>Stabilise</source>
        <translation>تثبيت الصورة</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>زيادة الحدة</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>حبيبات الفيلم</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>التأثيرات</translation>
    </message>
</context>
<context>
    <name>PickerChoice</name>
    <message>
        <source>Picker</source>
        <translation>المنتقي</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>النوع</translation>
    </message>
    <message>
        <source>Colour panel</source>
        <translation>لوحة الألوان</translation>
    </message>
    <message>
        <source>Qt&apos;s colour dialog</source>
        <translation>مربع حوار الألوان في Qt</translation>
    </message>
    <message>
        <source>Panel: no colour allowed</source>
        <translation>اللوحة: يُسمح بانعدام اللون</translation>
    </message>
    <message>
        <source>Panel: with opacity</source>
        <translation>اللوحة: مع العتامة</translation>
    </message>
    <message>
        <source>Panel: with own colours</source>
        <translation>اللوحة: مع الألوان الخاصة</translation>
    </message>
</context>
<context>
    <name>PropertyPanel</name>
    <message>
        <source>Properties</source>
        <translation>الخصائص</translation>
    </message>
</context>
<context>
    <name>SheetText</name>
    <message>
        <source>there is no property “%1”</source>
        <translation>لا توجد خاصية &quot;%1&quot;</translation>
    </message>
    <message>
        <source>error near “%1”</source>
        <translation>خطأ قرب &quot;%1&quot;</translation>
    </message>
    <message>
        <source>the rule has no end</source>
        <translation>القاعدة بلا نهاية</translation>
    </message>
</context>
<context>
    <name>SignalLogView</name>
    <message>
        <source>Signals</source>
        <translation>الإشارات</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Use the component: its signals appear here.</source>
        <translation>استخدم المكوّن: تظهر إشاراته هنا.</translation>
    </message>
</context>
<context>
    <name>SwitchBar</name>
    <message>
        <source>A style sheet of your own that reloads when you save it</source>
        <translation>ورقة أنماط خاصة بك يعاد تحميلها عند حفظها</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>النمط</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>اللغة</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>الاتجاه</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>المقياس</translation>
    </message>
    <message>
        <source>Restarts the gallery on the same page</source>
        <translation>يعيد تشغيل المعرض على الصفحة نفسها</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>داكن</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>فاتح</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>عالي التباين</translation>
    </message>
    <message>
        <source>None</source>
        <translation>بلا</translation>
    </message>
    <message>
        <source>File…</source>
        <translation>ملف…</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>من اليسار إلى اليمين</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>من اليمين إلى اليسار</translation>
    </message>
</context>
<context>
    <name>Walk</name>
    <message>
        <source>Done</source>
        <translation>تم</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>التالي</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>السابق</translation>
    </message>
</context>
<context>
    <name>WidgetFacts</name>
    <message>
        <source>Class</source>
        <translation>الصنف</translation>
    </message>
    <message>
        <source>Base classes</source>
        <translation>الأصناف الأساس</translation>
    </message>
    <message>
        <source>Object name</source>
        <translation>اسم الكائن</translation>
    </message>
    <message>
        <source>Dynamic properties</source>
        <translation>الخصائص الديناميكية</translation>
    </message>
    <message>
        <source>Rules, the strongest first</source>
        <translation>القواعد، الأقوى أولًا</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>السطر %1</translation>
    </message>
    <message>
        <source>sheet of %1</source>
        <translation>ورقة %1</translation>
    </message>
    <message>
        <source>the gallery&apos;s own</source>
        <translation>ورقة المعرض نفسه</translation>
    </message>
    <message>
        <source>Properties that a rule can set</source>
        <translation>الخصائص التي تستطيع القاعدة ضبطها</translation>
    </message>
    <message>
        <source>Parents</source>
        <translation>الآباء</translation>
    </message>
    <message>
        <source>Children</source>
        <translation>الأبناء</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>Workbench</source>
        <translation>الورشة</translation>
    </message>
    <message>
        <source>Point at a widget</source>
        <translation>أشر إلى عنصر</translation>
    </message>
    <message>
        <source>Click any widget to see what a sheet can know of it (F12); Escape ends it</source>
        <translation>انقر أي عنصر لترى ما يمكن أن تعرفه الورقة عنه (F12)؛ وينهيه Escape</translation>
    </message>
    <message>
        <source>Copy C++</source>
        <translation>نسخ C++‎</translation>
    </message>
    <message>
        <source>Copies the code that builds what the page shows, with its present values</source>
        <translation>ينسخ الشفرة التي تبني ما تعرضه الصفحة بقيمه الحالية</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>حفظ</translation>
    </message>
    <message>
        <source>Writes the sheet into its file; a built-in sheet has none</source>
        <translation>يكتب الورقة في ملفها؛ وليس للورقة المدمجة ملف</translation>
    </message>
    <message>
        <source>Widget</source>
        <translation>العنصر</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>ورقة أنماط</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>السطر %1: %2</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>تم النسخ.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>تم الحفظ.</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>تتعذر كتابة الملف.</translation>
    </message>
</context>
</TS>
