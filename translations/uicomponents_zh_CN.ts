<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>AccessibleNames</name>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
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
        <translation>粉红色</translation>
    </message>
    <message>
        <source>red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>橙色</translation>
    </message>
    <message>
        <source>brown</source>
        <translation>棕色</translation>
    </message>
    <message>
        <source>golden yellow</source>
        <translation>金黄色</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>黄色</translation>
    </message>
    <message>
        <source>olive</source>
        <translation>橄榄色</translation>
    </message>
    <message>
        <source>yellow green</source>
        <translation>黄绿色</translation>
    </message>
    <message>
        <source>green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>turquoise</source>
        <translation>青绿色</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>青色</translation>
    </message>
    <message>
        <source>azure</source>
        <translation>天蓝色</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>violet</source>
        <translation>紫色</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>品红色</translation>
    </message>
    <message>
        <source>black</source>
        <translation>黑色</translation>
    </message>
    <message>
        <source>very dark grey</source>
        <translation>极深灰色</translation>
    </message>
    <message>
        <source>dark grey</source>
        <translation>深灰色</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>灰色</translation>
    </message>
    <message>
        <source>light grey</source>
        <translation>浅灰色</translation>
    </message>
    <message>
        <source>very light grey</source>
        <translation>极浅灰色</translation>
    </message>
    <message>
        <source>white</source>
        <translation>白色</translation>
    </message>
    <message>
        <source>very dark %1</source>
        <translation>极深%1</translation>
    </message>
    <message>
        <source>very light %1</source>
        <translation>极浅%1</translation>
    </message>
    <message>
        <source>greyish %1</source>
        <translation>灰调%1</translation>
    </message>
    <message>
        <source>dark %1</source>
        <translation>深%1</translation>
    </message>
    <message>
        <source>light %1</source>
        <translation>浅%1</translation>
    </message>
    <message>
        <source>several colours</source>
        <translation>多种颜色</translation>
    </message>
    <message>
        <source>no colour</source>
        <translation>无颜色</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>%1, %2 %</source>
        <translation>%1，%2%</translation>
    </message>
</context>
<context>
    <name>ColorPickerWidget</name>
    <message>
        <source>Other:</source>
        <translation>其他：</translation>
    </message>
    <message>
        <source>Opacity:</source>
        <translation>不透明度：</translation>
    </message>
    <message>
        <source>Colour value</source>
        <translation>颜色值</translation>
    </message>
    <message>
        <source>Pick a colour from the screen</source>
        <translation>从屏幕拾取颜色</translation>
    </message>
    <message>
        <source>Choose another colour</source>
        <translation>选择其他颜色</translation>
    </message>
    <message>
        <source>Current colour</source>
        <translation>当前颜色</translation>
    </message>
    <message>
        <source>Needs a mouse; without one, type the colour value</source>
        <translation>需要鼠标；没有鼠标时，请输入颜色值</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>调色板</translation>
    </message>
    <message>
        <source>Own colours</source>
        <translation>自定义颜色</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Opacity in percent</source>
        <translation>不透明度百分比</translation>
    </message>
    <message>
        <source>Empty place</source>
        <translation>空位</translation>
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
        <translation>饱和度和亮度</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>饱和度</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
</context>
<context>
    <name>DialogGuideWidget</name>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Animated picture</source>
        <translation>动画图片</translation>
    </message>
</context>
<context>
    <name>EditSessionCover</name>
    <message>
        <source>Several values</source>
        <translation>多个值</translation>
    </message>
</context>
<context>
    <name>FileUtil</name>
    <message>
        <source>No path is given</source>
        <translation>未指定路径</translation>
    </message>
    <message>
        <source>Not a path on a disk: %1</source>
        <translation>不是磁盘上的路径：%1</translation>
    </message>
    <message>
        <source>The path has characters that names on this disk cannot have: %1</source>
        <translation>路径含有此磁盘的名称不允许的字符：%1</translation>
    </message>
    <message>
        <source>The path is too long: %1</source>
        <translation>路径太长：%1</translation>
    </message>
    <message>
        <source>A name in the path is too long: %1</source>
        <translation>路径中的某个名称太长：%1</translation>
    </message>
    <message>
        <source>There is something else in the place of a folder: %1</source>
        <translation>文件夹的位置上是其他内容：%1</translation>
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
        <translation>动画图片</translation>
    </message>
    <message>
        <source>Playing; Space pauses it</source>
        <translation>正在播放；按空格键暂停</translation>
    </message>
    <message>
        <source>Paused; Space plays it</source>
        <translation>已暂停；按空格键播放</translation>
    </message>
</context>
<context>
    <name>Orvane::Tessel::TesselLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>剪切(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>粘贴(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>全选(&amp;A)</translation>
    </message>
</context>
<context>
    <name>PathSelectionWidget</name>
    <message>
        <source>Selected path is not readable</source>
        <translation>所选路径不可读</translation>
    </message>
    <message>
        <source>Selected path is not writable</source>
        <translation>所选路径不可写</translation>
    </message>
    <message>
        <source>Required: %1</source>
        <translation>需要：%1</translation>
    </message>
    <message>
        <source>Available: %1</source>
        <translation>可用：%1</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Back to the default folder</source>
        <translation>恢复默认文件夹</translation>
    </message>
</context>
<context>
    <name>PointSelectorWidget</name>
    <message>
        <source>Position on the x-axis</source>
        <translation>x 轴上的位置</translation>
    </message>
    <message>
        <source>Position on the y-axis</source>
        <translation>y 轴上的位置</translation>
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
        <translation>此桌面没有屏幕取色服务。</translation>
    </message>
    <message>
        <source>This desktop cannot pick colours from the screen for programs.</source>
        <translation>此桌面无法为程序拾取屏幕颜色。</translation>
    </message>
    <message>
        <source>The desktop&apos;s service for colours of the screen does not answer.</source>
        <translation>桌面的屏幕取色服务没有响应。</translation>
    </message>
    <message>
        <source>The desktop&apos;s service for colours of the screen has refused.</source>
        <translation>桌面的屏幕取色服务已拒绝请求。</translation>
    </message>
</context>
<context>
    <name>SearchWidget</name>
    <message>
        <source>Clear the search</source>
        <translation>清除搜索</translation>
    </message>
</context>
<context>
    <name>SliderInputWidget</name>
    <message>
        <source>number</source>
        <translation>数值</translation>
    </message>
</context>
<context>
    <name>WidgetColorPickerButton</name>
    <message>
        <source>Needs a mouse; without one, type the value in a colour panel</source>
        <translation>需要鼠标；没有鼠标时，请在颜色面板中输入数值</translation>
    </message>
</context>
<context>
    <name>blendingModes</name>
    <message>
        <source>Overlay</source>
        <translation>叠加</translation>
    </message>
    <message>
        <source>Lighten</source>
        <translation>变亮</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>ColorDodge</source>
        <translation>颜色减淡</translation>
    </message>
    <message>
        <source>LinearDodge</source>
        <translation>线性减淡</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>滤色</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>差值</translation>
    </message>
    <message>
        <source>Multiply</source>
        <translation>正片叠底</translation>
    </message>
    <message>
        <source>Darken</source>
        <translation>变暗</translation>
    </message>
    <message>
        <source>ColorBurn</source>
        <translation>颜色加深</translation>
    </message>
    <message>
        <source>HardLight</source>
        <translation>强光</translation>
    </message>
    <message>
        <source>SoftLight</source>
        <translation>柔光</translation>
    </message>
    <message>
        <source>Exclusion</source>
        <translation>排除</translation>
    </message>
    <message>
        <source>SourceOver</source>
        <translation>正常</translation>
    </message>
</context>
</TS>
