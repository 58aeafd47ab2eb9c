<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>AccessibleNames</name>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <comment>Two sentences</comment>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>ColorNames</name>
    <message>
        <source>pink</source>
        <translation>ピンク</translation>
    </message>
    <message>
        <source>red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>オレンジ</translation>
    </message>
    <message>
        <source>brown</source>
        <translation>茶色</translation>
    </message>
    <message>
        <source>golden yellow</source>
        <translation>山吹色</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>olive</source>
        <translation>オリーブ色</translation>
    </message>
    <message>
        <source>yellow green</source>
        <translation>黄緑</translation>
    </message>
    <message>
        <source>green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>turquoise</source>
        <translation>ターコイズ</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>シアン</translation>
    </message>
    <message>
        <source>azure</source>
        <translation>空色</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>violet</source>
        <translation>紫</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>マゼンタ</translation>
    </message>
    <message>
        <source>black</source>
        <translation>黒</translation>
    </message>
    <message>
        <source>very dark grey</source>
        <translation>とても暗い灰色</translation>
    </message>
    <message>
        <source>dark grey</source>
        <translation>暗い灰色</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>灰色</translation>
    </message>
    <message>
        <source>light grey</source>
        <translation>明るい灰色</translation>
    </message>
    <message>
        <source>very light grey</source>
        <translation>とても明るい灰色</translation>
    </message>
    <message>
        <source>white</source>
        <translation>白</translation>
    </message>
    <message>
        <source>very dark %1</source>
        <translation>とても暗い%1</translation>
    </message>
    <message>
        <source>very light %1</source>
        <translation>とても明るい%1</translation>
    </message>
    <message>
        <source>greyish %1</source>
        <translation>くすんだ%1</translation>
    </message>
    <message>
        <source>dark %1</source>
        <translation>暗い%1</translation>
    </message>
    <message>
        <source>light %1</source>
        <translation>明るい%1</translation>
    </message>
    <message>
        <source>several colours</source>
        <translation>複数の色</translation>
    </message>
    <message>
        <source>no colour</source>
        <translation>色なし</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1, %2 %</source>
        <translation>%1、%2%</translation>
    </message>
</context>
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
    <message>
        <source>Current colour</source>
        <translation>現在の色</translation>
    </message>
    <message>
        <source>Needs a mouse; without one, type the colour value</source>
        <translation>マウスが必要です。ない場合は色の値を入力してください</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>Own colours</source>
        <translation>マイカラー</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Opacity in percent</source>
        <translation>不透明度（パーセント）</translation>
    </message>
    <message>
        <source>Empty place</source>
        <translation>空き</translation>
    </message>
</context>
<context>
    <name>CustomColorSelectWidget</name>
    <message>
        <source>Hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>Saturation and brightness</source>
        <translation>彩度と明度</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明度</translation>
    </message>
</context>
<context>
    <name>DialogGuideWidget</name>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Animated picture</source>
        <translation>アニメーション画像</translation>
    </message>
</context>
<context>
    <name>EditSessionCover</name>
    <message>
        <source>Several values</source>
        <translation>複数の値</translation>
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
    <name>GuideWidget</name>
    <message>
        <source>Animated picture</source>
        <translation>アニメーション画像</translation>
    </message>
    <message>
        <source>Playing; Space pauses it</source>
        <translation>再生中。スペースキーで一時停止</translation>
    </message>
    <message>
        <source>Paused; Space plays it</source>
        <translation>一時停止中。スペースキーで再生</translation>
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
        <translation>やり直す(&amp;R)</translation>
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
    <message>
        <source>Choose a folder</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>Back to the default folder</source>
        <translation>既定のフォルダーに戻す</translation>
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
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>ScreenColorPortal</name>
    <message>
        <source>This desktop has no service for colours of the screen.</source>
        <translation>このデスクトップには、画面の色を取得するサービスがありません。</translation>
    </message>
    <message>
        <source>This desktop cannot pick colours from the screen for programs.</source>
        <translation>このデスクトップでは、アプリケーションから画面の色を取得できません。</translation>
    </message>
    <message>
        <source>The desktop&apos;s service for colours of the screen does not answer.</source>
        <translation>画面の色を取得するデスクトップのサービスが応答しません。</translation>
    </message>
    <message>
        <source>The desktop&apos;s service for colours of the screen has refused.</source>
        <translation>画面の色を取得するデスクトップのサービスに拒否されました。</translation>
    </message>
</context>
<context>
    <name>SearchWidget</name>
    <message>
        <source>Clear the search</source>
        <translation>検索をクリア</translation>
    </message>
</context>
<context>
    <name>SliderInputWidget</name>
    <message>
        <source>number</source>
        <translation>数値</translation>
    </message>
</context>
<context>
    <name>WidgetColorPickerButton</name>
    <message>
        <source>Needs a mouse; without one, type the value in a colour panel</source>
        <translation>マウスが必要です。使わない場合は、カラーパネルに値を入力します</translation>
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
