<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>BoxLayoutPage</name>
    <message>
        <source>Box and grid layouts</source>
        <translation>ボックスとグリッドのレイアウト</translation>
    </message>
    <message>
        <source>spacer</source>
        <translation>スペーサー</translation>
    </message>
    <message>
        <source>stretch</source>
        <translation>伸縮</translation>
    </message>
    <message>
        <source>row</source>
        <translation>行</translation>
    </message>
    <message>
        <source>column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>A box layout takes its owner&apos;s children in the order in which they were made, or a list of items: widgets with a stretch factor, and spacers that stretch or keep their size.</source>
        <translation>ボックスレイアウトは、所有者の子を作成順に並べるか、項目のリストを受け取ります。項目は伸縮係数を持つウィジェット、または伸縮・固定のスペーサーです。</translation>
    </message>
    <message>
        <source>autoFill() and a stretch behind</source>
        <translation>autoFill() と末尾の伸縮</translation>
    </message>
    <message>
        <source>addItems() with a spacer</source>
        <translation>スペーサー付きの addItems()</translation>
    </message>
    <message>
        <source>A column</source>
        <translation>縦並び</translation>
    </message>
    <message>
        <source>The spacer behind item 1</source>
        <translation>項目 1 の後のスペーサー</translation>
    </message>
    <message>
        <source>Policy</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>伸縮</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>固定</translation>
    </message>
    <message>
        <source>Factor or pixels</source>
        <translation>係数またはピクセル</translation>
    </message>
    <message>
        <source>The frame around</source>
        <translation>周囲のフレーム</translation>
    </message>
</context>
<context>
    <name>ColorInputPage</name>
    <message>
        <source>Colour field</source>
        <translation>カラーフィールド</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>row</source>
        <translation>行</translation>
    </message>
    <message>
        <source>picker</source>
        <translation>ピッカー</translation>
    </message>
    <message>
        <source>A colour button in a frame, ready for a row of a form. The frame&apos;s margins belong to the style sheet; the button inside is the anchor for a pop-up picker.</source>
        <translation>フォームの行にそのまま置ける、枠に入ったカラーボタンです。枠の余白はスタイルシートが決め、中のボタンはポップアップ式ピッカーの基準になります。</translation>
    </message>
    <message>
        <source>Click it to pick a colour</source>
        <translation>クリックして色を選択</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>色なし</translation>
    </message>
    <message>
        <source>A frame around one colour button.</source>
        <translation>カラーボタンを囲む枠です。</translation>
    </message>
</context>
<context>
    <name>ColorPickerButtonPage</name>
    <message>
        <source>Colour button</source>
        <translation>カラーボタン</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>picker</source>
        <translation>ピッカー</translation>
    </message>
    <message>
        <source>dialog</source>
        <translation>ダイアログ</translation>
    </message>
    <message>
        <source>A button whose face is a colour. A click hands over to an exchangeable picker, here Qt&apos;s colour dialog: every colour that is tried is on the button at once, and Cancel brings the old one back.</source>
        <translation>面そのものが色になるボタンです。クリックすると差し替え可能なピッカー（ここでは Qt のカラーダイアログ）に引き継ぎます。試した色はすぐボタンに反映され、キャンセルすると元の色に戻ります。</translation>
    </message>
    <message>
        <source>A colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>色なし</translation>
    </message>
    <message>
        <source>Several colours</source>
        <translation>複数の色</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Picking</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>The face is a child of its own; the button says by dynamic properties when it has no colour, or several.</source>
        <translation>面は独立した子です。色がない場合や複数ある場合は、ボタンの動的プロパティで分かります。</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>Pick a colour</source>
        <translation>色を選択</translation>
    </message>
</context>
<context>
    <name>FramePage</name>
    <message>
        <source>Frame and layout controller</source>
        <translation>フレームとレイアウト制御</translation>
    </message>
    <message>
        <source>margins</source>
        <translation>余白</translation>
    </message>
    <message>
        <source>spacing</source>
        <translation>間隔</translation>
    </message>
    <message>
        <source>Components build their layouts without margins and spacing; the style sheet sets both through the layout controller. A frame is its own controller, any other widget gets one installed.</source>
        <translation>部品は余白も間隔もないレイアウトを組み、スタイルシートがレイアウト制御を通じて両方を決めます。フレームは自身が制御役で、他のウィジェットには制御役を取り付けます。</translation>
    </message>
    <message>
        <source>A frame controls its own layout</source>
        <translation>自身のレイアウトを制御するフレーム</translation>
    </message>
    <message>
        <source>A group box with an installed controller</source>
        <translation>制御役を取り付けたグループボックス</translation>
    </message>
    <message>
        <source>The base of composite components; a sheet sets the metrics of its layout through its properties.</source>
        <translation>複合部品の土台です。レイアウトの寸法はプロパティを通じてスタイルシートが決めます。</translation>
    </message>
    <message>
        <source>Any widget with an installed controller: select the controller by its class name below the widget.</source>
        <translation>制御役を取り付けた任意のウィジェット。制御役はウィジェット配下のクラス名で選択します。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The style sheet %1 cannot be read.</source>
        <translation>スタイルシート %1 を読み込めません。</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>スタイルシート</translation>
    </message>
    <message>
        <source>Style sheets (*.qss)</source>
        <translation>スタイルシート (*.qss)</translation>
    </message>
    <message>
        <source>%1 – UiComponents Gallery</source>
        <translation>%1 – UiComponents ギャラリー</translation>
    </message>
</context>
<context>
    <name>Page</name>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>無効</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Search title, class, keyword</source>
        <translation>題名・クラス・キーワードを検索</translation>
    </message>
    <message>
        <source>Search pages</source>
        <translation>ページを検索</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
</context>
<context>
    <name>PageRegistry</name>
    <message>
        <source>Colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>入力</translation>
    </message>
    <message>
        <source>Layout and styling</source>
        <translation>レイアウトとスタイル</translation>
    </message>
    <message>
        <source>Bubbles and frames</source>
        <translation>吹き出しと枠</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>サービス</translation>
    </message>
</context>
<context>
    <name>PropertyPanel</name>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
</context>
<context>
    <name>PropertyProviderPage</name>
    <message>
        <source>Property provider</source>
        <translation>プロパティの提供役</translation>
    </message>
    <message>
        <source>A widget that paints itself takes its colours and sizes from a hidden child, which a style sheet selects by class name and writes with qproperty-.</source>
        <translation>自分で描画するウィジェットは、色や寸法を隠れた子から受け取ります。スタイルシートはその子をクラス名で選び、qproperty- で値を書き込みます。</translation>
    </message>
    <message>
        <source>A dial whose hand is styled</source>
        <translation>針の見た目を変えられる計器</translation>
    </message>
    <message>
        <source>An example: the provider is selected by its class name below the widget that it serves.</source>
        <translation>例：提供役は、仕えるウィジェット配下のクラス名で選択します。</translation>
    </message>
</context>
<context>
    <name>SignalLogView</name>
    <message>
        <source>Signals</source>
        <translation>シグナル</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Use the component: its signals appear here.</source>
        <translation>部品を操作すると、ここにシグナルが表示されます。</translation>
    </message>
</context>
<context>
    <name>StyleHintsPage</name>
    <message>
        <source>Style hints and properties</source>
        <translation>スタイルヒントとプロパティ</translation>
    </message>
    <message>
        <source>Code names a variant, the style sheet gives it a look: a hint is a dynamic property that the sheet selects on. Setting it polishes the widget again, and only when it changed.</source>
        <translation>コードは種類を名付け、スタイルシートが見た目を与えます。ヒントはスタイルシートが選択に使う動的プロパティで、値が変わったときだけウィジェットに再適用されます。</translation>
    </message>
    <message>
        <source>A button</source>
        <translation>ボタン</translation>
    </message>
    <message>
        <source>An edit</source>
        <translation>入力欄</translation>
    </message>
    <message>
        <source>A slider</source>
        <translation>スライダー</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>（なし）</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>ヒント</translation>
    </message>
    <message>
        <source>Member name</source>
        <translation>メンバー名</translation>
    </message>
</context>
<context>
    <name>SwitchBar</name>
    <message>
        <source>A style sheet of your own that reloads when you save it</source>
        <translation>保存すると再読み込みされる独自のスタイルシート</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>倍率</translation>
    </message>
    <message>
        <source>Restarts the gallery on the same page</source>
        <translation>同じページでギャラリーを再起動します</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>暗色</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>明色</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>File…</source>
        <translation>ファイル…</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>左から右</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>右から左</translation>
    </message>
</context>
</TS>
