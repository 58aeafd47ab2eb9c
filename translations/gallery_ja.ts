<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>Broken</name>
    <message>
        <source>Now it loads. Click to close.</source>
        <translation>読み込めました。クリックすると閉じます。</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Discard the sequence?</source>
        <translation>シーケンスを破棄しますか？</translation>
    </message>
    <message>
        <source>Its cuts and titles will be gone. The clips stay in the project.</source>
        <translation>カットとタイトルは失われます。クリップはプロジェクトに残ります。</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>残す</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>破棄</translation>
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
    <name>FolderBrowser</name>
    <message>
        <source>Choose a folder</source>
        <translation>フォルダーを選択</translation>
    </message>
</context>
<context>
    <name>Form</name>
    <message>
        <source>Title</source>
        <translation>題名</translation>
    </message>
    <message>
        <source>Sequence 1</source>
        <translation>シーケンス 1</translation>
    </message>
    <message>
        <source>Frames a second, 1 to 240</source>
        <translation>1 秒あたりのフレーム数、1～240</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>作成</translation>
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
    <message>
        <source>Guides and dialogs</source>
        <translation>ガイドとダイアログ</translation>
    </message>
    <message>
        <source>Colour button</source>
        <translation>カラーボタン</translation>
    </message>
    <message>
        <source>A button whose face is a colour. A click hands over to an exchangeable picker, here the colour panel or Qt&apos;s colour dialog: every colour that is tried is on the button at once.</source>
        <translation>面そのものが色になるボタンです。クリックすると差し替え可能なピッカー（ここではカラーパネルまたは Qt のカラーダイアログ）に引き継ぎます。試した色はすぐボタンに反映されます。</translation>
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
        <source>Colour field</source>
        <translation>カラーフィールド</translation>
    </message>
    <message>
        <source>A colour button in a frame, ready for a row of a form. The frame&apos;s margins belong to the style sheet; the button inside is the anchor for a pop-up picker.</source>
        <translation>フォームの行にそのまま置ける、枠に入ったカラーボタンです。枠の余白はスタイルシートが決め、中のボタンはポップアップ式ピッカーの基準になります。</translation>
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
        <source>Colour panel</source>
        <translation>カラーパネル</translation>
    </message>
    <message>
        <source>The panel that a colour field opens: a palette, a hexadecimal value, the user&apos;s own colours, a selector of any colour, and opacity.</source>
        <translation>カラーフィールドが開くパネルです。パレット、16 進数の値、マイカラー、任意の色の選択、不透明度を備えています。</translation>
    </message>
    <message>
        <source>palette</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Free colour selector</source>
        <translation>自由な色の選択</translation>
    </message>
    <message>
        <source>A colour plane above a slider for its hue: one selector for any colour. A colour that code sets appears on the next turn of the event loop.</source>
        <translation>カラープレーンの下に色相のスライダーがあり、任意の色を選べます。コードで設定した色は、イベントループの次の周回で表示されます。</translation>
    </message>
    <message>
        <source>custom</source>
        <translation>カスタム</translation>
    </message>
    <message>
        <source>hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>slider</source>
        <translation>スライダー</translation>
    </message>
    <message>
        <source>Colour plane</source>
        <translation>カラープレーン</translation>
    </message>
    <message>
        <source>All colours of one hue: saturation grows to the right, brightness upwards. Drag the marker, also beyond the edge, or move it with the arrow keys, by ten pixels with Shift.</source>
        <translation>一つの色相のすべての色です。右ほど彩度が、上ほど明るさが増します。マーカーは縁の外までドラッグでき、矢印キーでも動きます。Shift を押すと 10 ピクセルずつ動きます。</translation>
    </message>
    <message>
        <source>saturation</source>
        <translation>彩度</translation>
    </message>
    <message>
        <source>marker</source>
        <translation>マーカー</translation>
    </message>
    <message>
        <source>Blending modes</source>
        <translation>描画モード</translation>
    </message>
    <message>
        <source>How the colour of a layer is combined with what lies under it. The names are sorted in the user&apos;s language, behind the first, which is no blending at all. Here the layer is a grey ramp and three lights, on a landscape.</source>
        <translation>レイヤーの色を下にあるものとどう合成するかを選びます。先頭は合成しないモードで、その後の名前はユーザーの言語の順に並びます。ここでは、グレーの階調と三つの光のレイヤーが風景の上にあります。</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>レイヤー</translation>
    </message>
    <message>
        <source>combo box</source>
        <translation>コンボボックス</translation>
    </message>
    <message>
        <source>composition</source>
        <translation>合成</translation>
    </message>
    <message>
        <source>Screen pipette</source>
        <translation>画面スポイト</translation>
    </message>
    <message>
        <source>Picks the colour of any pixel on any screen, of other applications too. A click picks, any key gives up. The loupe beside the cursor shows the pixels around it.</source>
        <translation>どの画面のどのピクセルの色も、ほかのアプリケーションのものも取得します。クリックで取得し、どのキーでも中止します。カーソルの横のルーペに周囲のピクセルが表示されます。</translation>
    </message>
    <message>
        <source>pick</source>
        <translation>取得</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>画面</translation>
    </message>
    <message>
        <source>magnifier</source>
        <translation>拡大鏡</translation>
    </message>
    <message>
        <source>eyedropper</source>
        <translation>スポイト</translation>
    </message>
    <message>
        <source>Colour from a widget</source>
        <translation>ウィジェットから色を取得</translation>
    </message>
    <message>
        <source>Click a button, then into the film: the colour of that pixel is picked. Any other click or key ends it too; with the cursor elsewhere nothing is picked.</source>
        <translation>ボタンをクリックしてから映像をクリックすると、そのピクセルの色を取得します。ほかのクリックやキーでも終わり、カーソルが別の場所にあれば何も取得しません。</translation>
    </message>
    <message>
        <source>preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>cursor</source>
        <translation>カーソル</translation>
    </message>
    <message>
        <source>Slider field</source>
        <translation>スライダー入力欄</translation>
    </message>
    <message>
        <source>A slider and a spin box of one whole number, kept in step. Each change is reported by both, so the signal arrives twice with the same value.</source>
        <translation>一つの整数のためのスライダーとスピンボックスで、連動します。どの変更も両方が通知するため、シグナルは同じ値で二度届きます。</translation>
    </message>
    <message>
        <source>number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>range</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>spin box</source>
        <translation>スピンボックス</translation>
    </message>
    <message>
        <source>Slider field for fractions</source>
        <translation>小数スライダー入力欄</translation>
    </message>
    <message>
        <source>A slider and a spin box of one number with a fixed count of decimals, exact to the last digit. Both the point and the comma are decimal marks while typing.</source>
        <translation>小数桁数が固定された一つの数値のためのスライダーとスピンボックスで、最後の桁まで正確です。入力中はピリオドとコンマの両方が小数点になります。</translation>
    </message>
    <message>
        <source>decimals</source>
        <translation>小数桁数</translation>
    </message>
    <message>
        <source>Point plane</source>
        <translation>ポイントプレーン</translation>
    </message>
    <message>
        <source>A pad on which a point is picked by clicking, dragging, also out of the window, and with the arrow keys, ten pixels at a time with Shift. Here it stands for -1 to 1 both ways.</source>
        <translation>クリック、ウィンドウの外まで続くドラッグ、矢印キー（Shift を押すと 10 ピクセルずつ）で点を選ぶパッドです。ここでは縦横とも -1 から 1 を表します。</translation>
    </message>
    <message>
        <source>point</source>
        <translation>点</translation>
    </message>
    <message>
        <source>position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>pad</source>
        <translation>パッド</translation>
    </message>
    <message>
        <source>drag</source>
        <translation>ドラッグ</translation>
    </message>
    <message>
        <source>Point selector</source>
        <translation>点の選択</translation>
    </message>
    <message>
        <source>A point plane and a spin box for each coordinate, kept in step. A point that is picked is reported as it is, and then as the spin boxes round it.</source>
        <translation>ポイントプレーンと各座標のスピンボックスが連動します。選んだ点はまずそのまま、次にスピンボックスが丸めた値で通知されます。</translation>
    </message>
    <message>
        <source>coordinates</source>
        <translation>座標</translation>
    </message>
    <message>
        <source>Spin box</source>
        <translation>スピンボックス</translation>
    </message>
    <message>
        <source>A spin box that is safe to scroll past, since the wheel changes it only while it has the focus, and quick to type into: Enter commits the number and leaves it selected.</source>
        <translation>通り過ぎても安全で素早く入力できるスピンボックスです。ホイールはフォーカスがあるときだけ値を変え、Enter は数値を確定して選択したままにします。</translation>
    </message>
    <message>
        <source>wheel</source>
        <translation>ホイール</translation>
    </message>
    <message>
        <source>Spin box for fractions</source>
        <translation>小数スピンボックス</translation>
    </message>
    <message>
        <source>The spin box for fractions. On request it takes both the point and the comma as the decimal mark, whatever the language, so that nobody has to look for the right key.</source>
        <translation>小数用のスピンボックスです。設定すると言語に関係なくピリオドとコンマの両方を小数点として受け付けるので、正しいキーを探す必要がありません。</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>コンマ</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>スライダー</translation>
    </message>
    <message>
        <source>A slider that goes where it is clicked: a press on the groove moves the handle there at once and the drag goes on from it. The wheel changes it only while it has the focus.</source>
        <translation>クリックした場所に動くスライダーです。溝を押すとつまみがすぐそこへ移り、そのままドラッグできます。ホイールはフォーカスがあるときだけ値を変えます。</translation>
    </message>
    <message>
        <source>groove</source>
        <translation>溝</translation>
    </message>
    <message>
        <source>Slider for fractions</source>
        <translation>小数スライダー</translation>
    </message>
    <message>
        <source>A slider with a fractional value: its steps times a multiplier. A value that code sets is kept exactly, also between two steps, in whatever order multiplier, range and value come.</source>
        <translation>小数の値を持つスライダーで、値は段階数と倍率の積です。コードで設定した値は、段階の間でも、倍率・範囲・値をどの順で設定しても、正確に保たれます。</translation>
    </message>
    <message>
        <source>multiplier</source>
        <translation>倍率</translation>
    </message>
    <message>
        <source>step</source>
        <translation>段階</translation>
    </message>
    <message>
        <source>Slider and spin box in step</source>
        <translation>スライダーとスピンボックスの連動</translation>
    </message>
    <message>
        <source>Keeps a slider and a spin box on one value, in both directions. What is typed reads back digit for digit; the handle goes to the nearest step.</source>
        <translation>スライダーとスピンボックスを双方向に同じ値に保ちます。入力した値は一桁も変わらず読み戻せ、つまみは最も近い段階に移ります。</translation>
    </message>
    <message>
        <source>binding</source>
        <translation>連動</translation>
    </message>
    <message>
        <source>Combo box</source>
        <translation>コンボボックス</translation>
    </message>
    <message>
        <source>A combo box that gives way in a narrow panel: the text is cut off with an ellipsis, while the pop-up is as wide as its widest item. The wheel changes it only while it has the focus.</source>
        <translation>狭いパネルでも収まるコンボボックスです。文字は省略記号で切り詰められ、ポップアップは最も広い項目の幅になります。ホイールはフォーカスがあるときだけ値を変えます。</translation>
    </message>
    <message>
        <source>list</source>
        <translation>一覧</translation>
    </message>
    <message>
        <source>choice</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>pop-up</source>
        <translation>ポップアップ</translation>
    </message>
    <message>
        <source>Line edit</source>
        <translation>入力欄</translation>
    </message>
    <message>
        <source>The design system&apos;s line edit. Its context menu always has the same shape: what can do nothing at the moment is disabled, not missing.</source>
        <translation>デザインシステムの入力欄です。コンテキストメニューの形は常に同じで、今は使えない項目は消えずに無効になります。</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>context menu</source>
        <translation>コンテキストメニュー</translation>
    </message>
    <message>
        <source>field</source>
        <translation>欄</translation>
    </message>
    <message>
        <source>Elegant slider</source>
        <translation>洗練されたスライダー</translation>
    </message>
    <message>
        <source>The design system&apos;s slider: a slim groove and a round handle. Where no style sheet speaks of its parts it draws them in the colours of its palette.</source>
        <translation>デザインシステムのスライダーです。細い溝と丸いつまみを持ち、スタイルシートに指定がなければパレットの色で自ら描画します。</translation>
    </message>
    <message>
        <source>Combo box of the design system</source>
        <translation>デザインシステムのコンボボックス</translation>
    </message>
    <message>
        <source>Gives a combo box the look of the design system in place: items, index and signals stay as they are.</source>
        <translation>コンボボックスにその場でデザインシステムの見た目を与えます。項目・インデックス・シグナルは変わりません。</translation>
    </message>
    <message>
        <source>Folder field</source>
        <translation>フォルダー入力欄</translation>
    </message>
    <message>
        <source>A field for a folder. It asks its host to browse, reports edits in bursts of a tenth of a second, and looks at the disk only when it is told to check the path. Here the host opens Qt&apos;s folder dialog and shows the space that is free where the path is.</source>
        <translation>フォルダーの入力欄です。参照はホストに任せ、編集は 0.1 秒ごとにまとめて通知し、パスの確認を指示されたときだけディスクを調べます。ここではホストが Qt のフォルダーダイアログを開き、パスの場所の空き容量を表示します。</translation>
    </message>
    <message>
        <source>path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>browse</source>
        <translation>参照</translation>
    </message>
    <message>
        <source>directory</source>
        <translation>ディレクトリ</translation>
    </message>
    <message>
        <source>disk</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Search field</source>
        <translation>検索欄</translation>
    </message>
    <message>
        <source>A field for a search: it reports each change at once, and the end of an edit by Enter or by leaving it. A text never starts with a blank. Its placeholder has three colours, which change when the mouse comes or goes.</source>
        <translation>検索用の入力欄です。変更のたびにすぐ通知し、Enter または欄を離れたときに編集の終わりを通知します。文字列が空白で始まることはありません。プレースホルダーには三つの色があり、マウスの出入りで切り替わります。</translation>
    </message>
    <message>
        <source>filter</source>
        <translation>絞り込み</translation>
    </message>
    <message>
        <source>find</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>placeholder</source>
        <translation>プレースホルダー</translation>
    </message>
    <message>
        <source>Growing list</source>
        <translation>伸びるリスト</translation>
    </message>
    <message>
        <source>A list that is as high as all its rows for as long as it is being loaded, and scrolls like any other once it is complete. It looks at its rows when it is told to and when it is resized, and does not watch its model.</source>
        <translation>読み込み中は全行分の高さを持ち、読み込みが終わるとほかのリストと同じようにスクロールするリストです。行を調べるのは指示されたときとサイズが変わったときで、モデルは監視しません。</translation>
    </message>
    <message>
        <source>list view</source>
        <translation>リストビュー</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>行</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>読み込み</translation>
    </message>
    <message>
        <source>height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>Properties of a clip</source>
        <translation>クリップのプロパティ</translation>
    </message>
    <message>
        <source>The value inputs in one panel, as an editor shows the properties of a clip. The panel can be scrolled past every field: the wheel changes only the one that has the keyboard.</source>
        <translation>エディターがクリップのプロパティを表示するように、値の入力欄を一つのパネルにまとめています。どの欄の上でもスクロールでき、ホイールで変わるのはキーボードを持つ欄だけです。</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>パネル</translation>
    </message>
    <message>
        <source>inspector</source>
        <translation>インスペクター</translation>
    </message>
    <message>
        <source>editor</source>
        <translation>エディター</translation>
    </message>
    <message>
        <source>Frame and layout controller</source>
        <translation>フレームとレイアウト制御</translation>
    </message>
    <message>
        <source>Components build their layouts without margins and spacing; the style sheet sets both through the layout controller. A frame is its own controller, any other widget gets one installed.</source>
        <translation>部品は余白も間隔もないレイアウトを組み、スタイルシートがレイアウト制御を通じて両方を決めます。フレームは自身が制御役で、他のウィジェットには制御役を取り付けます。</translation>
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
        <source>Box and grid layouts</source>
        <translation>ボックスとグリッドのレイアウト</translation>
    </message>
    <message>
        <source>A box layout takes its owner&apos;s children in the order in which they were made, or a list of items: widgets with a stretch factor, and spacers that stretch or keep their size. A grid is filled row by row.</source>
        <translation>ボックスレイアウトは、所有者の子を作成順に並べるか、項目のリストを受け取ります。項目は伸縮係数を持つウィジェット、または伸縮・固定のスペーサーです。グリッドは行ごとに埋まります。</translation>
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
        <source>column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Style hints and properties</source>
        <translation>スタイルヒントとプロパティ</translation>
    </message>
    <message>
        <source>Code names a variant, the style sheet gives it a look: a hint is a dynamic property that the sheet selects on. Setting it polishes the widget again, and only when it changed.</source>
        <translation>コードは種類を名付け、スタイルシートが見た目を与えます。ヒントはスタイルシートが選択に使う動的プロパティで、値が変わったときだけウィジェットに再適用されます。</translation>
    </message>
    <message>
        <source>Colour variants</source>
        <translation>色の種類</translation>
    </message>
    <message>
        <source>The editor&apos;s eight colour variants of plain controls, by name. Anything but one of the names is ignored; the empty text drops the variant.</source>
        <translation>エディターが標準の部品に用意する 8 つの色の種類を名前で指定します。それ以外の文字列は無視され、空文字列で解除されます。</translation>
    </message>
    <message>
        <source>variant</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>ヒント</translation>
    </message>
    <message>
        <source>Property provider</source>
        <translation>プロパティの提供役</translation>
    </message>
    <message>
        <source>A widget that paints itself takes its colours and sizes from a hidden child, which a style sheet selects by class name and writes with qproperty-.</source>
        <translation>自分で描画するウィジェットは、色や寸法を隠れた子から受け取ります。スタイルシートはその子をクラス名で選び、qproperty- で値を書き込みます。</translation>
    </message>
    <message>
        <source>Pointing bubble</source>
        <translation>吹き出し</translation>
    </message>
    <message>
        <source>A bubble whose arrow touches a spot. It stays on its screen, or inside its parent, goes to the other side where there is no room, and follows the widget that it annotates.</source>
        <translation>矢印が一点に触れる吹き出しです。画面または親の中に収まり、場所がなければ反対側に移り、説明するウィジェットに追従します。</translation>
    </message>
    <message>
        <source>bubble</source>
        <translation>吹き出し</translation>
    </message>
    <message>
        <source>arrow</source>
        <translation>矢印</translation>
    </message>
    <message>
        <source>Rounded pop-ups</source>
        <translation>角丸のポップアップ</translation>
    </message>
    <message>
        <source>Real rounded corners where desktops disagree about them: a widget with the property roundedEdges is translucent, and painted all the same.</source>
        <translation>デスクトップ環境ごとに異なる角丸を正しく表示します。プロパティ roundedEdges を持つウィジェットは透過になり、それでもきちんと描画されます。</translation>
    </message>
    <message>
        <source>corner</source>
        <translation>角</translation>
    </message>
    <message>
        <source>translucent</source>
        <translation>半透明</translation>
    </message>
    <message>
        <source>Highlight frame</source>
        <translation>強調枠</translation>
    </message>
    <message>
        <source>Outlines a widget without its notice: it follows the target through moves, resizes and hiding, lies over all its children and takes neither mouse nor focus.</source>
        <translation>対象に影響を与えずにウィジェットを縁取ります。移動・サイズ変更・非表示に追従し、すべての子の上に重なり、マウスもフォーカスも奪いません。</translation>
    </message>
    <message>
        <source>outline</source>
        <translation>輪郭</translation>
    </message>
    <message>
        <source>overlay</source>
        <translation>重ね表示</translation>
    </message>
    <message>
        <source>Animated picture</source>
        <translation>アニメーション画像</translation>
    </message>
    <message>
        <source>Plays an animated picture in the size of the widget, keeps its proportions, stays sharp on scaled screens and rests while it is hidden.</source>
        <translation>アニメーション画像をウィジェットの大きさで再生します。縦横比を保ち、拡大された画面でも鮮明で、隠れている間は休みます。</translation>
    </message>
    <message>
        <source>movie</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>アニメーション</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>ガイド</translation>
    </message>
    <message>
        <source>A short piece of help: a heading, an animated picture that plays while it is seen, a description and a link to further reading. What is empty is left out.</source>
        <translation>短いヘルプです。見出し、見えている間だけ再生されるアニメーション画像、説明、詳しい情報へのリンクからなり、空のものは省かれます。</translation>
    </message>
    <message>
        <source>help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>Guide button</source>
        <translation>ガイドボタン</translation>
    </message>
    <message>
        <source>A click opens a guide in a bubble below the button. Escape, a click elsewhere and hiding the button close it.</source>
        <translation>クリックすると、ボタンの下の吹き出しにガイドが開きます。Esc キー、ほかの場所のクリック、ボタンの非表示で閉じます。</translation>
    </message>
    <message>
        <source>Dialog guide</source>
        <translation>ダイアログガイド</translation>
    </message>
    <message>
        <source>A bubble that walks the user through a step and follows the widget that it annotates. Start the tour to see it at work.</source>
        <translation>手順を案内し、説明するウィジェットに追従する吹き出しです。ツアーを開始すると実際の動きを見られます。</translation>
    </message>
    <message>
        <source>tour</source>
        <translation>ツアー</translation>
    </message>
    <message>
        <source>QML dialog</source>
        <translation>QML ダイアログ</translation>
    </message>
    <message>
        <source>A modal dialog whose whole content is a QML scene: a file that is loaded when the dialog first runs. The scene knows the dialog as &quot;callback&quot; and ends it. Change the source and open it.</source>
        <translation>全面が QML シーンのモーダルダイアログです。シーンはダイアログの初回実行時に読み込まれるファイルで、ダイアログを「callback」として参照し、終了させます。ソースを変えて開いてみてください。</translation>
    </message>
    <message>
        <source>confirmation</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>scene</source>
        <translation>シーン</translation>
    </message>
    <message>
        <source>Platform services</source>
        <translation>プラットフォームのサービス</translation>
    </message>
    <message>
        <source>The functions and classes below the components, with their live results.</source>
        <translation>コンポーネントの土台となる関数とクラスを、その場の結果とともに示します。</translation>
    </message>
    <message>
        <source>File sizes</source>
        <translation>ファイルサイズ</translation>
    </message>
    <message>
        <source>Paths</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Own colours and folders</source>
        <translation>マイカラーとフォルダー</translation>
    </message>
    <message>
        <source>Scheduler</source>
        <translation>スケジューラー</translation>
    </message>
    <message>
        <source>Headings</source>
        <translation>見出し</translation>
    </message>
    <message>
        <source>Privacy access</source>
        <translation>プライバシーへのアクセス</translation>
    </message>
    <message>
        <source>Focus of hosted QML</source>
        <translation>埋め込み QML のフォーカス</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>バイト</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>file</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>permission</source>
        <translation>権限</translation>
    </message>
    <message>
        <source>validity</source>
        <translation>有効性</translation>
    </message>
    <message>
        <source>store</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>コンピューター</translation>
    </message>
    <message>
        <source>timer</source>
        <translation>タイマー</translation>
    </message>
    <message>
        <source>delay</source>
        <translation>遅延</translation>
    </message>
    <message>
        <source>merge</source>
        <translation>統合</translation>
    </message>
    <message>
        <source>burst</source>
        <translation>連続要求</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>太字</translation>
    </message>
    <message>
        <source>language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>script</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>capture</source>
        <translation>取り込み</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>キーボード</translation>
    </message>
    <message>
        <source>Arrow on top</source>
        <translation>矢印は上</translation>
    </message>
    <message>
        <source>on the left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>on the right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>at the bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>What lies behind shows through the corners.</source>
        <translation>角から背後が見えます。</translation>
    </message>
    <message>
        <source>Driven by the controls below</source>
        <translation>下の操作部で動かせます</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>ここから開始</translation>
    </message>
    <message>
        <source>All sides</source>
        <translation>すべての辺</translation>
    </message>
    <message>
        <source>Side of the arrow</source>
        <translation>矢印の辺</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>先頭</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>中央</translation>
    </message>
    <message>
        <source>End</source>
        <translation>末尾</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>ずらし</translation>
    </message>
    <message>
        <source>Open as a pop-up</source>
        <translation>ポップアップとして開く</translation>
    </message>
    <message>
        <source>A bubble of its own. It goes with the window.</source>
        <translation>独立した吹き出しです。ウィンドウと一緒に動きます。</translation>
    </message>
    <message>
        <source>Painted by itself: a sheet sets colours and measures through the properties, and the content&apos;s margins on the frame inside.</source>
        <translation>自分で描画します。色と寸法はプロパティを通じて、内容の余白は中のフレームでスタイルシートが決めます。</translation>
    </message>
    <message>
        <source>As a part of a window</source>
        <translation>ウィンドウの一部として</translation>
    </message>
    <message>
        <source>Open a pop-up</source>
        <translation>ポップアップを開く</translation>
    </message>
    <message>
        <source>Any widget that Workaround::Ui::apply() prepared: a rule for the property gives it background, border and border-radius.</source>
        <translation>Workaround::Ui::apply() で準備した任意のウィジェット。プロパティに対する規則で背景・境界線・角の半径を与えます。</translation>
    </message>
    <message>
        <source>The target</source>
        <translation>対象</translation>
    </message>
    <message>
        <source>Still works</source>
        <translation>操作できます</translation>
    </message>
    <message>
        <source>Highlighted</source>
        <translation>強調表示</translation>
    </message>
    <message>
        <source>Height of the target</source>
        <translation>対象の高さ</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>The outline, a child of the widget that it highlights.</source>
        <translation>輪郭。強調するウィジェットの子です。</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>The animation</source>
        <translation>アニメーション</translation>
    </message>
    <message>
        <source>A file that is not there</source>
        <translation>存在しないファイル</translation>
    </message>
    <message>
        <source>Border and padding of a sheet surround the picture.</source>
        <translation>スタイルシートの境界線と内側の余白が画像を囲みます。</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>色なし</translation>
    </message>
    <message>
        <source>The colour that it reported last</source>
        <translation>最後に通知された色</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>まだありません</translation>
    </message>
    <message>
        <source>A colour</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Several colours</source>
        <translation>複数の色</translation>
    </message>
    <message>
        <source>Picking</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>The face is a child of its own; the button says by dynamic properties when it has no colour, or several.</source>
        <translation>面は独立した子です。色がない場合や複数ある場合は、ボタンの動的プロパティで分かります。</translation>
    </message>
    <message>
        <source>Click it to pick a colour</source>
        <translation>クリックして色を選択</translation>
    </message>
    <message>
        <source>A frame around one colour button.</source>
        <translation>カラーボタンを囲む枠です。</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>色を選択</translation>
    </message>
    <message>
        <source>Opacity can be adjusted</source>
        <translation>不透明度を調整可能</translation>
    </message>
    <message>
        <source>The parts are selected by their names, and the buttons of colours as children of #colorMatrixPanel and #otherColorsQueuePanel; the one for no colour has nullColor. The panel itself writes the background-color of these and of the preview, opaque: a sheet shapes it with background-clip, and lays a background-image over it. The selector is a QDialog with roundedEdges.</source>
        <translation>各部は名前で、色のボタンは #colorMatrixPanel と #otherColorsQueuePanel の子として選択します。色なしのボタンには nullColor があります。ボタンとプレビューの background-color はパネル自身が不透明で書き込みます。スタイルシートは background-clip で形を整え、background-image を重ねます。色の選択は roundedEdges を持つ QDialog です。</translation>
    </message>
    <message>
        <source>Choose any colour</source>
        <translation>任意の色を選択</translation>
    </message>
    <message>
        <source>What the colour panel opens beside its own colours; internal to the library. The margins and gaps of both frames are the sheet&apos;s.</source>
        <translation>カラーパネルがマイカラーの横で開くもので、ライブラリ内部のものです。二つの枠の余白と間隔はスタイルシートが決めます。</translation>
    </message>
    <message>
        <source>Drag the marker</source>
        <translation>マーカーをドラッグ</translation>
    </message>
    <message>
        <source>The square of the free colour selector, and internal to the library. It asks for no room: min-width and min-height give it some.</source>
        <translation>色の選択に使う四角形で、ライブラリ内部のものです。自分では場所を求めないので、min-width と min-height で与えます。</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>モードを選択</translation>
    </message>
    <message>
        <source>Mode by its number</source>
        <translation>番号によるモード</translation>
    </message>
    <message>
        <source>Opacity of the layer</source>
        <translation>レイヤーの不透明度</translation>
    </message>
    <message>
        <source>As OvComboBox in the look of the design system, or alone by its class name; its list is #tesselComboBoxView.</source>
        <translation>デザインシステムの外観を持つ OvComboBox として、またはクラス名だけで指定します。リストは #tesselComboBoxView です。</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>リップル削除</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>トリム</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Deletes the selected clip and closes the gap: everything behind it moves up, on &lt;b&gt;all&lt;/b&gt; tracks, so that sound and picture stay together.</source>
        <translation>選択したクリップを削除して隙間を詰めます。後ろにあるものは&lt;b&gt;すべての&lt;/b&gt;トラックで前に移るので、音声と映像はずれません。</translation>
    </message>
    <message>
        <source>More about editing</source>
        <translation>編集について詳しく</translation>
    </message>
    <message>
        <source>Drag the end of a clip to show less or more of it. Nothing is lost.</source>
        <translation>クリップの端をドラッグすると、表示する範囲を増減できます。何も失われません。</translation>
    </message>
    <message>
        <source>More about trimming</source>
        <translation>トリムについて詳しく</translation>
    </message>
    <message>
        <source>Texts are measured for the width that the sheet gives the guide. Links have the colour of their label, unless their markup says another.</source>
        <translation>文字列はスタイルシートがガイドに与える幅に合わせて配置されます。リンクは、マークアップに指定がなければラベルの色になります。</translation>
    </message>
    <message>
        <source>With an animated picture</source>
        <translation>アニメーション画像付き</translation>
    </message>
    <message>
        <source>A title alone</source>
        <translation>題名のみ</translation>
    </message>
    <message>
        <source>Nothing more to say</source>
        <translation>これ以上の説明なし</translation>
    </message>
    <message>
        <source>Without an info</source>
        <translation>情報なし</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>A tool button. Its pop-up is a PointingWidget named pointingWidget, with a GuideWidget named guideWidget in it; both are below the button for a sheet.</source>
        <translation>ツールボタンです。ポップアップは pointingWidget という名前の PointingWidget で、中に guideWidget という名前の GuideWidget があります。スタイルシートではどちらもボタンの配下です。</translation>
    </message>
    <message>
        <source>Trim a clip</source>
        <translation>クリップをトリム</translation>
    </message>
    <message>
        <source>Drag its end. The picture shows how; nothing is lost.</source>
        <translation>端をドラッグします。方法は画像のとおりで、何も失われません。</translation>
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
        <source>Start the tour</source>
        <translation>ツアーを開始</translation>
    </message>
    <message>
        <source>Find a component</source>
        <translation>部品を探す</translation>
    </message>
    <message>
        <source>Type a few letters of a class, a title or a keyword.</source>
        <translation>クラス・題名・キーワードを数文字入力します。</translation>
    </message>
    <message>
        <source>Try another style</source>
        <translation>別のスタイルを試す</translation>
    </message>
    <message>
        <source>Dark, light, high contrast, none at all, or a sheet of your own that reloads when you save it.</source>
        <translation>暗色、明色、高コントラスト、なし、または保存すると再読み込みされる独自のスタイルシート。</translation>
    </message>
    <message>
        <source>Change it while it runs</source>
        <translation>動作中に変更</translation>
    </message>
    <message>
        <source>The controls act on the enabled twin and the disabled one at once.</source>
        <translation>操作部は有効な方と無効な方の両方に同時に働きます。</translation>
    </message>
    <message>
        <source>See what it says</source>
        <translation>通知を見る</translation>
    </message>
    <message>
        <source>Every signal of the component, newest last.</source>
        <translation>部品のすべてのシグナル。最新のものが最後です。</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>ボタン</translation>
    </message>
    <message>
        <source>Close button</source>
        <translation>閉じるボタン</translation>
    </message>
    <message>
        <source>Secondary button</source>
        <translation>補助ボタン</translation>
    </message>
    <message>
        <source>A PointingWidget; its bubble is painted from that one&apos;s properties.</source>
        <translation>PointingWidget です。吹き出しはそのプロパティに従って描画されます。</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>クリップ %1</translation>
    </message>
    <message>
        <source>with sound</source>
        <translation>音声付き</translation>
    </message>
    <message>
        <source>Part of a clip&apos;s name</source>
        <translation>クリップ名の一部</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>検索をクリア</translation>
    </message>
    <message>
        <source>Search clips</source>
        <translation>クリップを検索</translation>
    </message>
    <message>
        <source>Beach, morning</source>
        <translation>海辺、朝</translation>
    </message>
    <message>
        <source>Beach, evening</source>
        <translation>海辺、夕方</translation>
    </message>
    <message>
        <source>Harbour</source>
        <translation>港</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>インタビュー</translation>
    </message>
    <message>
        <source>Interview, second camera</source>
        <translation>インタビュー、カメラ 2</translation>
    </message>
    <message>
        <source>Nobody would find this folder again: %1</source>
        <translation>このフォルダーは二度と見つけられません: %1</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>Colours and sizes are those of a hidden child, selected by its class name and, where they differ for a disabled plane, with [enabled=&quot;false&quot;]. The sheet gives the plane its size.</source>
        <translation>色と寸法は隠れた子のもので、クラス名で選択し、無効なときに異なる場合は [enabled=&quot;false&quot;] を付けます。プレーンの大きさはスタイルシートが与えます。</translation>
    </message>
    <message>
        <source>Frames around a point plane and two labelled spin boxes. The labels are empty: the sheet may give them a text, with qproperty-text, or a picture.</source>
        <translation>ポイントプレーンとラベル付きの二つのスピンボックスを囲む枠です。ラベルは空で、スタイルシートが qproperty-text で文字列を、または画像を与えられます。</translation>
    </message>
    <message>
        <source>Full HD, 1920 × 1080, 25 frames</source>
        <translation>フル HD、1920 × 1080、25 フレーム</translation>
    </message>
    <message>
        <source>Ultra HD, 3840 × 2160, 60 frames</source>
        <translation>ウルトラ HD、3840 × 2160、60 フレーム</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>正方形</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>元のまま</translation>
    </message>
    <message>
        <source>With room</source>
        <translation>余裕のある幅</translation>
    </message>
    <message>
        <source>In a narrow panel</source>
        <translation>狭いパネル</translation>
    </message>
    <message>
        <source>Width of the narrow one</source>
        <translation>狭い方の幅</translation>
    </message>
    <message>
        <source>As QComboBox, with its sub-controls and its view, or alone by its class name; the pop-up&apos;s state is a dynamic property.</source>
        <translation>QComboBox とその部分要素・ビューとして、または単独でクラス名により選択します。ポップアップの状態は動的プロパティです。</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>通常</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>乗算</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>スクリーン</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>元のまま</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation>変換済み</translation>
    </message>
    <message>
        <source>Convert the first one too</source>
        <translation>最初の方も変換</translation>
    </message>
    <message>
        <source>A combo box with the property; the view of its list has the object name tesselComboBoxView.</source>
        <translation>このプロパティを持つコンボボックス。一覧のビューのオブジェクト名は tesselComboBoxView です。</translation>
    </message>
    <message>
        <source>A text</source>
        <translation>文字列</translation>
    </message>
    <message>
        <source>Text to edit</source>
        <translation>編集できる文字列</translation>
    </message>
    <message>
        <source>A placeholder</source>
        <translation>プレースホルダー</translation>
    </message>
    <message>
        <source>Name of the clip</source>
        <translation>クリップの名前</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>読み取り専用</translation>
    </message>
    <message>
        <source>Text to copy</source>
        <translation>コピーできる文字列</translation>
    </message>
    <message>
        <source>Selected as QLineEdit or, alone, as Orvane--Tessel--TesselLineEdit; its menu as QMenu#tesselContextMenu.</source>
        <translation>QLineEdit、または単独で Orvane--Tessel--TesselLineEdit として選択します。メニューは QMenu#tesselContextMenu です。</translation>
    </message>
    <message>
        <source>By itself</source>
        <translation>単独</translation>
    </message>
    <message>
        <source>Above a list that it filters</source>
        <translation>絞り込むリストの上</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>プレースホルダー</translation>
    </message>
    <message>
        <source>A frame around an icon, a line edit and a button that clears it. &quot;focusHint&quot; is set from the first time that the line edit gets the keyboard.</source>
        <translation>アイコン、入力欄、消去ボタンを囲む枠です。「focusHint」は、入力欄が初めてキーボードを得たときから設定されます。</translation>
    </message>
    <message>
        <source>A bin of clips</source>
        <translation>クリップの一覧</translation>
    </message>
    <message>
        <source>Loading is finished</source>
        <translation>読み込み完了</translation>
    </message>
    <message>
        <source>The model</source>
        <translation>モデル</translation>
    </message>
    <message>
        <source>Add clips: %1</source>
        <translation>クリップを追加: %1</translation>
    </message>
    <message>
        <source>Remove all clips</source>
        <translation>すべてのクリップを削除</translation>
    </message>
    <message>
        <source>As QListView: it has no class of its own for a sheet. Its minimum height is its own, whatever the sheet says.</source>
        <translation>QListView として選択します。スタイルシート用の独自のクラスはありません。最小の高さは、スタイルシートの指定にかかわらず自分で決めます。</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>Back to the home folder</source>
        <translation>ホームフォルダーに戻す</translation>
    </message>
    <message>
        <source>With a default folder and space on its disk</source>
        <translation>既定のフォルダーとディスクの空き容量付き</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>ホームフォルダー</translation>
    </message>
    <message>
        <source>A relative path, with its error below</source>
        <translation>相対パスと、その下のエラー</translation>
    </message>
    <message>
        <source>Check the upper field</source>
        <translation>上の欄を確認</translation>
    </message>
    <message>
        <source>upper</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Check the lower field</source>
        <translation>下の欄を確認</translation>
    </message>
    <message>
        <source>lower</source>
        <translation>下</translation>
    </message>
    <message>
        <source>The upper field&apos;s error</source>
        <translation>上の欄のエラー</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>表示しない</translation>
    </message>
    <message>
        <source>tool tip</source>
        <translation>ツールチップ</translation>
    </message>
    <message>
        <source>label</source>
        <translation>ラベル</translation>
    </message>
    <message>
        <source>Refuse hidden folders instead</source>
        <translation>代わりに隠しフォルダーを拒否</translation>
    </message>
    <message>
        <source>The upper field</source>
        <translation>上の欄</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>パス</translation>
    </message>
    <message>
        <source>Default path&apos;s text</source>
        <translation>既定のパスの文字列</translation>
    </message>
    <message>
        <source>Required megabytes</source>
        <translation>必要なメガバイト数</translation>
    </message>
    <message>
        <source>A frame around a line edit and its buttons, which carries the border, the hint &quot;error&quot; and, from the first time that the line edit gets the keyboard, &quot;focusHint&quot;; figures above it and a message below it.</source>
        <translation>入力欄とボタンを囲む枠が、境界線、ヒント「error」、そして入力欄が初めてキーボードを得たときから「focusHint」を持ちます。枠の上に数値、下にメッセージがあります。</translation>
    </message>
    <message>
        <source>Search parameters</source>
        <translation>パラメーターを検索</translation>
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
    <message>
        <source>autoFill() and a stretch behind</source>
        <translation>autoFill() と末尾の伸縮</translation>
    </message>
    <message>
        <source>addItems() with a spacer</source>
        <translation>スペーサー付きの addItems()</translation>
    </message>
    <message>
        <source>A grid: one cell spans two, one is aligned right</source>
        <translation>グリッド：1 つのセルは 2 列分、1 つは右揃え</translation>
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
    <message>
        <source>Choose a variant below</source>
        <translation>下で種類を選択</translation>
    </message>
    <message>
        <source>Variant of the edit</source>
        <translation>入力欄の種類</translation>
    </message>
    <message>
        <source>Any text</source>
        <translation>任意の文字列</translation>
    </message>
    <message>
        <source>Any plain control: ColorHint and Util::applyStyleHint() give it one of the shared variants.</source>
        <translation>標準の部品すべて。ColorHint と Util::applyStyleHint() が共通の種類を与えます。</translation>
    </message>
    <message>
        <source>A dial whose hand is styled</source>
        <translation>針の見た目を変えられる計器</translation>
    </message>
    <message>
        <source>An example: the provider is selected by its class name below the widget that it serves.</source>
        <translation>例：提供役は、仕えるウィジェット配下のクラス名で選択します。</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>垂直</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>A frame around a slider and a spin box without arrows.</source>
        <translation>スライダーと矢印のないスピンボックスを囲む枠です。</translation>
    </message>
    <message>
        <source>Two decimals</source>
        <translation>小数 2 桁</translation>
    </message>
    <message>
        <source>Six decimals</source>
        <translation>小数 6 桁</translation>
    </message>
    <message>
        <source>A number</source>
        <translation>数値</translation>
    </message>
    <message>
        <source>With a unit</source>
        <translation>単位付き</translation>
    </message>
    <message>
        <source>As QSpinBox, with its sub-controls, or alone by its class name.</source>
        <translation>QSpinBox とその部分要素として、または単独でクラス名により選択します。</translation>
    </message>
    <message>
        <source>The language&apos;s decimal mark</source>
        <translation>言語の小数点</translation>
    </message>
    <message>
        <source>Point and comma</source>
        <translation>ピリオドとコンマ</translation>
    </message>
    <message>
        <source>As QDoubleSpinBox, with its sub-controls, or alone by its class name.</source>
        <translation>QDoubleSpinBox とその部分要素として、または単独でクラス名により選択します。</translation>
    </message>
    <message>
        <source>As QSlider, with ::groove, ::handle, ::add-page and ::sub-page, or alone by its class name.</source>
        <translation>QSlider と ::groove、::handle、::add-page、::sub-page として、または単独でクラス名により選択します。</translation>
    </message>
    <message>
        <source>As OvCustomSlider and QSlider, or alone by its class name.</source>
        <translation>OvCustomSlider と QSlider として、または単独でクラス名により選択します。</translation>
    </message>
    <message>
        <source>As OvCustomSlider, with ::groove, ::handle, ::add-page and ::sub-page, or alone by its class name.</source>
        <translation>OvCustomSlider と ::groove、::handle、::add-page、::sub-page として、または単独でクラス名により選択します。</translation>
    </message>
    <message>
        <source>Whole numbers</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>Fractions</source>
        <translation>小数</translation>
    </message>
    <message>
        <source>Picked colours</source>
        <translation>選んだ色</translation>
    </message>
    <message>
        <source>Pick a colour from the screen</source>
        <translation>画面から色を取得</translation>
    </message>
    <message>
        <source>What it picked, the latest first</source>
        <translation>取得した色（新しい順）</translation>
    </message>
    <message>
        <source>The loupe by itself</source>
        <translation>ルーペのみ</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Anywhere</source>
        <translation>任意の場所</translation>
    </message>
    <message>
        <source>In a corner of the desktop</source>
        <translation>デスクトップの隅</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>The loupe of the pipette, which carries the property roundedEdges. Its border is painted over the picture; its background must be transparent. The windows that cover the screens meanwhile are of the class PipetteScreenView: its cursorPixmap, cursorSize and cursorHotSpot are the cursor of the pick.</source>
        <translation>スポイトのルーペで、プロパティ roundedEdges を持ちます。境界線は画像の上に描画され、背景は透明でなければなりません。その間画面を覆うウィンドウのクラスは PipetteScreenView で、cursorPixmap、cursorSize、cursorHotSpot が取得中のカーソルを決めます。</translation>
    </message>
    <message>
        <source>A button that shows its colour</source>
        <translation>取得した色になるボタン</translation>
    </message>
    <message>
        <source>Before its first pick</source>
        <translation>最初の取得の前</translation>
    </message>
    <message>
        <source>Pick a colour from the film</source>
        <translation>映像から色を取得</translation>
    </message>
    <message>
        <source>A colour button with this picker</source>
        <translation>このピッカーを使うカラーボタン</translation>
    </message>
    <message>
        <source>Target and cursor</source>
        <translation>対象とカーソル</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>対象</translation>
    </message>
    <message>
        <source>The film</source>
        <translation>映像</translation>
    </message>
    <message>
        <source>The whole page</source>
        <translation>ページ全体</translation>
    </message>
    <message>
        <source>Picking cursor</source>
        <translation>取得中のカーソル</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>十字</translation>
    </message>
    <message>
        <source>Pointing hand</source>
        <translation>指差し</translation>
    </message>
    <message>
        <source>Question mark</source>
        <translation>疑問符</translation>
    </message>
    <message>
        <source>The film runs</source>
        <translation>映像を再生</translation>
    </message>
    <message>
        <source>Its background is its colour, written into its own sheet; size and border are the application&apos;s.</source>
        <translation>背景は自分の色で、自身のスタイルシートに書き込まれます。大きさと境界線はアプリケーションが決めます。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>The scene&apos;s source</source>
        <translation>シーンのソース</translation>
    </message>
    <message>
        <source>Result of exec()</source>
        <translation>exec() の結果</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>%1 に書き込めません</translation>
    </message>
    <message>
        <source>Values of the form</source>
        <translation>フォームの値</translation>
    </message>
    <message>
        <source>Errors in the scene</source>
        <translation>シーンのエラー</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>シーン</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>フォーム</translation>
    </message>
    <message>
        <source>One that fails to load</source>
        <translation>読み込みに失敗するもの</translation>
    </message>
    <message>
        <source>Centred on this page</source>
        <translation>このページの中央に表示</translation>
    </message>
    <message>
        <source>Open a new dialog</source>
        <translation>新しいダイアログを開く</translation>
    </message>
    <message>
        <source>Open the last dialog again</source>
        <translation>前のダイアログを再び開く</translation>
    </message>
    <message>
        <source>Original source</source>
        <translation>元のソース</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>no</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Asked for</source>
        <translation>指定した値</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>バイト数</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>小数桁数</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Bytes in a kilobyte</source>
        <translation>1 キロバイトのバイト数</translation>
    </message>
    <message>
        <source>Root folder</source>
        <translation>ルートフォルダー</translation>
    </message>
    <message>
        <source>A file in the place of a folder</source>
        <translation>フォルダーの位置にファイルがある</translation>
    </message>
    <message>
        <source>Empty path</source>
        <translation>空のパス</translation>
    </message>
    <message>
        <source>Own colours</source>
        <translation>マイカラー</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>再読み込み</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>要求</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>呼び出し</translation>
    </message>
    <message>
        <source>A call is pending</source>
        <translation>呼び出し待ち</translation>
    </message>
    <message>
        <source>Delay in milliseconds</source>
        <translation>遅延（ミリ秒）</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>One request</source>
        <translation>要求を 1 回</translation>
    </message>
    <message>
        <source>A burst of %1 requests</source>
        <translation>要求を %1 回連続</translation>
    </message>
    <message>
        <source>Your title</source>
        <translation>任意の題名</translation>
    </message>
    <message>
        <source>A title of your own</source>
        <translation>自分の題名</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>題名</translation>
    </message>
    <message>
        <source>granted</source>
        <translation>許可</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>拒否</translation>
    </message>
    <message>
        <source>not available on this platform</source>
        <translation>このプラットフォームでは利用不可</translation>
    </message>
    <message>
        <source>Platform</source>
        <translation>プラットフォーム</translation>
    </message>
    <message>
        <source>Request %1</source>
        <translation>%1 を要求</translation>
    </message>
    <message>
        <source>Take the view out and put it back</source>
        <translation>ビューを外して戻す</translation>
    </message>
    <message>
        <source>The view</source>
        <translation>ビュー</translation>
    </message>
    <message>
        <source>no widget</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Keyboard focus</source>
        <translation>キーボードフォーカス</translation>
    </message>
    <message>
        <source>Apply the workaround</source>
        <translation>回避策を適用</translation>
    </message>
    <message>
        <source>Open the dialog</source>
        <translation>ダイアログを開く</translation>
    </message>
    <message>
        <source>Writes a number of bytes as users read it, in the current language&apos;s units and digits.</source>
        <translation>バイト数を、現在の言語の単位と数字で読みやすく表します。</translation>
    </message>
    <message>
        <source>Headings are bold where both the language and the title are written in a script that has a tradition of bold type, and plain where bold would hurt legibility. Markup in a title is shown as text.</source>
        <translation>言語と題名の文字に太字の習慣があれば見出しは太字になり、太字が読みにくい文字では標準の太さになります。題名の中のマークアップは文字として表示されます。</translation>
    </message>
    <message>
        <source>What an editor asks about a path that a user typed: whether it could be a folder, where the nearest one is, and what the program may do there.</source>
        <translation>入力されたパスについてエディターが知りたいこと：フォルダーになり得るか、最も近いフォルダーはどこか、そこで何が許されるか。</translation>
    </message>
    <message>
        <source>Whether the system lets the program read the screen and the input of other programs, asked without troubling the user.</source>
        <translation>他のプログラムの画面や入力を読むことをシステムが許しているかを、ユーザーを煩わせずに調べます。</translation>
    </message>
    <message>
        <source>The user&apos;s own colours outlive the program, also when it is killed right after the write. They are kept under the host&apos;s organisation and application name, or in a store that the host hands over. A colour is added at the front, eight are kept, and neither a colour of the fixed palette nor one that is there already is taken.</source>
        <translation>マイカラーは、書き込み直後に強制終了されても残ります。ホストの組織名とアプリケーション名の下、またはホストが渡した保存先に保存されます。色は先頭に加えられ、八色まで保たれます。固定パレットの色とすでにある色は加えられません。</translation>
    </message>
    <message>
        <source>Merges a burst of requests into one deferred call. Later requests do not put the call off, so a steady stream of them still gets its calls.</source>
        <translation>連続した要求を 1 回の遅延呼び出しにまとめます。後の要求で呼び出しが延びることはなく、絶え間ない要求でも呼び出しは行われます。</translation>
    </message>
    <message>
        <source>Qt forgets the focus of a view whose host is taken out of a window and put back. With the workaround the keyboard goes to the view; without it, to whatever comes first. A line edit stands for the view here: the workaround works for every kind.</source>
        <translation>ビューの入れ物をウィンドウから外して戻すと、Qt はフォーカスを忘れます。回避策を使うとキーボードはビューに届き、使わないと先頭の部品に移ります。ここでは入力欄がビューの代わりです。回避策はどの種類のビューにも効きます。</translation>
    </message>
    <message>
        <source>One edit, one step</source>
        <translation>一つの編集は一つの手順</translation>
    </message>
    <message>
        <source>A session tells what a user does to a field as one story, from the first change to the end of the drag, the text or the pick. Here each becomes one step of undo. Escape takes it back.</source>
        <translation>セッションは、ユーザーがフィールドに行うことを、最初の変更からドラッグ、入力、選択の終わりまで一つの流れとして伝えます。ここではそれぞれが元に戻す一つの手順になります。Esc キーで取り消します。</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>several values</source>
        <translation>複数の値</translation>
    </message>
    <message>
        <source>typing</source>
        <translation>入力</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>編集</translation>
    </message>
    <message>
        <source>Drag it, hold an arrow key, type, turn the wheel</source>
        <translation>ドラッグ、矢印キーの長押し、入力、ホイール</translation>
    </message>
    <message>
        <source>Drag the point</source>
        <translation>点をドラッグ</translation>
    </message>
    <message>
        <source>Try colours, then press Escape or Enter</source>
        <translation>色を試してから Esc キーまたは Enter キーを押す</translation>
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
        <source>Several values</source>
        <translation>複数の値</translation>
    </message>
    <message>
        <source>A field that stands for several values has multiValue, and a label #multiValueCover covers each of its line edits.</source>
        <translation>複数の値を表すフィールドは multiValue を持ち、ラベル #multiValueCover がその各入力欄を覆います。</translation>
    </message>
    <message>
        <source>Title cards</source>
        <translation>タイトルカード</translation>
    </message>
    <message>
        <source>An application in miniature, to be read in examples/titlecard: an inspector of several cards, undo and redo of everything, presets, a tour, a QML dialog, and pictures of the canvas.</source>
        <translation>examples/titlecard にある小さなアプリケーションです。複数のカードのプロパティ、すべての取り消しとやり直し、プリセット、ツアー、QML ダイアログ、キャンバスの画像があります。</translation>
    </message>
    <message>
        <source>application</source>
        <translation>アプリケーション</translation>
    </message>
    <message>
        <source>export</source>
        <translation>書き出し</translation>
    </message>
    <message>
        <source>First light</source>
        <translation>最初の光</translation>
    </message>
    <message>
        <source>A film</source>
        <translation>映画</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>The languages that the library has its texts in. One call loads one of them, here by the switch of the gallery, and every component changes at once.</source>
        <translation>ライブラリがテキストを用意している言語です。1回の呼び出しでそのうちの1つを読み込みます。ここではギャラリーの切り替えで行い、すべてのコンポーネントがすぐに切り替わります。</translation>
    </message>
</context>
<context>
    <name>ParameterPanel</name>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Part of a parameter&apos;s name</source>
        <translation>パラメーター名の一部</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>検索をクリア</translation>
    </message>
    <message>
        <source>Search parameters</source>
        <translation>パラメーターを検索</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>倍率</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>描画モード</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>色合い</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>フォルダーを選択</translation>
    </message>
    <message>
        <source>Back to the home folder</source>
        <translation>ホームフォルダーに戻す</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>ホームフォルダー</translation>
    </message>
    <message>
        <source>Proxies</source>
        <translation>プロキシ</translation>
    </message>
    <message>
        <source>Stabilise</source>
        <translation>手ぶれ補正</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>シャープ</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>フィルムグレイン</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>エフェクト</translation>
    </message>
</context>
<context>
    <name>PickerChoice</name>
    <message>
        <source>Picker</source>
        <translation>ピッカー</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Colour panel</source>
        <translation>カラーパネル</translation>
    </message>
    <message>
        <source>Qt&apos;s colour dialog</source>
        <translation>Qt のカラーダイアログ</translation>
    </message>
    <message>
        <source>Panel: no colour allowed</source>
        <translation>パネル: 色なしを許可</translation>
    </message>
    <message>
        <source>Panel: with opacity</source>
        <translation>パネル: 不透明度付き</translation>
    </message>
    <message>
        <source>Panel: with own colours</source>
        <translation>パネル: マイカラーあり</translation>
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
    <name>SheetText</name>
    <message>
        <source>there is no property “%1”</source>
        <translation>プロパティ「%1」はありません</translation>
    </message>
    <message>
        <source>error near “%1”</source>
        <translation>「%1」の付近にエラーがあります</translation>
    </message>
    <message>
        <source>the rule has no end</source>
        <translation>ルールに終わりがありません</translation>
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
        <source>High contrast</source>
        <translation>高コントラスト</translation>
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
<context>
    <name>Walk</name>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
</context>
<context>
    <name>WidgetFacts</name>
    <message>
        <source>Class</source>
        <translation>クラス</translation>
    </message>
    <message>
        <source>Base classes</source>
        <translation>基底クラス</translation>
    </message>
    <message>
        <source>Object name</source>
        <translation>オブジェクト名</translation>
    </message>
    <message>
        <source>Dynamic properties</source>
        <translation>動的プロパティ</translation>
    </message>
    <message>
        <source>Rules, the strongest first</source>
        <translation>ルール（強い順）</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>%1 行目</translation>
    </message>
    <message>
        <source>sheet of %1</source>
        <translation>%1 のシート</translation>
    </message>
    <message>
        <source>the gallery&apos;s own</source>
        <translation>ギャラリー自身のもの</translation>
    </message>
    <message>
        <source>Properties that a rule can set</source>
        <translation>ルールで設定できるプロパティ</translation>
    </message>
    <message>
        <source>Parents</source>
        <translation>親</translation>
    </message>
    <message>
        <source>Children</source>
        <translation>子</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>Workbench</source>
        <translation>ワークベンチ</translation>
    </message>
    <message>
        <source>Point at a widget</source>
        <translation>ウィジェットを指す</translation>
    </message>
    <message>
        <source>Click any widget to see what a sheet can know of it (F12); Escape ends it</source>
        <translation>任意のウィジェットをクリックすると、シートから分かることが表示されます (F12)。Esc で終了します</translation>
    </message>
    <message>
        <source>Copy C++</source>
        <translation>C++ をコピー</translation>
    </message>
    <message>
        <source>Copies the code that builds what the page shows, with its present values</source>
        <translation>ページに表示されているものを、現在の値で組み立てるコードをコピーします</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Writes the sheet into its file; a built-in sheet has none</source>
        <translation>シートをファイルに書き込みます。組み込みのシートにはファイルがありません</translation>
    </message>
    <message>
        <source>Widget</source>
        <translation>ウィジェット</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>スタイルシート</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>コピーしました。</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>保存しました。</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>ファイルに書き込めません。</translation>
    </message>
</context>
</TS>
