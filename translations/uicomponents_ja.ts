<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>ColorPickerWidget</name>
    <message>
        <source>Other:</source>
        <translation>その他:</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>不透明度:</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>色なし</translation>
    </message>
    <message>
        <source>Colour value</source>
        <translation>色の値</translation>
    </message>
    <message>
        <source>Pick a colour from the screen</source>
        <translation>画面から色を取得</translation>
    </message>
    <message>
        <source>Choose another colour</source>
        <translation>ほかの色を選択</translation>
    </message>
</context>
<context>
    <name>CustomColorSelectWidget</name>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
</context>
<context>
    <name>DialogGuideWidget</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>FileUtil</name>
    <message>
        <source>No path is given</source>
        <translation>パスが指定されていません</translation>
    </message>
    <message>
        <source>Not a path on a disk: %1</source>
        <translation>ディスク上のパスではありません: %1</translation>
    </message>
    <message>
        <source>The path has characters that names on this disk cannot have: %1</source>
        <translation>このディスクの名前に使えない文字がパスに含まれています: %1</translation>
    </message>
    <message>
        <source>The path is too long: %1</source>
        <translation>パスが長すぎます: %1</translation>
    </message>
    <message>
        <source>A name in the path is too long: %1</source>
        <translation>パスに含まれる名前が長すぎます: %1</translation>
    </message>
    <message>
        <source>There is something else in the place of a folder: %1</source>
        <translation>フォルダーの位置に別のものがあります: %1</translation>
    </message>
</context>
<context>
    <name>FormatFileSize</name>
    <message>
        <source>%1 B</source>
        <translation>%1 B</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 PB</source>
        <translation>%1 PB</translation>
    </message>
    <message>
        <source>%1 EB</source>
        <translation>%1 EB</translation>
    </message>
</context>
<context>
    <name>MultiValueFace</name>
    <message>
        <source>Several values</source>
        <translation>複数の値</translation>
    </message>
</context>
<context>
    <name>Orvane::Tessel::TesselLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>やり直し(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>切り取り(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>コピー(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>貼り付け(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
</context>
<context>
    <name>PathSelectionWidget</name>
    <message>
        <source>Selected path is not readable</source>
        <translation>選択したパスは読み取れません</translation>
    </message>
    <message>
        <source>Selected path is not writable</source>
        <translation>選択したパスには書き込めません</translation>
    </message>
    <message>
        <source>Required: %1</source>
        <translation>必要: %1</translation>
    </message>
    <message>
        <source>Available: %1</source>
        <translation>空き: %1</translation>
    </message>
</context>
<context>
    <name>PointSelectorWidget</name>
    <message>
        <source>Position on the x-axis</source>
        <translation>X 軸上の位置</translation>
    </message>
    <message>
        <source>Position on the y-axis</source>
        <translation>Y 軸上の位置</translation>
    </message>
</context>
<context>
    <name>blendingModes</name>
    <message>
        <source>Overlay</source>
        <translation>オーバーレイ</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>比較（明）</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>カラー</translation>
    </message>
    <message>
        <source>ColorDodge</source>
        <translation>覆い焼きカラー</translation>
    </message>
    <message>
        <source>LinearDodge</source>
        <translation>覆い焼き（リニア）</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>スクリーン</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差の絶対値</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>乗算</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>比較（暗）</translation>
    </message>
    <message>
        <source>ColorBurn</source>
        <translation>焼き込みカラー</translation>
    </message>
    <message>
        <source>HardLight</source>
        <translation>ハードライト</translation>
    </message>
    <message>
        <source>SoftLight</source>
        <translation>ソフトライト</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>SourceOver</source>
        <translation>通常</translation>
    </message>
</context>
</TS>
