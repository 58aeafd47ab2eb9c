<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Broken</name>
    <message>
        <source>Now it loads. Click to close.</source>
        <translation>现在可以加载了。单击关闭。</translation>
    </message>
</context>
<context>
    <name>Confirmation</name>
    <message>
        <source>Discard the sequence?</source>
        <translation>要放弃该序列吗？</translation>
    </message>
    <message>
        <source>Its cuts and titles will be gone. The clips stay in the project.</source>
        <translation>其剪辑点和字幕将会丢失。素材仍保留在项目中。</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>放弃</translation>
    </message>
</context>
<context>
    <name>DialogColorPicker</name>
    <message>
        <source>Pick a colour</source>
        <translation>选择颜色</translation>
    </message>
</context>
<context>
    <name>FolderBrowser</name>
    <message>
        <source>Choose a folder</source>
        <translation>选择文件夹</translation>
    </message>
</context>
<context>
    <name>Form</name>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Sequence 1</source>
        <translation>序列 1</translation>
    </message>
    <message>
        <source>Frames a second, 1 to 240</source>
        <translation>每秒帧数，1 到 240</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Create</source>
        <translation>创建</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>The style sheet %1 cannot be read.</source>
        <translation>无法读取样式表 %1。</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>样式表</translation>
    </message>
    <message>
        <source>Style sheets (*.qss)</source>
        <translation>样式表 (*.qss)</translation>
    </message>
    <message>
        <source>%1 – UiComponents Gallery</source>
        <translation>%1 – UiComponents 展示</translation>
    </message>
</context>
<context>
    <name>Page</name>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>禁用</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Search title, class, keyword</source>
        <translation>搜索标题、类、关键词</translation>
    </message>
    <message>
        <source>Search pages</source>
        <translation>搜索页面</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
</context>
<context>
    <name>PageRegistry</name>
    <message>
        <source>Colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>Layout and styling</source>
        <translation>布局与样式</translation>
    </message>
    <message>
        <source>Bubbles and frames</source>
        <translation>气泡与边框</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>服务</translation>
    </message>
    <message>
        <source>Guides and dialogs</source>
        <translation>指引与对话框</translation>
    </message>
    <message>
        <source>Colour button</source>
        <translation>颜色按钮</translation>
    </message>
    <message>
        <source>A button whose face is a colour. A click hands over to an exchangeable picker, here the colour panel or Qt&apos;s colour dialog: every colour that is tried is on the button at once.</source>
        <translation>以颜色为表面的按钮。单击后交给可更换的选择器，这里是颜色面板或 Qt 的颜色对话框：试用的每种颜色都会立即显示在按钮上。</translation>
    </message>
    <message>
        <source>colour</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>picker</source>
        <translation>选择器</translation>
    </message>
    <message>
        <source>dialog</source>
        <translation>对话框</translation>
    </message>
    <message>
        <source>Colour field</source>
        <translation>颜色字段</translation>
    </message>
    <message>
        <source>A colour button in a frame, ready for a row of a form. The frame&apos;s margins belong to the style sheet; the button inside is the anchor for a pop-up picker.</source>
        <translation>放在框架中的颜色按钮，可直接用于表单的一行。框架的边距由样式表决定；其中的按钮是弹出选择器的锚点。</translation>
    </message>
    <message>
        <source>form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>row</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Colour panel</source>
        <translation>颜色面板</translation>
    </message>
    <message>
        <source>The panel that a colour field opens: a palette, a hexadecimal value, the user&apos;s own colours, a selector of any colour, and opacity.</source>
        <translation>颜色字段打开的面板：调色板、十六进制值、用户自定义颜色、任意颜色选择器和不透明度。</translation>
    </message>
    <message>
        <source>palette</source>
        <translation>调色板</translation>
    </message>
    <message>
        <source>opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Free colour selector</source>
        <translation>自由颜色选择器</translation>
    </message>
    <message>
        <source>A colour plane above a slider for its hue: one selector for any colour. A colour that code sets appears on the next turn of the event loop.</source>
        <translation>颜色平面下方带色相滑块：一个选择器即可选任意颜色。代码设置的颜色在事件循环的下一轮显示。</translation>
    </message>
    <message>
        <source>custom</source>
        <translation>自定义</translation>
    </message>
    <message>
        <source>hue</source>
        <translation>色相</translation>
    </message>
    <message>
        <source>slider</source>
        <translation>滑块</translation>
    </message>
    <message>
        <source>Colour plane</source>
        <translation>颜色平面</translation>
    </message>
    <message>
        <source>All colours of one hue: saturation grows to the right, brightness upwards. Drag the marker, also beyond the edge, or move it with the arrow keys, by ten pixels with Shift.</source>
        <translation>同一色相的所有颜色：饱和度向右增大，亮度向上增大。拖动标记（可超出边缘），或用方向键移动，按住 Shift 每次移动十个像素。</translation>
    </message>
    <message>
        <source>saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>marker</source>
        <translation>标记</translation>
    </message>
    <message>
        <source>Blending modes</source>
        <translation>混合模式</translation>
    </message>
    <message>
        <source>How the colour of a layer is combined with what lies under it. The names are sorted in the user&apos;s language, behind the first, which is no blending at all. Here the layer is a grey ramp and three lights, on a landscape.</source>
        <translation>图层颜色与其下方内容的组合方式。名称按用户的语言排序，第一项除外，它不做混合。这里的图层是风景上的灰阶渐变和三个光斑。</translation>
    </message>
    <message>
        <source>layer</source>
        <translation>图层</translation>
    </message>
    <message>
        <source>combo box</source>
        <translation>组合框</translation>
    </message>
    <message>
        <source>composition</source>
        <translation>合成</translation>
    </message>
    <message>
        <source>Screen pipette</source>
        <translation>屏幕取色器</translation>
    </message>
    <message>
        <source>Picks the colour of any pixel on any screen, of other applications too. A click picks, any key gives up. The loupe beside the cursor shows the pixels around it.</source>
        <translation>拾取任意屏幕上任意像素的颜色，包括其他应用程序。单击拾取，按任意键放弃。光标旁的放大镜显示周围的像素。</translation>
    </message>
    <message>
        <source>pick</source>
        <translation>拾取</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>屏幕</translation>
    </message>
    <message>
        <source>magnifier</source>
        <translation>放大镜</translation>
    </message>
    <message>
        <source>eyedropper</source>
        <translation>吸管</translation>
    </message>
    <message>
        <source>Colour from a widget</source>
        <translation>从控件取色</translation>
    </message>
    <message>
        <source>Click a button, then into the film: the colour of that pixel is picked. Any other click or key ends it too; with the cursor elsewhere nothing is picked.</source>
        <translation>先单击按钮，再单击影片：即拾取该像素的颜色。其他任何单击或按键也会结束；光标在别处时不拾取任何颜色。</translation>
    </message>
    <message>
        <source>preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>cursor</source>
        <translation>光标</translation>
    </message>
    <message>
        <source>Slider field</source>
        <translation>滑块字段</translation>
    </message>
    <message>
        <source>A slider and a spin box of one whole number, kept in step. Each change is reported by both, so the signal arrives twice with the same value.</source>
        <translation>同一整数的滑块和数字框，始终同步。两者都会报告每次更改，因此信号会以相同的值到达两次。</translation>
    </message>
    <message>
        <source>number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>integer</source>
        <translation>整数</translation>
    </message>
    <message>
        <source>range</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>spin box</source>
        <translation>数字框</translation>
    </message>
    <message>
        <source>Slider field for fractions</source>
        <translation>小数滑块字段</translation>
    </message>
    <message>
        <source>A slider and a spin box of one number with a fixed count of decimals, exact to the last digit. Both the point and the comma are decimal marks while typing.</source>
        <translation>同一数字的滑块和数字框，小数位数固定，精确到最后一位。输入时句点和逗号都可作小数点。</translation>
    </message>
    <message>
        <source>decimals</source>
        <translation>小数位</translation>
    </message>
    <message>
        <source>Point plane</source>
        <translation>点平面</translation>
    </message>
    <message>
        <source>A pad on which a point is picked by clicking, dragging, also out of the window, and with the arrow keys, ten pixels at a time with Shift. Here it stands for -1 to 1 both ways.</source>
        <translation>用于选点的区域：可单击、拖动（可拖出窗口），或用方向键，按住 Shift 每次十个像素。这里两个方向都表示 -1 到 1。</translation>
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
        <translation>面板区</translation>
    </message>
    <message>
        <source>drag</source>
        <translation>拖动</translation>
    </message>
    <message>
        <source>Point selector</source>
        <translation>点选择器</translation>
    </message>
    <message>
        <source>A point plane and a spin box for each coordinate, kept in step. A point that is picked is reported as it is, and then as the spin boxes round it.</source>
        <translation>一个点平面和每个坐标一个数字框，始终同步。选中的点先按原值报告，再按数字框舍入后的值报告。</translation>
    </message>
    <message>
        <source>coordinates</source>
        <translation>坐标</translation>
    </message>
    <message>
        <source>Spin box</source>
        <translation>数字框</translation>
    </message>
    <message>
        <source>A spin box that is safe to scroll past, since the wheel changes it only while it has the focus, and quick to type into: Enter commits the number and leaves it selected.</source>
        <translation>滚动经过时不会误改的数字框，因为只有获得焦点时滚轮才会更改它；输入也很快：Enter 提交数字并保持选中。</translation>
    </message>
    <message>
        <source>wheel</source>
        <translation>滚轮</translation>
    </message>
    <message>
        <source>Spin box for fractions</source>
        <translation>小数数字框</translation>
    </message>
    <message>
        <source>The spin box for fractions. On request it takes both the point and the comma as the decimal mark, whatever the language, so that nobody has to look for the right key.</source>
        <translation>用于小数的数字框。可按要求在任何语言下都接受句点和逗号作小数点，这样谁都不必寻找正确的键。</translation>
    </message>
    <message>
        <source>comma</source>
        <translation>逗号</translation>
    </message>
    <message>
        <source>Slider</source>
        <translation>滑块</translation>
    </message>
    <message>
        <source>A slider that goes where it is clicked: a press on the groove moves the handle there at once and the drag goes on from it. The wheel changes it only while it has the focus.</source>
        <translation>点到哪里就到哪里的滑块：在滑槽上按下时滑柄立即移到该处，并从那里继续拖动。只有获得焦点时滚轮才会更改它。</translation>
    </message>
    <message>
        <source>groove</source>
        <translation>滑槽</translation>
    </message>
    <message>
        <source>Slider for fractions</source>
        <translation>小数滑块</translation>
    </message>
    <message>
        <source>A slider with a fractional value: its steps times a multiplier. A value that code sets is kept exactly, also between two steps, in whatever order multiplier, range and value come.</source>
        <translation>具有小数值的滑块：步数乘以系数。代码设置的值会精确保留，即使在两步之间，无论系数、范围和值以何种顺序设置。</translation>
    </message>
    <message>
        <source>multiplier</source>
        <translation>系数</translation>
    </message>
    <message>
        <source>step</source>
        <translation>步长</translation>
    </message>
    <message>
        <source>Slider and spin box in step</source>
        <translation>同步的滑块和数字框</translation>
    </message>
    <message>
        <source>Keeps a slider and a spin box on one value, in both directions. What is typed reads back digit for digit; the handle goes to the nearest step.</source>
        <translation>让滑块和数字框双向保持同一个值。输入的内容逐位原样读回；滑柄移到最近的一步。</translation>
    </message>
    <message>
        <source>binding</source>
        <translation>绑定</translation>
    </message>
    <message>
        <source>Combo box</source>
        <translation>组合框</translation>
    </message>
    <message>
        <source>A combo box that gives way in a narrow panel: the text is cut off with an ellipsis, while the pop-up is as wide as its widest item. The wheel changes it only while it has the focus.</source>
        <translation>在窄面板中会退让的组合框：文字以省略号截断，而弹出列表与最宽的项目同宽。只有获得焦点时滚轮才会更改它。</translation>
    </message>
    <message>
        <source>list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>choice</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>pop-up</source>
        <translation>弹出</translation>
    </message>
    <message>
        <source>Line edit</source>
        <translation>行编辑框</translation>
    </message>
    <message>
        <source>The design system&apos;s line edit. Its context menu always has the same shape: what can do nothing at the moment is disabled, not missing.</source>
        <translation>设计系统的行编辑框。其上下文菜单始终保持同一形式：当前不可用的命令会禁用，而不会消失。</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>context menu</source>
        <translation>上下文菜单</translation>
    </message>
    <message>
        <source>field</source>
        <translation>字段</translation>
    </message>
    <message>
        <source>Elegant slider</source>
        <translation>雅致滑块</translation>
    </message>
    <message>
        <source>The design system&apos;s slider: a slim groove and a round handle. Where no style sheet speaks of its parts it draws them in the colours of its palette.</source>
        <translation>设计系统的滑块：细滑槽和圆滑柄。样式表未涉及其部件时，用调色板的颜色绘制。</translation>
    </message>
    <message>
        <source>Combo box of the design system</source>
        <translation>设计系统的组合框</translation>
    </message>
    <message>
        <source>Gives a combo box the look of the design system in place: items, index and signals stay as they are.</source>
        <translation>就地赋予组合框设计系统的外观：项目、索引和信号保持不变。</translation>
    </message>
    <message>
        <source>Folder field</source>
        <translation>文件夹字段</translation>
    </message>
    <message>
        <source>A field for a folder. It asks its host to browse, reports edits in bursts of a tenth of a second, and looks at the disk only when it is told to check the path. Here the host opens Qt&apos;s folder dialog and shows the space that is free where the path is.</source>
        <translation>用于文件夹的字段。它请宿主浏览，每十分之一秒合并报告一次编辑，只有在要求检查路径时才访问磁盘。这里宿主打开 Qt 的文件夹对话框，并显示路径所在处的可用空间。</translation>
    </message>
    <message>
        <source>path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>browse</source>
        <translation>浏览</translation>
    </message>
    <message>
        <source>directory</source>
        <translation>目录</translation>
    </message>
    <message>
        <source>disk</source>
        <translation>磁盘</translation>
    </message>
    <message>
        <source>error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Search field</source>
        <translation>搜索字段</translation>
    </message>
    <message>
        <source>A field for a search: it reports each change at once, and the end of an edit by Enter or by leaving it. A text never starts with a blank. Its placeholder has three colours, which change when the mouse comes or goes.</source>
        <translation>用于搜索的字段：立即报告每次更改，并在按 Enter 或离开时报告编辑结束。文本从不以空格开头。占位文字有三种颜色，随鼠标进出而变化。</translation>
    </message>
    <message>
        <source>filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>placeholder</source>
        <translation>占位文字</translation>
    </message>
    <message>
        <source>Growing list</source>
        <translation>增长列表</translation>
    </message>
    <message>
        <source>A list that is as high as all its rows for as long as it is being loaded, and scrolls like any other once it is complete. It looks at its rows when it is told to and when it is resized, and does not watch its model.</source>
        <translation>加载期间与所有行同高的列表，加载完成后像其他列表一样滚动。它在被告知时和调整大小时查看各行，而不监视模型。</translation>
    </message>
    <message>
        <source>list view</source>
        <translation>列表视图</translation>
    </message>
    <message>
        <source>rows</source>
        <translation>行数</translation>
    </message>
    <message>
        <source>loading</source>
        <translation>加载</translation>
    </message>
    <message>
        <source>height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Properties of a clip</source>
        <translation>剪辑的属性</translation>
    </message>
    <message>
        <source>The value inputs in one panel, as an editor shows the properties of a clip. The panel can be scrolled past every field: the wheel changes only the one that has the keyboard.</source>
        <translation>一个面板中的数值输入，如同编辑器显示剪辑的属性。面板可滚动经过每个字段：滚轮只更改拥有键盘焦点的那一个。</translation>
    </message>
    <message>
        <source>panel</source>
        <translation>面板</translation>
    </message>
    <message>
        <source>inspector</source>
        <translation>检查器</translation>
    </message>
    <message>
        <source>editor</source>
        <translation>编辑器</translation>
    </message>
    <message>
        <source>Frame and layout controller</source>
        <translation>框架与布局控制器</translation>
    </message>
    <message>
        <source>Components build their layouts without margins and spacing; the style sheet sets both through the layout controller. A frame is its own controller, any other widget gets one installed.</source>
        <translation>组件构建的布局没有边距和间距；样式表通过布局控制器设置两者。框架是自己的控制器，其他控件则需安装一个。</translation>
    </message>
    <message>
        <source>margins</source>
        <translation>边距</translation>
    </message>
    <message>
        <source>spacing</source>
        <translation>间距</translation>
    </message>
    <message>
        <source>Box and grid layouts</source>
        <translation>盒式与网格布局</translation>
    </message>
    <message>
        <source>A box layout takes its owner&apos;s children in the order in which they were made, or a list of items: widgets with a stretch factor, and spacers that stretch or keep their size. A grid is filled row by row.</source>
        <translation>盒式布局按创建顺序接纳其所有者的子控件，或接纳一个项目列表：带伸缩系数的控件，以及可伸缩或固定大小的间隔。网格逐行填充。</translation>
    </message>
    <message>
        <source>spacer</source>
        <translation>间隔</translation>
    </message>
    <message>
        <source>stretch</source>
        <translation>伸缩</translation>
    </message>
    <message>
        <source>column</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Style hints and properties</source>
        <translation>样式提示与属性</translation>
    </message>
    <message>
        <source>Code names a variant, the style sheet gives it a look: a hint is a dynamic property that the sheet selects on. Setting it polishes the widget again, and only when it changed.</source>
        <translation>代码指定变体，样式表赋予外观：提示是样式表据以选择的动态属性。设置它会重新润饰控件，且仅在有变化时。</translation>
    </message>
    <message>
        <source>Colour variants</source>
        <translation>颜色变体</translation>
    </message>
    <message>
        <source>The editor&apos;s eight colour variants of plain controls, by name. Anything but one of the names is ignored; the empty text drops the variant.</source>
        <translation>编辑器为普通控件提供的八种颜色变体，按名称使用。其他名称会被忽略；空文本取消变体。</translation>
    </message>
    <message>
        <source>variant</source>
        <translation>变体</translation>
    </message>
    <message>
        <source>hint</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Property provider</source>
        <translation>属性提供者</translation>
    </message>
    <message>
        <source>A widget that paints itself takes its colours and sizes from a hidden child, which a style sheet selects by class name and writes with qproperty-.</source>
        <translation>自行绘制的控件从隐藏的子对象获取颜色和尺寸；样式表按类名选择它，并用 qproperty- 写入。</translation>
    </message>
    <message>
        <source>Pointing bubble</source>
        <translation>指向气泡</translation>
    </message>
    <message>
        <source>A bubble whose arrow touches a spot. It stays on its screen, or inside its parent, goes to the other side where there is no room, and follows the widget that it annotates.</source>
        <translation>箭头触及某一点的气泡。它留在屏幕内或父控件内，空间不足时转到另一侧，并跟随所标注的控件。</translation>
    </message>
    <message>
        <source>bubble</source>
        <translation>气泡</translation>
    </message>
    <message>
        <source>arrow</source>
        <translation>箭头</translation>
    </message>
    <message>
        <source>Rounded pop-ups</source>
        <translation>圆角弹出窗口</translation>
    </message>
    <message>
        <source>Real rounded corners where desktops disagree about them: a widget with the property roundedEdges is translucent, and painted all the same.</source>
        <translation>各桌面不一致之处的真正圆角：具有 roundedEdges 属性的控件是半透明的，但仍会绘制。</translation>
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
        <translation>高亮框</translation>
    </message>
    <message>
        <source>Outlines a widget without its notice: it follows the target through moves, resizes and hiding, lies over all its children and takes neither mouse nor focus.</source>
        <translation>悄然勾勒一个控件：随目标移动、缩放和隐藏，覆盖其所有子控件，既不占用鼠标也不占用焦点。</translation>
    </message>
    <message>
        <source>outline</source>
        <translation>轮廓</translation>
    </message>
    <message>
        <source>overlay</source>
        <translation>覆盖层</translation>
    </message>
    <message>
        <source>Animated picture</source>
        <translation>动画图像</translation>
    </message>
    <message>
        <source>Plays an animated picture in the size of the widget, keeps its proportions, stays sharp on scaled screens and rests while it is hidden.</source>
        <translation>以控件的大小播放动画图像，保持比例，在缩放屏幕上保持清晰，隐藏时停止。</translation>
    </message>
    <message>
        <source>movie</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>animation</source>
        <translation>动画</translation>
    </message>
    <message>
        <source>Guide</source>
        <translation>指引</translation>
    </message>
    <message>
        <source>A short piece of help: a heading, an animated picture that plays while it is seen, a description and a link to further reading. What is empty is left out.</source>
        <translation>简短的帮助：标题、可见时播放的动画图片、说明以及延伸阅读链接。空的部分会省略。</translation>
    </message>
    <message>
        <source>help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>link</source>
        <translation>链接</translation>
    </message>
    <message>
        <source>Guide button</source>
        <translation>指引按钮</translation>
    </message>
    <message>
        <source>A click opens a guide in a bubble below the button. Escape, a click elsewhere and hiding the button close it.</source>
        <translation>单击会在按钮下方的气泡中打开指引。按 Esc、单击别处或隐藏按钮会将其关闭。</translation>
    </message>
    <message>
        <source>Dialog guide</source>
        <translation>对话框指引</translation>
    </message>
    <message>
        <source>A bubble that walks the user through a step and follows the widget that it annotates. Start the tour to see it at work.</source>
        <translation>引导用户完成一个步骤的气泡，并跟随所标注的控件。启动导览即可看到效果。</translation>
    </message>
    <message>
        <source>tour</source>
        <translation>导览</translation>
    </message>
    <message>
        <source>QML dialog</source>
        <translation>QML 对话框</translation>
    </message>
    <message>
        <source>A modal dialog whose whole content is a QML scene: a file that is loaded when the dialog first runs. The scene knows the dialog as &quot;callback&quot; and ends it. Change the source and open it.</source>
        <translation>整个界面都是 QML 场景的模态对话框：对话框首次运行时加载文件。场景以“callback”之名认识对话框并结束它。可更改源并打开。</translation>
    </message>
    <message>
        <source>confirmation</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>scene</source>
        <translation>场景</translation>
    </message>
    <message>
        <source>Platform services</source>
        <translation>平台服务</translation>
    </message>
    <message>
        <source>The functions and classes below the components, with their live results.</source>
        <translation>组件之下的函数和类及其实时结果。</translation>
    </message>
    <message>
        <source>File sizes</source>
        <translation>文件大小</translation>
    </message>
    <message>
        <source>Paths</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Own colours and folders</source>
        <translation>自定义颜色与文件夹</translation>
    </message>
    <message>
        <source>Scheduler</source>
        <translation>调度器</translation>
    </message>
    <message>
        <source>Headings</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Privacy access</source>
        <translation>隐私访问</translation>
    </message>
    <message>
        <source>Focus of hosted QML</source>
        <translation>内嵌 QML 的焦点</translation>
    </message>
    <message>
        <source>bytes</source>
        <translation>字节</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>file</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>permission</source>
        <translation>权限</translation>
    </message>
    <message>
        <source>validity</source>
        <translation>有效性</translation>
    </message>
    <message>
        <source>store</source>
        <translation>存储</translation>
    </message>
    <message>
        <source>computer</source>
        <translation>计算机</translation>
    </message>
    <message>
        <source>timer</source>
        <translation>计时器</translation>
    </message>
    <message>
        <source>delay</source>
        <translation>延迟</translation>
    </message>
    <message>
        <source>merge</source>
        <translation>合并</translation>
    </message>
    <message>
        <source>burst</source>
        <translation>突发</translation>
    </message>
    <message>
        <source>bold</source>
        <translation>粗体</translation>
    </message>
    <message>
        <source>language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>script</source>
        <translation>文字</translation>
    </message>
    <message>
        <source>capture</source>
        <translation>捕获</translation>
    </message>
    <message>
        <source>keyboard</source>
        <translation>键盘</translation>
    </message>
    <message>
        <source>Arrow on top</source>
        <translation>箭头在上</translation>
    </message>
    <message>
        <source>on the left</source>
        <translation>在左</translation>
    </message>
    <message>
        <source>on the right</source>
        <translation>在右</translation>
    </message>
    <message>
        <source>at the bottom</source>
        <translation>在下</translation>
    </message>
    <message>
        <source>What lies behind shows through the corners.</source>
        <translation>后面的内容从四角透出。</translation>
    </message>
    <message>
        <source>Driven by the controls below</source>
        <translation>由下方控件驱动</translation>
    </message>
    <message>
        <source>Start here</source>
        <translation>从这里开始</translation>
    </message>
    <message>
        <source>All sides</source>
        <translation>所有边</translation>
    </message>
    <message>
        <source>Side of the arrow</source>
        <translation>箭头所在边</translation>
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
        <translation>起始</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>End</source>
        <translation>末尾</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>偏移</translation>
    </message>
    <message>
        <source>Open as a pop-up</source>
        <translation>作为弹出窗口打开</translation>
    </message>
    <message>
        <source>A bubble of its own. It goes with the window.</source>
        <translation>独立的气泡。随窗口一起消失。</translation>
    </message>
    <message>
        <source>Painted by itself: a sheet sets colours and measures through the properties, and the content&apos;s margins on the frame inside.</source>
        <translation>自行绘制：样式表通过属性设置颜色和尺寸，并在内部框架上设置内容边距。</translation>
    </message>
    <message>
        <source>As a part of a window</source>
        <translation>作为窗口的一部分</translation>
    </message>
    <message>
        <source>Open a pop-up</source>
        <translation>打开弹出窗口</translation>
    </message>
    <message>
        <source>Any widget that Workaround::Ui::apply() prepared: a rule for the property gives it background, border and border-radius.</source>
        <translation>任何经 Workaround::Ui::apply() 处理的控件：针对该属性的规则赋予它 background、border 和 border-radius。</translation>
    </message>
    <message>
        <source>The target</source>
        <translation>目标</translation>
    </message>
    <message>
        <source>Still works</source>
        <translation>仍可使用</translation>
    </message>
    <message>
        <source>Highlighted</source>
        <translation>已高亮</translation>
    </message>
    <message>
        <source>Height of the target</source>
        <translation>目标高度</translation>
    </message>
    <message>
        <source>Visible</source>
        <translation>可见</translation>
    </message>
    <message>
        <source>The outline, a child of the widget that it highlights.</source>
        <translation>轮廓，是所高亮控件的子控件。</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>宽度</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>The animation</source>
        <translation>动画</translation>
    </message>
    <message>
        <source>A file that is not there</source>
        <translation>不存在的文件</translation>
    </message>
    <message>
        <source>Border and padding of a sheet surround the picture.</source>
        <translation>样式表的边框和内边距环绕图片。</translation>
    </message>
    <message>
        <source>No colour</source>
        <translation>无颜色</translation>
    </message>
    <message>
        <source>The colour that it reported last</source>
        <translation>它最后报告的颜色</translation>
    </message>
    <message>
        <source>nothing yet</source>
        <translation>尚无</translation>
    </message>
    <message>
        <source>A colour</source>
        <translation>一种颜色</translation>
    </message>
    <message>
        <source>Several colours</source>
        <translation>多种颜色</translation>
    </message>
    <message>
        <source>Picking</source>
        <translation>正在选择</translation>
    </message>
    <message>
        <source>The face is a child of its own; the button says by dynamic properties when it has no colour, or several.</source>
        <translation>表面是单独的子控件；按钮通过动态属性表明没有颜色或有多种颜色。</translation>
    </message>
    <message>
        <source>Click it to pick a colour</source>
        <translation>单击以选择颜色</translation>
    </message>
    <message>
        <source>A frame around one colour button.</source>
        <translation>环绕一个颜色按钮的框架。</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>选择一种颜色</translation>
    </message>
    <message>
        <source>Opacity can be adjusted</source>
        <translation>可调整不透明度</translation>
    </message>
    <message>
        <source>The parts are selected by their names, and the buttons of colours as children of #colorMatrixPanel and #otherColorsQueuePanel; the one for no colour has nullColor. The panel itself writes the background-color of these and of the preview, opaque: a sheet shapes it with background-clip, and lays a background-image over it. The selector is a QDialog with roundedEdges.</source>
        <translation>各部分按名称选择，颜色按钮作为 #colorMatrixPanel 和 #otherColorsQueuePanel 的子控件选择；表示无颜色的按钮有 nullColor。面板自行写入这些按钮和预览的 background-color，且不透明：样式表用 background-clip 调整其形状，并可在其上叠放 background-image。选择器是带 roundedEdges 的 QDialog。</translation>
    </message>
    <message>
        <source>Choose any colour</source>
        <translation>选择任意颜色</translation>
    </message>
    <message>
        <source>What the colour panel opens beside its own colours; internal to the library. The margins and gaps of both frames are the sheet&apos;s.</source>
        <translation>颜色面板在自定义颜色旁打开的部分；属于库的内部。两个框架的边距和间隙由样式表决定。</translation>
    </message>
    <message>
        <source>Drag the marker</source>
        <translation>拖动标记</translation>
    </message>
    <message>
        <source>The square of the free colour selector, and internal to the library. It asks for no room: min-width and min-height give it some.</source>
        <translation>自由颜色选择器的方形区域，属于库的内部。它不要求空间：由 min-width 和 min-height 给出。</translation>
    </message>
    <message>
        <source>Choose a mode</source>
        <translation>选择模式</translation>
    </message>
    <message>
        <source>Mode by its number</source>
        <translation>按编号选择模式</translation>
    </message>
    <message>
        <source>Opacity of the layer</source>
        <translation>图层不透明度</translation>
    </message>
    <message>
        <source>As OvComboBox in the look of the design system, or alone by its class name; its list is #tesselComboBoxView.</source>
        <translation>如同采用设计系统外观的 OvComboBox，或单独按其类名；其列表为 #tesselComboBoxView。</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Ripple delete</source>
        <translation>波纹删除</translation>
    </message>
    <message>
        <source>Trim</source>
        <translation>修剪</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Deletes the selected clip and closes the gap: everything behind it moves up, on &lt;b&gt;all&lt;/b&gt; tracks, so that sound and picture stay together.</source>
        <translation>删除所选剪辑并闭合间隙：其后的所有内容在&lt;b&gt;所有&lt;/b&gt;轨道上前移，使声音和画面保持同步。</translation>
    </message>
    <message>
        <source>More about editing</source>
        <translation>进一步了解剪辑</translation>
    </message>
    <message>
        <source>Drag the end of a clip to show less or more of it. Nothing is lost.</source>
        <translation>拖动剪辑末端可显示更多或更少内容。不会丢失任何内容。</translation>
    </message>
    <message>
        <source>More about trimming</source>
        <translation>进一步了解修剪</translation>
    </message>
    <message>
        <source>Texts are measured for the width that the sheet gives the guide. Links have the colour of their label, unless their markup says another.</source>
        <translation>文本按样式表给予指引的宽度测量。链接采用其标签的颜色，除非其标记另有指定。</translation>
    </message>
    <message>
        <source>With an animated picture</source>
        <translation>带动画图片</translation>
    </message>
    <message>
        <source>A title alone</source>
        <translation>仅有标题</translation>
    </message>
    <message>
        <source>Nothing more to say</source>
        <translation>没有更多内容</translation>
    </message>
    <message>
        <source>Without an info</source>
        <translation>无信息</translation>
    </message>
    <message>
        <source>Info</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>A tool button. Its pop-up is a PointingWidget named pointingWidget, with a GuideWidget named guideWidget in it; both are below the button for a sheet.</source>
        <translation>工具按钮。其弹出窗口是名为 pointingWidget 的 PointingWidget，其中有名为 guideWidget 的 GuideWidget；对样式表而言两者都在按钮之下。</translation>
    </message>
    <message>
        <source>Trim a clip</source>
        <translation>修剪剪辑</translation>
    </message>
    <message>
        <source>Drag its end. The picture shows how; nothing is lost.</source>
        <translation>拖动其末端。图片演示方法；不会丢失任何内容。</translation>
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
        <source>Start the tour</source>
        <translation>启动导览</translation>
    </message>
    <message>
        <source>Find a component</source>
        <translation>查找组件</translation>
    </message>
    <message>
        <source>Type a few letters of a class, a title or a keyword.</source>
        <translation>输入类、标题或关键词的几个字母。</translation>
    </message>
    <message>
        <source>Try another style</source>
        <translation>试试其他样式</translation>
    </message>
    <message>
        <source>Dark, light, high contrast, none at all, or a sheet of your own that reloads when you save it.</source>
        <translation>深色、浅色、高对比度、无样式，或保存时自动重新加载的自有样式表。</translation>
    </message>
    <message>
        <source>Change it while it runs</source>
        <translation>在运行中更改</translation>
    </message>
    <message>
        <source>The controls act on the enabled twin and the disabled one at once.</source>
        <translation>控件同时作用于启用和禁用的一对。</translation>
    </message>
    <message>
        <source>See what it says</source>
        <translation>查看它的报告</translation>
    </message>
    <message>
        <source>Every signal of the component, newest last.</source>
        <translation>组件的每个信号，最新的在最后。</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>Close button</source>
        <translation>关闭按钮</translation>
    </message>
    <message>
        <source>Secondary button</source>
        <translation>次要按钮</translation>
    </message>
    <message>
        <source>A PointingWidget; its bubble is painted from that one&apos;s properties.</source>
        <translation>一个 PointingWidget；其气泡按该类的属性绘制。</translation>
    </message>
    <message>
        <source>Clip %1</source>
        <translation>剪辑 %1</translation>
    </message>
    <message>
        <source>with sound</source>
        <translation>带声音</translation>
    </message>
    <message>
        <source>Part of a clip&apos;s name</source>
        <translation>剪辑名称的一部分</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>清除搜索</translation>
    </message>
    <message>
        <source>Search clips</source>
        <translation>搜索剪辑</translation>
    </message>
    <message>
        <source>Beach, morning</source>
        <translation>海滩，清晨</translation>
    </message>
    <message>
        <source>Beach, evening</source>
        <translation>海滩，傍晚</translation>
    </message>
    <message>
        <source>Harbour</source>
        <translation>港口</translation>
    </message>
    <message>
        <source>Interview</source>
        <translation>采访</translation>
    </message>
    <message>
        <source>Interview, second camera</source>
        <translation>采访，第二机位</translation>
    </message>
    <message>
        <source>Nobody would find this folder again: %1</source>
        <translation>没有人能再找到此文件夹：%1</translation>
    </message>
    <message>
        <source>Upside down</source>
        <translation>上下颠倒</translation>
    </message>
    <message>
        <source>Colours and sizes are those of a hidden child, selected by its class name and, where they differ for a disabled plane, with [enabled=&quot;false&quot;]. The sheet gives the plane its size.</source>
        <translation>颜色和尺寸取自隐藏的子对象，按其类名选择；禁用的平面若有不同，则加 [enabled=&quot;false&quot;]。平面的大小由样式表决定。</translation>
    </message>
    <message>
        <source>Frames around a point plane and two labelled spin boxes. The labels are empty: the sheet may give them a text, with qproperty-text, or a picture.</source>
        <translation>环绕点平面和两个带标签数字框的框架。标签为空：样式表可用 qproperty-text 给它们文字或图片。</translation>
    </message>
    <message>
        <source>Full HD, 1920 × 1080, 25 frames</source>
        <translation>全高清，1920 × 1080，25 帧</translation>
    </message>
    <message>
        <source>Ultra HD, 3840 × 2160, 60 frames</source>
        <translation>超高清，3840 × 2160，60 帧</translation>
    </message>
    <message>
        <source>Square</source>
        <translation>方形</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>与源相同</translation>
    </message>
    <message>
        <source>With room</source>
        <translation>空间充足</translation>
    </message>
    <message>
        <source>In a narrow panel</source>
        <translation>在窄面板中</translation>
    </message>
    <message>
        <source>Width of the narrow one</source>
        <translation>窄组合框的宽度</translation>
    </message>
    <message>
        <source>As QComboBox, with its sub-controls and its view, or alone by its class name; the pop-up&apos;s state is a dynamic property.</source>
        <translation>如同 QComboBox，带其子控件和视图，或单独按其类名；弹出列表的状态是动态属性。</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>正片叠底</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>滤色</translation>
    </message>
    <message>
        <source>As it was</source>
        <translation>原样</translation>
    </message>
    <message>
        <source>Converted</source>
        <translation>已转换</translation>
    </message>
    <message>
        <source>Convert the first one too</source>
        <translation>也转换第一个</translation>
    </message>
    <message>
        <source>A combo box with the property; the view of its list has the object name tesselComboBoxView.</source>
        <translation>带该属性的组合框；其列表视图的对象名为 tesselComboBoxView。</translation>
    </message>
    <message>
        <source>A text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Text to edit</source>
        <translation>可编辑的文本</translation>
    </message>
    <message>
        <source>A placeholder</source>
        <translation>占位文字示例</translation>
    </message>
    <message>
        <source>Name of the clip</source>
        <translation>剪辑名称</translation>
    </message>
    <message>
        <source>Read only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Text to copy</source>
        <translation>可复制的文本</translation>
    </message>
    <message>
        <source>Selected as QLineEdit or, alone, as Orvane--Tessel--TesselLineEdit; its menu as QMenu#tesselContextMenu.</source>
        <translation>按 QLineEdit 选择，或单独按 Orvane--Tessel--TesselLineEdit；其菜单按 QMenu#tesselContextMenu。</translation>
    </message>
    <message>
        <source>By itself</source>
        <translation>单独使用</translation>
    </message>
    <message>
        <source>Above a list that it filters</source>
        <translation>在它所筛选的列表上方</translation>
    </message>
    <message>
        <source>Placeholder</source>
        <translation>占位文字</translation>
    </message>
    <message>
        <source>A frame around an icon, a line edit and a button that clears it. &quot;focusHint&quot; is set from the first time that the line edit gets the keyboard.</source>
        <translation>环绕图标、行编辑框和清除按钮的框架。自行编辑框首次获得键盘焦点起设置“focusHint”。</translation>
    </message>
    <message>
        <source>A bin of clips</source>
        <translation>剪辑素材箱</translation>
    </message>
    <message>
        <source>Loading is finished</source>
        <translation>加载已完成</translation>
    </message>
    <message>
        <source>The model</source>
        <translation>模型</translation>
    </message>
    <message>
        <source>Add clips: %1</source>
        <translation>添加剪辑：%1</translation>
    </message>
    <message>
        <source>Remove all clips</source>
        <translation>移除所有剪辑</translation>
    </message>
    <message>
        <source>As QListView: it has no class of its own for a sheet. Its minimum height is its own, whatever the sheet says.</source>
        <translation>如同 QListView：在样式表中没有自己的类。其最小高度由自身决定，不受样式表影响。</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Back to the home folder</source>
        <translation>恢复主文件夹</translation>
    </message>
    <message>
        <source>With a default folder and space on its disk</source>
        <translation>带默认文件夹及其磁盘空间</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>主文件夹</translation>
    </message>
    <message>
        <source>A relative path, with its error below</source>
        <translation>相对路径，错误显示在下方</translation>
    </message>
    <message>
        <source>Check the upper field</source>
        <translation>检查上方字段</translation>
    </message>
    <message>
        <source>upper</source>
        <translation>上方</translation>
    </message>
    <message>
        <source>Check the lower field</source>
        <translation>检查下方字段</translation>
    </message>
    <message>
        <source>lower</source>
        <translation>下方</translation>
    </message>
    <message>
        <source>The upper field&apos;s error</source>
        <translation>上方字段的错误</translation>
    </message>
    <message>
        <source>nowhere</source>
        <translation>不显示</translation>
    </message>
    <message>
        <source>tool tip</source>
        <translation>工具提示</translation>
    </message>
    <message>
        <source>label</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Refuse hidden folders instead</source>
        <translation>改为拒绝隐藏文件夹</translation>
    </message>
    <message>
        <source>The upper field</source>
        <translation>上方字段</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Default path&apos;s text</source>
        <translation>默认路径的文字</translation>
    </message>
    <message>
        <source>Required megabytes</source>
        <translation>所需兆字节</translation>
    </message>
    <message>
        <source>A frame around a line edit and its buttons, which carries the border, the hint &quot;error&quot; and, from the first time that the line edit gets the keyboard, &quot;focusHint&quot;; figures above it and a message below it.</source>
        <translation>环绕行编辑框及其按钮的框架，带有边框、“error”提示，以及自行编辑框首次获得键盘焦点起的“focusHint”；上方为数字，下方为消息。</translation>
    </message>
    <message>
        <source>Search parameters</source>
        <translation>搜索参数</translation>
    </message>
    <message>
        <source>A frame controls its own layout</source>
        <translation>框架控制自己的布局</translation>
    </message>
    <message>
        <source>A group box with an installed controller</source>
        <translation>安装了控制器的分组框</translation>
    </message>
    <message>
        <source>The base of composite components; a sheet sets the metrics of its layout through its properties.</source>
        <translation>复合组件的基类；样式表通过其属性设置布局的尺寸。</translation>
    </message>
    <message>
        <source>Any widget with an installed controller: select the controller by its class name below the widget.</source>
        <translation>任何安装了控制器的控件：在控件之下按类名选择控制器。</translation>
    </message>
    <message>
        <source>autoFill() and a stretch behind</source>
        <translation>autoFill() 及其后的伸缩</translation>
    </message>
    <message>
        <source>addItems() with a spacer</source>
        <translation>带间隔的 addItems()</translation>
    </message>
    <message>
        <source>A grid: one cell spans two, one is aligned right</source>
        <translation>网格：一个单元格跨两格，一个右对齐</translation>
    </message>
    <message>
        <source>A column</source>
        <translation>一列</translation>
    </message>
    <message>
        <source>The spacer behind item 1</source>
        <translation>第 1 项后的间隔</translation>
    </message>
    <message>
        <source>Policy</source>
        <translation>策略</translation>
    </message>
    <message>
        <source>Stretch</source>
        <translation>伸缩</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>固定</translation>
    </message>
    <message>
        <source>Factor or pixels</source>
        <translation>系数或像素</translation>
    </message>
    <message>
        <source>The frame around</source>
        <translation>外围框架</translation>
    </message>
    <message>
        <source>A button</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>An edit</source>
        <translation>编辑框</translation>
    </message>
    <message>
        <source>A slider</source>
        <translation>滑块</translation>
    </message>
    <message>
        <source>(none)</source>
        <translation>（无）</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>提示</translation>
    </message>
    <message>
        <source>Member name</source>
        <translation>成员名称</translation>
    </message>
    <message>
        <source>Choose a variant below</source>
        <translation>请在下方选择变体</translation>
    </message>
    <message>
        <source>Variant of the edit</source>
        <translation>编辑框的变体</translation>
    </message>
    <message>
        <source>Any text</source>
        <translation>任意文本</translation>
    </message>
    <message>
        <source>Any plain control: ColorHint and Util::applyStyleHint() give it one of the shared variants.</source>
        <translation>任何普通控件：ColorHint 和 Util::applyStyleHint() 赋予它一种共享变体。</translation>
    </message>
    <message>
        <source>A dial whose hand is styled</source>
        <translation>指针带样式的表盘</translation>
    </message>
    <message>
        <source>An example: the provider is selected by its class name below the widget that it serves.</source>
        <translation>示例：提供者在其所服务的控件之下按类名选择。</translation>
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
        <translation>值</translation>
    </message>
    <message>
        <source>A frame around a slider and a spin box without arrows.</source>
        <translation>环绕滑块和无箭头数字框的框架。</translation>
    </message>
    <message>
        <source>Two decimals</source>
        <translation>两位小数</translation>
    </message>
    <message>
        <source>Six decimals</source>
        <translation>六位小数</translation>
    </message>
    <message>
        <source>A number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>With a unit</source>
        <translation>带单位</translation>
    </message>
    <message>
        <source>As QSpinBox, with its sub-controls, or alone by its class name.</source>
        <translation>如同 QSpinBox，带其子控件，或单独按其类名。</translation>
    </message>
    <message>
        <source>The language&apos;s decimal mark</source>
        <translation>语言的小数点</translation>
    </message>
    <message>
        <source>Point and comma</source>
        <translation>句点和逗号</translation>
    </message>
    <message>
        <source>As QDoubleSpinBox, with its sub-controls, or alone by its class name.</source>
        <translation>如同 QDoubleSpinBox，带其子控件，或单独按其类名。</translation>
    </message>
    <message>
        <source>As QSlider, with ::groove, ::handle, ::add-page and ::sub-page, or alone by its class name.</source>
        <translation>如同 QSlider，带 ::groove、::handle、::add-page 和 ::sub-page，或单独按其类名。</translation>
    </message>
    <message>
        <source>As OvCustomSlider and QSlider, or alone by its class name.</source>
        <translation>如同 OvCustomSlider 和 QSlider，或单独按其类名。</translation>
    </message>
    <message>
        <source>As OvCustomSlider, with ::groove, ::handle, ::add-page and ::sub-page, or alone by its class name.</source>
        <translation>如同 OvCustomSlider，带 ::groove、::handle、::add-page 和 ::sub-page，或单独按其类名。</translation>
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
        <translation>拾取的颜色</translation>
    </message>
    <message>
        <source>Pick a colour from the screen</source>
        <translation>从屏幕拾取颜色</translation>
    </message>
    <message>
        <source>What it picked, the latest first</source>
        <translation>拾取记录，最新的在前</translation>
    </message>
    <message>
        <source>The loupe by itself</source>
        <translation>单独的放大镜</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Anywhere</source>
        <translation>任意位置</translation>
    </message>
    <message>
        <source>In a corner of the desktop</source>
        <translation>桌面的一角</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>The loupe of the pipette, which carries the property roundedEdges. Its border is painted over the picture; its background must be transparent. The windows that cover the screens meanwhile are of the class PipetteScreenView: its cursorPixmap, cursorSize and cursorHotSpot are the cursor of the pick.</source>
        <translation>取色器的放大镜，带有 roundedEdges 属性。其边框绘制在图片之上；背景必须透明。其间覆盖屏幕的窗口属于 PipetteScreenView 类：其 cursorPixmap、cursorSize 和 cursorHotSpot 是拾取光标。</translation>
    </message>
    <message>
        <source>A button that shows its colour</source>
        <translation>显示自身颜色的按钮</translation>
    </message>
    <message>
        <source>Before its first pick</source>
        <translation>首次拾取之前</translation>
    </message>
    <message>
        <source>Pick a colour from the film</source>
        <translation>从影片拾取颜色</translation>
    </message>
    <message>
        <source>A colour button with this picker</source>
        <translation>带此选择器的颜色按钮</translation>
    </message>
    <message>
        <source>Target and cursor</source>
        <translation>目标和光标</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>目标</translation>
    </message>
    <message>
        <source>The film</source>
        <translation>影片</translation>
    </message>
    <message>
        <source>The whole page</source>
        <translation>整个页面</translation>
    </message>
    <message>
        <source>Picking cursor</source>
        <translation>拾取光标</translation>
    </message>
    <message>
        <source>Cross</source>
        <translation>十字</translation>
    </message>
    <message>
        <source>Pointing hand</source>
        <translation>指向手形</translation>
    </message>
    <message>
        <source>Question mark</source>
        <translation>问号</translation>
    </message>
    <message>
        <source>The film runs</source>
        <translation>播放影片</translation>
    </message>
    <message>
        <source>Its background is its colour, written into its own sheet; size and border are the application&apos;s.</source>
        <translation>其背景即其颜色，写入自己的样式表；大小和边框由应用程序的样式表决定。</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>The scene&apos;s source</source>
        <translation>场景的源</translation>
    </message>
    <message>
        <source>Result of exec()</source>
        <translation>exec() 的结果</translation>
    </message>
    <message>
        <source>%1 cannot be written</source>
        <translation>无法写入 %1</translation>
    </message>
    <message>
        <source>Values of the form</source>
        <translation>表单的值</translation>
    </message>
    <message>
        <source>Errors in the scene</source>
        <translation>场景中的错误</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>场景</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>确认</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>表单</translation>
    </message>
    <message>
        <source>One that fails to load</source>
        <translation>无法加载的场景</translation>
    </message>
    <message>
        <source>Centred on this page</source>
        <translation>在此页居中</translation>
    </message>
    <message>
        <source>Open a new dialog</source>
        <translation>打开新对话框</translation>
    </message>
    <message>
        <source>Open the last dialog again</source>
        <translation>再次打开上一个对话框</translation>
    </message>
    <message>
        <source>Original source</source>
        <translation>原始源</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>no</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Asked for</source>
        <translation>请求值</translation>
    </message>
    <message>
        <source>Bytes</source>
        <translation>字节</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>小数位</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Bytes in a kilobyte</source>
        <translation>每千字节的字节数</translation>
    </message>
    <message>
        <source>Root folder</source>
        <translation>根文件夹</translation>
    </message>
    <message>
        <source>A file in the place of a folder</source>
        <translation>占用文件夹位置的文件</translation>
    </message>
    <message>
        <source>Empty path</source>
        <translation>空路径</translation>
    </message>
    <message>
        <source>Own colours</source>
        <translation>自定义颜色</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Read again</source>
        <translation>重新读取</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>请求</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>A call is pending</source>
        <translation>有待处理的调用</translation>
    </message>
    <message>
        <source>Delay in milliseconds</source>
        <translation>延迟（毫秒）</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>One request</source>
        <translation>一个请求</translation>
    </message>
    <message>
        <source>A burst of %1 requests</source>
        <translation>连续 %1 个请求</translation>
    </message>
    <message>
        <source>Your title</source>
        <translation>您的标题</translation>
    </message>
    <message>
        <source>A title of your own</source>
        <translation>自定标题</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>granted</source>
        <translation>已授予</translation>
    </message>
    <message>
        <source>denied</source>
        <translation>已拒绝</translation>
    </message>
    <message>
        <source>not available on this platform</source>
        <translation>在此平台上不可用</translation>
    </message>
    <message>
        <source>Platform</source>
        <translation>平台</translation>
    </message>
    <message>
        <source>Request %1</source>
        <translation>请求%1</translation>
    </message>
    <message>
        <source>Take the view out and put it back</source>
        <translation>取出视图并放回</translation>
    </message>
    <message>
        <source>The view</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>no widget</source>
        <translation>无控件</translation>
    </message>
    <message>
        <source>Keyboard focus</source>
        <translation>键盘焦点</translation>
    </message>
    <message>
        <source>Apply the workaround</source>
        <translation>应用变通方法</translation>
    </message>
    <message>
        <source>Open the dialog</source>
        <translation>打开对话框</translation>
    </message>
    <message>
        <source>Writes a number of bytes as users read it, in the current language&apos;s units and digits.</source>
        <translation>以用户的阅读习惯书写字节数，使用当前语言的单位和数字。</translation>
    </message>
    <message>
        <source>Headings are bold where both the language and the title are written in a script that has a tradition of bold type, and plain where bold would hurt legibility. Markup in a title is shown as text.</source>
        <translation>当语言和标题的文字都有粗体传统时，标题为粗体；粗体有损可读性时则为常规。标题中的标记按文本显示。</translation>
    </message>
    <message>
        <source>What an editor asks about a path that a user typed: whether it could be a folder, where the nearest one is, and what the program may do there.</source>
        <translation>编辑器对用户输入的路径的疑问：它能否成为文件夹，最近的文件夹在哪里，程序在那里可以做什么。</translation>
    </message>
    <message>
        <source>Whether the system lets the program read the screen and the input of other programs, asked without troubling the user.</source>
        <translation>系统是否允许程序读取屏幕和其他程序的输入，查询时不打扰用户。</translation>
    </message>
    <message>
        <source>The user&apos;s own colours outlive the program, also when it is killed right after the write. They are kept under the host&apos;s organisation and application name, or in a store that the host hands over. A colour is added at the front, eight are kept, and neither a colour of the fixed palette nor one that is there already is taken.</source>
        <translation>自定义颜色在程序结束后仍保留，即使程序在写入后立即被终止。它们保存在宿主的组织名和应用名之下，或宿主提供的存储中。新颜色加在最前，保留八种；固定调色板中的颜色和已有的颜色不会加入。</translation>
    </message>
    <message>
        <source>Merges a burst of requests into one deferred call. Later requests do not put the call off, so a steady stream of them still gets its calls.</source>
        <translation>将一连串请求合并为一次延迟调用。后续请求不会推迟调用，因此持续的请求流仍能得到调用。</translation>
    </message>
    <message>
        <source>Qt forgets the focus of a view whose host is taken out of a window and put back. With the workaround the keyboard goes to the view; without it, to whatever comes first. A line edit stands for the view here: the workaround works for every kind.</source>
        <translation>视图的宿主从窗口取出再放回时，Qt 会忘记其焦点。使用变通方法时键盘焦点回到视图；否则落到最先遇到的控件。这里用行编辑框代表视图：变通方法对各种视图都有效。</translation>
    </message>
    <message>
        <source>One edit, one step</source>
        <translation>一次编辑，一个步骤</translation>
    </message>
    <message>
        <source>A session tells what a user does to a field as one story, from the first change to the end of the drag, the text or the pick. Here each becomes one step of undo. Escape takes it back.</source>
        <translation>会话把用户对字段的操作作为一个整体讲述，从首次更改到拖动、输入或拾取结束。这里每个会话成为一个撤销步骤。按 Esc 可取消。</translation>
    </message>
    <message>
        <source>undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>several values</source>
        <translation>多个值</translation>
    </message>
    <message>
        <source>typing</source>
        <translation>输入文字</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>Drag it, hold an arrow key, type, turn the wheel</source>
        <translation>拖动、按住方向键、输入、转动滚轮</translation>
    </message>
    <message>
        <source>Drag the point</source>
        <translation>拖动该点</translation>
    </message>
    <message>
        <source>Try colours, then press Escape or Enter</source>
        <translation>试用颜色，然后按 Esc 或 Enter</translation>
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
        <source>Several values</source>
        <translation>多个值</translation>
    </message>
    <message>
        <source>A field that stands for several values has multiValue, and a label #multiValueCover covers each of its line edits.</source>
        <translation>代表多个值的字段有 multiValue，并由标签 #multiValueCover 遮盖其每个行编辑框。</translation>
    </message>
    <message>
        <source>Title cards</source>
        <translation>字幕卡</translation>
    </message>
    <message>
        <source>An application in miniature, to be read in examples/titlecard: an inspector of several cards, undo and redo of everything, presets, a tour, a QML dialog, and pictures of the canvas.</source>
        <translation>一个微型应用程序，源码见 examples/titlecard：多张卡片的检查器、全部操作的撤销和重做、预设、导览、QML 对话框以及画布图片。</translation>
    </message>
    <message>
        <source>application</source>
        <translation>应用程序</translation>
    </message>
    <message>
        <source>export</source>
        <translation>导出</translation>
    </message>
    <message>
        <source>First light</source>
        <translation>晨曦</translation>
    </message>
    <message>
        <source>A film</source>
        <translation>一部影片</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>The languages that the library has its texts in. One call loads one of them, here by the switch of the gallery, and every component changes at once.</source>
        <translation>库的文本所提供的语言。一次调用即加载其中一种，这里由展示程序的开关完成，所有组件立即切换。</translation>
    </message>
</context>
<context>
    <name>ParameterPanel</name>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Part of a parameter&apos;s name</source>
        <translation>参数名称的一部分</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>清除搜索</translation>
    </message>
    <message>
        <source>Search parameters</source>
        <translation>搜索参数</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Blending</source>
        <translation>混合</translation>
    </message>
    <message>
        <source>Tint</source>
        <translation>色调</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Back to the home folder</source>
        <translation>恢复主文件夹</translation>
    </message>
    <message>
        <source>Home folder</source>
        <translation>主文件夹</translation>
    </message>
    <message>
        <source>Proxies</source>
        <translation>代理</translation>
    </message>
    <message>
        <source>Stabilise</source>
        <translation>稳定</translation>
    </message>
    <message>
        <source>Sharpen</source>
        <translation>锐化</translation>
    </message>
    <message>
        <source>Film grain</source>
        <translation>胶片颗粒</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>效果</translation>
    </message>
</context>
<context>
    <name>PickerChoice</name>
    <message>
        <source>Picker</source>
        <translation>选择器</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Colour panel</source>
        <translation>颜色面板</translation>
    </message>
    <message>
        <source>Qt&apos;s colour dialog</source>
        <translation>Qt 的颜色对话框</translation>
    </message>
    <message>
        <source>Panel: no colour allowed</source>
        <translation>面板：允许无颜色</translation>
    </message>
    <message>
        <source>Panel: with opacity</source>
        <translation>面板：带不透明度</translation>
    </message>
    <message>
        <source>Panel: with own colours</source>
        <translation>面板：带自定义颜色</translation>
    </message>
</context>
<context>
    <name>PropertyPanel</name>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
</context>
<context>
    <name>SheetText</name>
    <message>
        <source>there is no property “%1”</source>
        <translation>没有属性“%1”</translation>
    </message>
    <message>
        <source>error near “%1”</source>
        <translation>“%1”附近有错误</translation>
    </message>
    <message>
        <source>the rule has no end</source>
        <translation>规则没有结尾</translation>
    </message>
</context>
<context>
    <name>SignalLogView</name>
    <message>
        <source>Signals</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Use the component: its signals appear here.</source>
        <translation>使用该组件：其信号会显示在这里。</translation>
    </message>
</context>
<context>
    <name>SwitchBar</name>
    <message>
        <source>A style sheet of your own that reloads when you save it</source>
        <translation>保存时自动重新加载的自有样式表</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>样式</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Direction</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Restarts the gallery on the same page</source>
        <translation>在同一页重新启动展示程序</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>高对比度</translation>
    </message>
    <message>
        <source>None</source>
        <translation>无</translation>
    </message>
    <message>
        <source>File…</source>
        <translation>文件…</translation>
    </message>
    <message>
        <source>Left to right</source>
        <translation>从左到右</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>从右到左</translation>
    </message>
</context>
<context>
    <name>Walk</name>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>上一步</translation>
    </message>
</context>
<context>
    <name>WidgetFacts</name>
    <message>
        <source>Class</source>
        <translation>类</translation>
    </message>
    <message>
        <source>Base classes</source>
        <translation>基类</translation>
    </message>
    <message>
        <source>Object name</source>
        <translation>对象名</translation>
    </message>
    <message>
        <source>Dynamic properties</source>
        <translation>动态属性</translation>
    </message>
    <message>
        <source>Rules, the strongest first</source>
        <translation>规则，最强的在前</translation>
    </message>
    <message>
        <source>line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>sheet of %1</source>
        <translation>%1 的样式表</translation>
    </message>
    <message>
        <source>the gallery&apos;s own</source>
        <translation>展示程序自己的</translation>
    </message>
    <message>
        <source>Properties that a rule can set</source>
        <translation>规则可以设置的属性</translation>
    </message>
    <message>
        <source>Parents</source>
        <translation>父控件</translation>
    </message>
    <message>
        <source>Children</source>
        <translation>子控件</translation>
    </message>
</context>
<context>
    <name>Workbench</name>
    <message>
        <source>Workbench</source>
        <translation>工作台</translation>
    </message>
    <message>
        <source>Point at a widget</source>
        <translation>指向控件</translation>
    </message>
    <message>
        <source>Click any widget to see what a sheet can know of it (F12); Escape ends it</source>
        <translation>单击任意控件，查看样式表能了解的信息 (F12)；按 Esc 结束</translation>
    </message>
    <message>
        <source>Copy C++</source>
        <translation>复制 C++</translation>
    </message>
    <message>
        <source>Copies the code that builds what the page shows, with its present values</source>
        <translation>复制构建页面所示内容的代码，包含当前值</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Writes the sheet into its file; a built-in sheet has none</source>
        <translation>将样式表写入其文件；内置样式表没有文件</translation>
    </message>
    <message>
        <source>Widget</source>
        <translation>控件</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>样式表</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>Copied.</source>
        <translation>已复制。</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>已保存。</translation>
    </message>
    <message>
        <source>The file cannot be written.</source>
        <translation>无法写入文件。</translation>
    </message>
</context>
</TS>
