<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar">
<context>
    <name>TitleCard::Editor</name>
    <message>
        <source>New card...</source>
        <translation>بطاقة جديدة...</translation>
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
        <source>Save as preset</source>
        <translation>حفظ كإعداد مسبق</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation>تصدير الصورة</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>جولة</translation>
    </message>
    <message>
        <source>New card</source>
        <translation>بطاقة جديدة</translation>
    </message>
    <message>
        <source>The picture cannot be saved as %1.</source>
        <translation>يتعذر حفظ الصورة باسم %1.</translation>
    </message>
    <message>
        <source>The canvas</source>
        <translation>لوحة الرسم</translation>
    </message>
    <message>
        <source>A click selects a card, Ctrl and a click several.</source>
        <translation>النقرة تحدد بطاقة، وCtrl مع نقرة تحدد عدة بطاقات.</translation>
    </message>
    <message>
        <source>The inspector</source>
        <translation>المفتش</translation>
    </message>
    <message>
        <source>All selected cards get what you change. Escape takes it back.</source>
        <translation>تأخذ كل البطاقات المحددة ما تغيّره. يعيده Escape.</translation>
    </message>
    <message>
        <source>The folder</source>
        <translation>المجلد</translation>
    </message>
    <message>
        <source>The canvas is saved here as a picture.</source>
        <translation>تُحفظ لوحة الرسم هنا صورةً.</translation>
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
        <source>Title cards</source>
        <translation>بطاقات العناوين</translation>
    </message>
    <message>
        <source>Name of a preset</source>
        <translation>اسم إعداد مسبق</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>مسح</translation>
    </message>
    <message>
        <source>Search presets</source>
        <translation>البحث في الإعدادات المسبقة</translation>
    </message>
    <message>
        <source>Where the picture is saved</source>
        <translation>أين تُحفظ الصورة</translation>
    </message>
</context>
<context>
    <name>TitleCard::Inspector</name>
    <message>
        <source>Text</source>
        <translation>النص</translation>
    </message>
    <message>
        <source>What the card says. Escape brings it back.</source>
        <translation>ما تقوله البطاقة. يعيده Escape.</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>اللون</translation>
    </message>
    <message>
        <source>Of the letters.</source>
        <translation>لون الحروف.</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>الحد الخارجي</translation>
    </message>
    <message>
        <source>Around the letters, or none.</source>
        <translation>حول الحروف، أو بلا حد.</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>الخلفية</translation>
    </message>
    <message>
        <source>Behind the letters, or none.</source>
        <translation>خلف الحروف، أو بلا خلفية.</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>الحجم</translation>
    </message>
    <message>
        <source>Of the letters in pixels.</source>
        <translation>حجم الحروف بالبكسل.</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>الدوران</translation>
    </message>
    <message>
        <source>Degrees, clockwise.</source>
        <translation>بالدرجات، باتجاه عقارب الساعة.</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>العتامة</translation>
    </message>
    <message>
        <source>0 cannot be seen, and 1 hides what is below.</source>
        <translation>0 لا يُرى، و1 يخفي ما تحته.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>الموضع</translation>
    </message>
    <message>
        <source>Of the middle of the card: -1 is left and top, 1 right and bottom.</source>
        <translation>موضع وسط البطاقة: ‎-1 لليسار والأعلى، و1 لليمين والأسفل.</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>المزج</translation>
    </message>
    <message>
        <source>How the card is mixed with what lies below it.</source>
        <translation>كيف تُمزج البطاقة بما تحتها.</translation>
    </message>
</context>
<context>
    <name>TitleCard::NewCardDialog</name>
    <message>
        <source>Text of the new card</source>
        <translation>نص البطاقة الجديدة</translation>
    </message>
</context>
</TS>
