<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>TitleCard::Editor</name>
    <message>
        <source>New card...</source>
        <translation>新建卡片...</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>另存为预设</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation>导出图片</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>导览</translation>
    </message>
    <message>
        <source>New card</source>
        <translation>新建卡片</translation>
    </message>
    <message>
        <source>The picture cannot be saved as %1.</source>
        <translation>无法将图片保存为 %1。</translation>
    </message>
    <message>
        <source>The canvas</source>
        <translation>画布</translation>
    </message>
    <message>
        <source>A click selects a card, Ctrl and a click several.</source>
        <translation>单击选择一张卡片，按住 Ctrl 单击选择多张。</translation>
    </message>
    <message>
        <source>The inspector</source>
        <translation>检查器</translation>
    </message>
    <message>
        <source>All selected cards get what you change. Escape takes it back.</source>
        <translation>您的更改作用于所有选中的卡片。按 Esc 可撤回。</translation>
    </message>
    <message>
        <source>The folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>The canvas is saved here as a picture.</source>
        <translation>画布作为图片保存在这里。</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
    <message>
        <source>Title cards</source>
        <translation>字幕卡</translation>
    </message>
    <message>
        <source>Name of a preset</source>
        <translation>预设名称</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Search presets</source>
        <translation>搜索预设</translation>
    </message>
    <message>
        <source>Where the picture is saved</source>
        <translation>图片的保存位置</translation>
    </message>
</context>
<context>
    <name>TitleCard::Inspector</name>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>What the card says. Escape brings it back.</source>
        <translation>卡片的文字。按 Esc 可恢复。</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Of the letters.</source>
        <translation>字母的颜色。</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>描边</translation>
    </message>
    <message>
        <source>Around the letters, or none.</source>
        <translation>环绕字母，或无。</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Behind the letters, or none.</source>
        <translation>字母背后，或无。</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Of the letters in pixels.</source>
        <translation>字母的像素大小。</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Degrees, clockwise.</source>
        <translation>度数，顺时针。</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>0 cannot be seen, and 1 hides what is below.</source>
        <translation>0 为不可见，1 遮住下方内容。</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Of the middle of the card: -1 is left and top, 1 right and bottom.</source>
        <translation>卡片中心的位置：-1 为左和上，1 为右和下。</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>混合</translation>
    </message>
    <message>
        <source>How the card is mixed with what lies below it.</source>
        <translation>卡片与其下方内容的混合方式。</translation>
    </message>
</context>
<context>
    <name>TitleCard::NewCardDialog</name>
    <message>
        <source>Text of the new card</source>
        <translation>新卡片的文字</translation>
    </message>
</context>
</TS>
