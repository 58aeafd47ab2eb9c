<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>TitleCard::Editor</name>
    <message>
        <source>New card...</source>
        <translation>新規カード...</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Save as preset</source>
        <translation>プリセットとして保存</translation>
    </message>
    <message>
        <source>Export picture</source>
        <translation>画像を書き出す</translation>
    </message>
    <message>
        <source>Tour</source>
        <translation>ツアー</translation>
    </message>
    <message>
        <source>New card</source>
        <translation>新規カード</translation>
    </message>
    <message>
        <source>The picture cannot be saved as %1.</source>
        <translation>画像を %1 として保存できません。</translation>
    </message>
    <message>
        <source>The canvas</source>
        <translation>キャンバス</translation>
    </message>
    <message>
        <source>A click selects a card, Ctrl and a click several.</source>
        <translation>クリックでカードを 1 枚、Ctrl を押しながらクリックで複数枚を選択します。</translation>
    </message>
    <message>
        <source>The inspector</source>
        <translation>インスペクター</translation>
    </message>
    <message>
        <source>All selected cards get what you change. Escape takes it back.</source>
        <translation>変更は選択中のすべてのカードに適用されます。Esc キーで取り消せます。</translation>
    </message>
    <message>
        <source>The folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>The canvas is saved here as a picture.</source>
        <translation>キャンバスはここに画像として保存されます。</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Title cards</source>
        <translation>タイトルカード</translation>
    </message>
    <message>
        <source>Name of a preset</source>
        <translation>プリセットの名前</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Search presets</source>
        <translation>プリセットを検索</translation>
    </message>
    <message>
        <source>Where the picture is saved</source>
        <translation>画像の保存先</translation>
    </message>
</context>
<context>
    <name>TitleCard::Inspector</name>
    <message>
        <source>Text</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>What the card says. Escape brings it back.</source>
        <translation>カードの文字です。Esc キーで元に戻ります。</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Of the letters.</source>
        <translation>文字の色です。</translation>
    </message>
    <message>
        <source>Outline</source>
        <translation>輪郭</translation>
    </message>
    <message>
        <source>Around the letters, or none.</source>
        <translation>文字の周りの色、またはなし。</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Behind the letters, or none.</source>
        <translation>文字の後ろの色、またはなし。</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Of the letters in pixels.</source>
        <translation>文字の大きさ（ピクセル）です。</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Degrees, clockwise.</source>
        <translation>時計回りの角度です。</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>0 cannot be seen, and 1 hides what is below.</source>
        <translation>0 は見えず、1 は下にあるものを隠します。</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Of the middle of the card: -1 is left and top, 1 right and bottom.</source>
        <translation>カードの中心の位置です。-1 は左と上、1 は右と下です。</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>描画モード</translation>
    </message>
    <message>
        <source>How the card is mixed with what lies below it.</source>
        <translation>カードを下にあるものと合成する方法です。</translation>
    </message>
</context>
<context>
    <name>TitleCard::NewCardDialog</name>
    <message>
        <source>Text of the new card</source>
        <translation>新規カードのテキスト</translation>
    </message>
</context>
</TS>
