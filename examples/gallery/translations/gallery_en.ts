<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>ButtonsPage</name>
    <message>
        <source>点击任意按钮，这里会显示它的名称。</source>
        <translation>Click any button; its name is shown here.</translation>
    </message>
    <message>
        <source>刚才点击：%1</source>
        <translation>Last clicked: %1</translation>
    </message>
    <message>
        <source>图标</source>
        <translation>Icon</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>图标与文字</source>
        <translation>Icon and text</translation>
    </message>
    <message>
        <source>图标与图片</source>
        <translation>Icon and picture</translation>
    </message>
    <message>
        <source>图标，可选中</source>
        <translation>Icon, checkable</translation>
    </message>
    <message>
        <source>文字，可选中</source>
        <translation>Text, checkable</translation>
    </message>
    <message>
        <source>图标与文字，可选中</source>
        <translation>Icon and text, checkable</translation>
    </message>
    <message>
        <source>图标与图片，可选中</source>
        <translation>Icon and picture, checkable</translation>
    </message>
    <message>
        <source>生成刀路</source>
        <translation>Toolpath</translation>
    </message>
    <message>
        <source>八种类型</source>
        <translation>Eight types</translation>
    </message>
    <message>
        <source>下面一行可以选中：再次点击取消选中。</source>
        <translation>The lower row is checkable: a second click unchecks.</translation>
    </message>
    <message>
        <source>方料</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>圆料</source>
        <translation>Round bar</translation>
    </message>
    <message>
        <source>模型</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>自适应</source>
        <translation>Adaptive</translation>
    </message>
    <message>
        <source>工具栏</source>
        <translation>Toolbar</translation>
    </message>
    <message>
        <source>竖排的图标与文字，四选一。</source>
        <translation>Icon over text, one of four.</translation>
    </message>
    <message>
        <source>毛坯设置</source>
        <translation>Stock</translation>
    </message>
    <message>
        <source>刀具选择</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>刀路生成</source>
        <translation>Toolpaths</translation>
    </message>
    <message>
        <source>导航栏</source>
        <translation>Navigation</translation>
    </message>
    <message>
        <source>竖列的文字按钮，标出当前步骤。</source>
        <translation>A column of text buttons that marks the current step.</translation>
    </message>
    <message>
        <source>图标在左</source>
        <translation>Icon left</translation>
    </message>
    <message>
        <source>图标在右</source>
        <translation>Icon right</translation>
    </message>
    <message>
        <source>图标在上</source>
        <translation>Icon on top</translation>
    </message>
    <message>
        <source>开始</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>方向与图标位置</source>
        <translation>Orientation and icon position</translation>
    </message>
    <message>
        <source>单色</source>
        <translation>Solid</translation>
    </message>
    <message>
        <source>渐变</source>
        <translation>Gradient</translation>
    </message>
    <message>
        <source>竖直渐变</source>
        <translation>Vertical gradient</translation>
    </message>
    <message>
        <source>图片</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>背景</source>
        <translation>Background</translation>
    </message>
    <message>
        <source>木材</source>
        <translation>Wood</translation>
    </message>
    <message>
        <source>亚克力</source>
        <translation>Acrylic</translation>
    </message>
    <message>
        <source>铜</source>
        <translation>Copper</translation>
    </message>
    <message>
        <source>材料</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>图片背景，选中时打勾。</source>
        <translation>Image background; a tick marks the chosen one.</translation>
    </message>
    <message>
        <source>消息</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>气泡</source>
        <translation>Bubble</translation>
    </message>
    <message>
        <source>状态灯</source>
        <translation>Lamp</translation>
    </message>
    <message>
        <source>新消息</source>
        <translation>New message</translation>
    </message>
    <message>
        <source>气泡与状态灯</source>
        <translation>Bubble and lamp</translation>
    </message>
    <message>
        <source>打开消息后气泡消失。</source>
        <translation>Opening the messages clears the bubble.</translation>
    </message>
    <message>
        <source>不可用</source>
        <translation>Unavailable</translation>
    </message>
    <message>
        <source>等待机床连接</source>
        <translation>Waiting for a machine</translation>
    </message>
    <message>
        <source>禁用</source>
        <translation>Disabled</translation>
    </message>
    <message>
        <source>点击不会发出信号。</source>
        <translation>A click emits no signal.</translation>
    </message>
</context>
<context>
    <name>CombosPage</name>
    <message>
        <source>选择任意一项，这里会显示结果。</source>
        <translation>Choose any entry; the result is shown here.</translation>
    </message>
    <message>
        <source>材料</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>铝合金</source>
        <translation>Aluminium</translation>
    </message>
    <message>
        <source>黄铜</source>
        <translation>Brass</translation>
    </message>
    <message>
        <source>亚克力</source>
        <translation>Acrylic</translation>
    </message>
    <message>
        <source>胡桃木</source>
        <translation>Walnut</translation>
    </message>
    <message>
        <source>刀具</source>
        <translation>Tool</translation>
    </message>
    <message>
        <source>平底刀 %1</source>
        <translation>End mill %1</translation>
    </message>
    <message>
        <source>球头刀 %1</source>
        <translation>Ball end mill %1</translation>
    </message>
    <message>
        <source>钻头 %1</source>
        <translation>Drill %1</translation>
    </message>
    <message>
        <source>雕刻刀 %1</source>
        <translation>Engraver %1</translation>
    </message>
    <message>
        <source>加工方式</source>
        <translation>Strategy</translation>
    </message>
    <message>
        <source>分层粗加工</source>
        <translation>Z-level roughing</translation>
    </message>
    <message>
        <source>等高精加工</source>
        <translation>Contour finishing</translation>
    </message>
    <message>
        <source>平行精加工</source>
        <translation>Parallel finishing</translation>
    </message>
    <message>
        <source>添加刀具</source>
        <translation>Add tool</translation>
    </message>
    <message>
        <source>移除最后一把</source>
        <translation>Remove last</translation>
    </message>
    <message>
        <source>备用刀 %1 号</source>
        <translation>Spare tool %1</translation>
    </message>
    <message>
        <source>加工参数</source>
        <translation>Cutting parameters</translation>
    </message>
    <message>
        <source>深色面板里的下拉框。到第六项时，列表变成可滚动的。</source>
        <translation>Combo boxes on a dark panel. From the sixth entry on, the list scrolls.</translation>
    </message>
    <message>
        <source>%1 把刀具，滚动列表</source>
        <translation>%1 tools, scrolling list</translation>
    </message>
    <message>
        <source>%1 把刀具，普通列表</source>
        <translation>%1 tools, plain list</translation>
    </message>
    <message>
        <source>底座</source>
        <translation>Base</translation>
    </message>
    <message>
        <source>齿轮</source>
        <translation>Gear</translation>
    </message>
    <message>
        <source>面板</source>
        <translation>Panel</translation>
    </message>
    <message>
        <source>零件</source>
        <translation>Part</translation>
    </message>
    <message>
        <source>加工面</source>
        <translation>Side</translation>
    </message>
    <message>
        <source>数量</source>
        <translation>Qty</translation>
    </message>
    <message>
        <source>正面</source>
        <translation>Front</translation>
    </message>
    <message>
        <source>反面</source>
        <translation>Back</translation>
    </message>
    <message>
        <source>双面</source>
        <translation>Both</translation>
    </message>
    <message>
        <source>零件清单</source>
        <translation>Parts list</translation>
    </message>
    <message>
        <source>表格里的浅色下拉框，用法与 QComboBox 相同。</source>
        <translation>Light combo boxes in a table, used like any QComboBox.</translation>
    </message>
    <message>
        <source>手动转速</source>
        <translation>Manual speed</translation>
    </message>
    <message>
        <source>自动转速</source>
        <translation>Automatic speed</translation>
    </message>
    <message>
        <source>恒定线速度</source>
        <translation>Constant surface speed</translation>
    </message>
    <message>
        <source>尚未保存</source>
        <translation>Not saved yet</translation>
    </message>
    <message>
        <source>已保存：%1</source>
        <translation>Saved: %1</translation>
    </message>
    <message>
        <source>主轴</source>
        <translation>Spindle</translation>
    </message>
    <message>
        <source>离开下拉框时才保存。</source>
        <translation>Saved when the focus leaves the box.</translation>
    </message>
    <message>
        <source>机床</source>
        <translation>Machine</translation>
    </message>
    <message>
        <source>开始加工</source>
        <translation>Start machining</translation>
    </message>
    <message>
        <source>回到原点</source>
        <translation>Home axes</translation>
    </message>
    <message>
        <source>断开连接</source>
        <translation>Disconnect</translation>
    </message>
    <message>
        <source>机床操作</source>
        <translation>Machine</translation>
    </message>
    <message>
        <source>菜单</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>带图标、快捷键和分隔线的一层菜单。</source>
        <translation>A single-level menu with icons, shortcuts and a separator.</translation>
    </message>
    <message>
        <source>%1：%2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>FramelessWindowsPage</name>
    <message>
        <source>还没有打开窗口。</source>
        <translation>No window has been opened yet.</translation>
    </message>
    <message>
        <source>刀路仿真</source>
        <translation>Toolpath simulation</translation>
    </message>
    <message>
        <source>主窗口：贴边、最大化、换屏</source>
        <translation>Main window: snaps, maximises</translation>
    </message>
    <message>
        <source>编辑刀具</source>
        <translation>Edit tool</translation>
    </message>
    <message>
        <source>对话框：Esc 不会丢掉输入</source>
        <translation>Dialog: Esc discards nothing</translation>
    </message>
    <message>
        <source>机床坐标</source>
        <translation>Machine position</translation>
    </message>
    <message>
        <source>浮动面板：自己移动和缩放</source>
        <translation>Panel: moves and resizes itself</translation>
    </message>
    <message>
        <source>打开窗口</source>
        <translation>Open a window</translation>
    </message>
    <message>
        <source>标题栏由程序自己画；空白处可拖动，双击最大化，边缘可缩放。</source>
        <translation>The program draws the title bar: drag its free part to move the window, double-click it to maximise, drag the edges to resize.</translation>
    </message>
    <message>
        <source>主窗口。移动、缩放、贴边和最大化都交给系统；边缘深 5 像素。</source>
        <translation>Main window. Moving, resizing, snapping and maximising are left to the system; the edges are 5 pixels deep.</translation>
    </message>
    <message>
        <source>对话框。同样交给系统；Esc 不关闭它，最大化时松开 Esc 还原。</source>
        <translation>Dialog. Left to the system as well; Esc does not close it, but restores it when it is maximised.</translation>
    </message>
    <message>
        <source>各系统完全一致。自己处理鼠标，边缘深 8 像素；它从不改变自己的状态，只向程序提出请求。</source>
        <translation>The same on every system. It handles the mouse itself, the edges are 8 pixels deep; it never changes its own state but asks the program to.</translation>
    </message>
    <message>
        <source>选择哪一种</source>
        <translation>Which one to choose</translation>
    </message>
    <message>
        <source>刀路仿真：窗口已最大化。</source>
        <translation>Toolpath simulation: maximised.</translation>
    </message>
    <message>
        <source>刀路仿真：窗口已还原。</source>
        <translation>Toolpath simulation: restored.</translation>
    </message>
    <message>
        <source>刀路仿真：按住了标题栏。</source>
        <translation>Toolpath simulation: title bar pressed.</translation>
    </message>
    <message>
        <source>刀路仿真已打开。</source>
        <translation>Toolpath simulation opened.</translation>
    </message>
    <message>
        <source>已保存刀具：%1</source>
        <translation>Tool saved: %1</translation>
    </message>
    <message>
        <source>刀具没有改变。</source>
        <translation>The tool has not changed.</translation>
    </message>
    <message>
        <source>正在编辑刀具。</source>
        <translation>Editing a tool.</translation>
    </message>
    <message>
        <source>机床坐标：请求还原。</source>
        <translation>Machine position: restore requested.</translation>
    </message>
    <message>
        <source>机床坐标：双击了标题栏。</source>
        <translation>Machine position: title bar double-clicked.</translation>
    </message>
    <message>
        <source>机床坐标已打开。</source>
        <translation>Machine position opened.</translation>
    </message>
    <message>
        <source>齿轮箱盖</source>
        <translation>Gearbox cover</translation>
    </message>
    <message>
        <source>添加毛坯</source>
        <translation>Add stock</translation>
    </message>
    <message>
        <source>重命名</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>固定大小的弹窗</source>
        <translation>Fixed-size pop-ups</translation>
    </message>
    <message>
        <source>拖动标题区移动；回车确认，Esc 关闭；打开时主窗口不可操作。</source>
        <translation>Drag the title area to move; Return confirms, Esc closes; the main window is blocked meanwhile.</translation>
    </message>
    <message>
        <source>已添加毛坯：%1</source>
        <translation>Stock added: %1</translation>
    </message>
    <message>
        <source>已重命名为：%1</source>
        <translation>Renamed to: %1</translation>
    </message>
</context>
<context>
    <name>GalleryPage</name>
    <message>
        <source>查看源代码</source>
        <translation>Show the source</translation>
    </message>
    <message>
        <source>%1：查看源代码</source>
        <translation>%1: show the source</translation>
    </message>
</context>
<context>
    <name>GalleryRibbon</name>
    <message>
        <source>开始</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>File</translation>
    </message>
    <message>
        <source>新建</source>
        <translation>New</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Save as</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>机床</source>
        <translation>Machine</translation>
    </message>
    <message>
        <source>连接机床</source>
        <translation>Connect machine</translation>
    </message>
    <message>
        <source>发送程序</source>
        <translation>Send program to machine</translation>
    </message>
    <message>
        <source>回原点</source>
        <translation>Home axes</translation>
    </message>
    <message>
        <source>对刀</source>
        <translation>Probe</translation>
    </message>
    <message>
        <source>视图</source>
        <translation>View</translation>
    </message>
    <message>
        <source>选择</source>
        <translation>Select</translation>
    </message>
    <message>
        <source>测量</source>
        <translation>Measure</translation>
    </message>
    <message>
        <source>适合窗口</source>
        <translation>Fit to window</translation>
    </message>
    <message>
        <source>显示网格</source>
        <translation>Show grid</translation>
    </message>
    <message>
        <source>已新建工程。</source>
        <translation>New project created.</translation>
    </message>
    <message>
        <source>底座.cam</source>
        <translation>base.cam</translation>
    </message>
    <message>
        <source>浮雕.cam</source>
        <translation>relief.cam</translation>
    </message>
    <message>
        <source>齿轮箱盖.cam</source>
        <translation>gearbox cover.cam</translation>
    </message>
    <message>
        <source>已打开工程“%1”。</source>
        <translation>Project “%1” opened.</translation>
    </message>
    <message>
        <source>工程已保存。</source>
        <translation>Project saved.</translation>
    </message>
    <message>
        <source>工程已另存为副本。</source>
        <translation>Project saved as a copy.</translation>
    </message>
    <message>
        <source>加工程序已导出。</source>
        <translation>Program exported.</translation>
    </message>
    <message>
        <source>加工程序已发送到机床。</source>
        <translation>Program sent to the machine.</translation>
    </message>
    <message>
        <source>机床正在回原点。</source>
        <translation>The machine is homing.</translation>
    </message>
    <message>
        <source>机床正在对刀。</source>
        <translation>The machine is probing.</translation>
    </message>
    <message>
        <source>视图已适合窗口。</source>
        <translation>View fitted to the window.</translation>
    </message>
    <message>
        <source>网格已切换。</source>
        <translation>Grid toggled.</translation>
    </message>
    <message>
        <source>请先连接机床。</source>
        <translation>Connect a machine first.</translation>
    </message>
    <message>
        <source>模型</source>
        <translation>Model</translation>
    </message>
    <message>
        <source>几何</source>
        <translation>Geometry</translation>
    </message>
    <message>
        <source>导入几何</source>
        <translation>Import geometry</translation>
    </message>
    <message>
        <source>修复网格</source>
        <translation>Repair mesh</translation>
    </message>
    <message>
        <source>简化网格</source>
        <translation>Simplify mesh</translation>
    </message>
    <message>
        <source>毛坯</source>
        <translation>Stock</translation>
    </message>
    <message>
        <source>方料</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>圆料</source>
        <translation>Round bar</translation>
    </message>
    <message>
        <source>模型毛坯</source>
        <translation>Model shape</translation>
    </message>
    <message>
        <source>材料</source>
        <translation>Material</translation>
    </message>
    <message>
        <source>变换</source>
        <translation>Transform</translation>
    </message>
    <message>
        <source>居中对齐</source>
        <translation>Centre model</translation>
    </message>
    <message>
        <source>旋转</source>
        <translation>Rotate</translation>
    </message>
    <message>
        <source>镜像</source>
        <translation>Mirror</translation>
    </message>
    <message>
        <source>缩放</source>
        <translation>Scale</translation>
    </message>
    <message>
        <source>几何已导入：三角面 12 480 个。</source>
        <translation>Geometry imported: 12 480 triangles.</translation>
    </message>
    <message>
        <source>网格已修复。</source>
        <translation>Mesh repaired.</translation>
    </message>
    <message>
        <source>网格已简化一半。</source>
        <translation>Mesh simplified by half.</translation>
    </message>
    <message>
        <source>毛坯：方料。</source>
        <translation>Stock: block.</translation>
    </message>
    <message>
        <source>毛坯：圆料。</source>
        <translation>Stock: round bar.</translation>
    </message>
    <message>
        <source>毛坯：与模型同形。</source>
        <translation>Stock: model shape.</translation>
    </message>
    <message>
        <source>木材</source>
        <translation>Wood</translation>
    </message>
    <message>
        <source>铜</source>
        <translation>Copper</translation>
    </message>
    <message>
        <source>亚克力</source>
        <translation>Acrylic</translation>
    </message>
    <message>
        <source>玉石</source>
        <translation>Jade</translation>
    </message>
    <message>
        <source>材料：%1。</source>
        <translation>Material: %1.</translation>
    </message>
    <message>
        <source>模型已移到毛坯中央。</source>
        <translation>Model centred in the stock.</translation>
    </message>
    <message>
        <source>模型已旋转 90 度。</source>
        <translation>Model rotated by 90 degrees.</translation>
    </message>
    <message>
        <source>模型已镜像。</source>
        <translation>Model mirrored.</translation>
    </message>
    <message>
        <source>模型已放大一倍。</source>
        <translation>Model doubled in size.</translation>
    </message>
    <message>
        <source>加工</source>
        <translation>Machining</translation>
    </message>
    <message>
        <source>策略</source>
        <translation>Strategy</translation>
    </message>
    <message>
        <source>粗加工</source>
        <translation>Rough</translation>
    </message>
    <message>
        <source>半精加工</source>
        <translation>Semi-finish</translation>
    </message>
    <message>
        <source>精加工</source>
        <translation>Finish</translation>
    </message>
    <message>
        <source>螺纹</source>
        <translation>Thread</translation>
    </message>
    <message>
        <source>纹理</source>
        <translation>Texture</translation>
    </message>
    <message>
        <source>刀具</source>
        <translation>Tools</translation>
    </message>
    <message>
        <source>刀具库</source>
        <translation>Tool library</translation>
    </message>
    <message>
        <source>添加刀具</source>
        <translation>Add tool</translation>
    </message>
    <message>
        <source>刀具长度</source>
        <translation>Tool length</translation>
    </message>
    <message>
        <source>刀具补偿</source>
        <translation>Tool offset</translation>
    </message>
    <message>
        <source>刀路</source>
        <translation>Toolpath</translation>
    </message>
    <message>
        <source>生成刀路</source>
        <translation>Generate toolpath</translation>
    </message>
    <message>
        <source>仿真</source>
        <translation>Simulate</translation>
    </message>
    <message>
        <source>碰撞检查</source>
        <translation>Check collisions</translation>
    </message>
    <message>
        <source>刀具库：6 把刀具。</source>
        <translation>Tool library: 6 tools.</translation>
    </message>
    <message>
        <source>已添加一把刀具。</source>
        <translation>Tool added.</translation>
    </message>
    <message>
        <source>刀具长度：42.0 毫米。</source>
        <translation>Tool length: 42.0 mm.</translation>
    </message>
    <message>
        <source>刀具补偿：0.02 毫米。</source>
        <translation>Tool offset: 0.02 mm.</translation>
    </message>
    <message>
        <source>仿真完成，用时 1 小时 12 分。</source>
        <translation>Simulation finished: 1 hour 12 minutes.</translation>
    </message>
    <message>
        <source>没有碰撞。</source>
        <translation>No collisions.</translation>
    </message>
    <message>
        <source>请先生成刀路。</source>
        <translation>Generate the toolpath first.</translation>
    </message>
    <message>
        <source>刀路已生成：3 道工序。</source>
        <translation>Toolpath generated: 3 operations.</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>控件</source>
        <translation>Controls</translation>
    </message>
    <message>
        <source>主题按钮</source>
        <translation>Themed buttons</translation>
    </message>
    <message>
        <source>消息框</source>
        <translation>Message boxes</translation>
    </message>
    <message>
        <source>进度对话框</source>
        <translation>Progress dialog</translation>
    </message>
    <message>
        <source>日志</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>写入备注</source>
        <translation>Add note</translation>
    </message>
    <message>
        <source>日志位置</source>
        <translation>Log location</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>About</translation>
    </message>
    <message>
        <source>提问</source>
        <translation>Ask</translation>
    </message>
    <message>
        <source>备注：夹具已换。</source>
        <translation>Note: fixture changed.</translation>
    </message>
    <message>
        <source>日志文件：%1</source>
        <translation>Log file: %1</translation>
    </message>
    <message>
        <source>毛坯已夹紧吗？</source>
        <translation>Is the stock clamped?</translation>
    </message>
    <message>
        <source>回答：是。</source>
        <translation>Answer: yes.</translation>
    </message>
    <message>
        <source>回答：否。</source>
        <translation>Answer: no.</translation>
    </message>
    <message>
        <source>控件陈列室 %1</source>
        <translation>Gallery of controls %1</translation>
    </message>
    <message>
        <source>当前工具：%1</source>
        <translation>Current tool: %1</translation>
    </message>
    <message>
        <source>没有选中的工具。</source>
        <translation>No tool is selected.</translation>
    </message>
</context>
<context>
    <name>GalleryTitleBar</name>
    <message>
        <source>最小化</source>
        <translation>Minimise</translation>
    </message>
    <message>
        <source>最大化</source>
        <translation>Maximise</translation>
    </message>
    <message>
        <source>向下还原</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>GalleryWindow</name>
    <message>
        <source>控件陈列室</source>
        <translation>Gallery of controls</translation>
    </message>
    <message>
        <source>切换到英文</source>
        <translation>Switch to Chinese</translation>
    </message>
</context>
<context>
    <name>JogPalette</name>
    <message>
        <source>Y 轴正向点动</source>
        <translation>Jog Y+</translation>
    </message>
    <message>
        <source>X 轴负向点动</source>
        <translation>Jog X−</translation>
    </message>
    <message>
        <source>X 轴正向点动</source>
        <translation>Jog X+</translation>
    </message>
    <message>
        <source>Y 轴负向点动</source>
        <translation>Jog Y−</translation>
    </message>
    <message>
        <source>主轴抬起</source>
        <translation>Raise spindle</translation>
    </message>
    <message>
        <source>主轴落下</source>
        <translation>Lower spindle</translation>
    </message>
    <message>
        <source>回到工件零点</source>
        <translation>Go to work zero</translation>
    </message>
</context>
<context>
    <name>LogPane</name>
    <message>
        <source>日志</source>
        <translation>Log</translation>
    </message>
</context>
<context>
    <name>MachineConnector</name>
    <message>
        <source>该地址上的机床序列号是 %1，不是所选的 %2。</source>
        <translation>The machine at this address has serial number %1, not %2 as chosen.</translation>
    </message>
    <message>
        <source>连接失败</source>
        <translation>Connection failed</translation>
    </message>
</context>
<context>
    <name>MachineDiscovery</name>
    <message>
        <source>无法在端口 %1 上监听：%2</source>
        <translation>Cannot listen on port %1: %2</translation>
    </message>
</context>
<context>
    <name>MachinePage</name>
    <message>
        <source>列表中只显示 USB 机床</source>
        <translation>List only USB machines</translation>
    </message>
    <message>
        <source>还没有连接机床。</source>
        <translation>No machine connected yet.</translation>
    </message>
    <message>
        <source>网络连接</source>
        <translation>Network</translation>
    </message>
    <message>
        <source>以太网或 Wi-Fi：从列表选择，或指定 IP</source>
        <translation>Ethernet or Wi-Fi: pick one or enter its IP</translation>
    </message>
    <message>
        <source>标定连接</source>
        <translation>Calibration</translation>
    </message>
    <message>
        <source>USB Type-C：自动配置网卡后连接</source>
        <translation>USB Type-C: sets up the adapter and connects</translation>
    </message>
    <message>
        <source>打开连接面板</source>
        <translation>Open the connection panel</translation>
    </message>
    <message>
        <source>面板打开期间，在本机端口 %1 上接收机床的通告。</source>
        <translation>While the panel is open, this computer listens for machine announcements on port %1.</translation>
    </message>
    <message>
        <source>断开机床</source>
        <translation>Disconnect</translation>
    </message>
    <message>
        <source>当前机床：%1，地址 %2</source>
        <translation>Current machine: %1 at %2</translation>
    </message>
    <message>
        <source>当前机床</source>
        <translation>Current machine</translation>
    </message>
    <message>
        <source>状态栏也会显示当前机床。</source>
        <translation>The status line shows it as well.</translation>
    </message>
    <message>
        <source>以太网</source>
        <translation>Ethernet</translation>
    </message>
    <message>
        <source>优先级最高；机床固定在 192.168.7.2，面板自己完成连接。</source>
        <translation>Highest priority; the machine is always at 192.168.7.2, and the panel connects by itself.</translation>
    </message>
    <message>
        <source>其次；同一台机床同时出现在 Wi-Fi 上时，保留以太网。</source>
        <translation>Second; preferred when the same machine is on Wi-Fi as well.</translation>
    </message>
    <message>
        <source>最后；通告里没有写接口的机床也按 Wi-Fi 处理。</source>
        <translation>Last; a machine that announces no interface counts as Wi-Fi too.</translation>
    </message>
    <message>
        <source>三条路</source>
        <translation>Three ways to connect</translation>
    </message>
    <message>
        <source>一台机床一行，按接口的优先级保留一个地址。</source>
        <translation>One row per machine, with the address of its best interface.</translation>
    </message>
    <message>
        <source>已通过 USB 连接机床 %1，地址 %2</source>
        <translation>Machine %1 at %2 connected over USB</translation>
    </message>
</context>
<context>
    <name>MachineQuery</name>
    <message>
        <source>机床在 5 秒内没有应答。</source>
        <translation>The machine did not answer within 5 seconds.</translation>
    </message>
    <message>
        <source>“%1”不是有效的地址。</source>
        <translation>“%1” is not a valid address.</translation>
    </message>
    <message>
        <source>机床报告错误：%1</source>
        <translation>The machine reports an error: %1</translation>
    </message>
    <message>
        <source>机床没有给出序列号。</source>
        <translation>The machine reported no serial number.</translation>
    </message>
    <message>
        <source>机床的应答无法识别。</source>
        <translation>The machine&apos;s reply was not understood.</translation>
    </message>
    <message>
        <source>机床没有答完就断开了连接。</source>
        <translation>The machine closed the connection before its reply was complete.</translation>
    </message>
    <message>
        <source>该地址上没有机床在等待连接。</source>
        <translation>No machine is waiting for a connection at this address.</translation>
    </message>
    <message>
        <source>网络错误：%1</source>
        <translation>Network error: %1</translation>
    </message>
</context>
<context>
    <name>MachiningView</name>
    <message>
        <source>拖动旋转 · 滚轮缩放 · 双击编辑</source>
        <translation>Drag to rotate · scroll to zoom · double-click to edit</translation>
    </message>
</context>
<context>
    <name>MenusPage</name>
    <message>
        <source>打开一个菜单并选择，这里和日志里会显示所选的命令。</source>
        <translation>Open a menu and choose a command; it is shown here and in the log.</translation>
    </message>
    <message>
        <source>支架.cnc</source>
        <translation>Bracket.cnc</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>File</translation>
    </message>
    <message>
        <source>编辑</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>视图</source>
        <translation>View</translation>
    </message>
    <message>
        <source>刀路</source>
        <translation>Toolpath</translation>
    </message>
    <message>
        <source>机床</source>
        <translation>Machine</translation>
    </message>
    <message>
        <source>断开连接</source>
        <translation>Disconnect</translation>
    </message>
    <message>
        <source>帮助</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>加工程序</source>
        <translation>Machining program</translation>
    </message>
    <message>
        <source>按下打开，再按关闭；打开时移到旁边的按钮即可切换；点击别处关闭。快捷键同样有效。</source>
        <translation>Press to open, press again to close; while one is open, pointing at another button switches to it; a click elsewhere closes. The shortcuts work too.</translation>
    </message>
    <message>
        <source>刚才选择：%1</source>
        <translation>Last chosen: %1</translation>
    </message>
    <message>
        <source>未命名.cnc</source>
        <translation>Untitled.cnc</translation>
    </message>
    <message>
        <source>刚才选择：%1（开）</source>
        <translation>Last chosen: %1 (on)</translation>
    </message>
    <message>
        <source>刚才选择：%1（关）</source>
        <translation>Last chosen: %1 (off)</translation>
    </message>
    <message>
        <source>齿轮箱盖.cnc</source>
        <translation>Gearbox cover.cnc</translation>
    </message>
    <message>
        <source>铭牌.cnc</source>
        <translation>Nameplate.cnc</translation>
    </message>
    <message>
        <source>清除列表</source>
        <translation>Clear list</translation>
    </message>
    <message>
        <source>新建工程</source>
        <translation>New project</translation>
    </message>
    <message>
        <source>打开工程…</source>
        <translation>Open project…</translation>
    </message>
    <message>
        <source>最近打开</source>
        <translation>Recent projects</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>另存为…</source>
        <translation>Save as…</translation>
    </message>
    <message>
        <source>导出 G 代码…</source>
        <translation>Export G-code…</translation>
    </message>
    <message>
        <source>撤销</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>重做</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>剪切</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>复制</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>删除</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>等轴测</source>
        <translation>Isometric</translation>
    </message>
    <message>
        <source>俯视</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>前视</source>
        <translation>Front</translation>
    </message>
    <message>
        <source>左视</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>深色</source>
        <translation>Dark</translation>
    </message>
    <message>
        <source>白色</source>
        <translation>White</translation>
    </message>
    <message>
        <source>网格</source>
        <translation>Grid</translation>
    </message>
    <message>
        <source>坐标轴</source>
        <translation>Axes</translation>
    </message>
    <message>
        <source>视角</source>
        <translation>View from</translation>
    </message>
    <message>
        <source>菜单样式</source>
        <translation>Menu style</translation>
    </message>
    <message>
        <source>粗加工</source>
        <translation>Roughing</translation>
    </message>
    <message>
        <source>半精加工</source>
        <translation>Semi-finishing</translation>
    </message>
    <message>
        <source>精加工</source>
        <translation>Finishing</translation>
    </message>
    <message>
        <source>添加策略</source>
        <translation>Add strategy</translation>
    </message>
    <message>
        <source>计算刀路</source>
        <translation>Calculate toolpath</translation>
    </message>
    <message>
        <source>仿真</source>
        <translation>Simulate</translation>
    </message>
    <message>
        <source>快捷键一览</source>
        <translation>Keyboard shortcuts</translation>
    </message>
    <message>
        <source>关于</source>
        <translation>About</translation>
    </message>
</context>
<context>
    <name>MessageBoxesPage</name>
    <message>
        <source>点击一个例子，这里会显示返回值。</source>
        <translation>Click an example; its return value is shown here.</translation>
    </message>
    <message>
        <source>返回值：%1（%2）</source>
        <translation>Returned: %1 (%2)</translation>
    </message>
    <message>
        <source>告知</source>
        <translation>Inform</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>工程已保存。</source>
        <translation>The project has been saved.</translation>
    </message>
    <message>
        <source>询问</source>
        <translation>Ask</translation>
    </message>
    <message>
        <source>开始加工</source>
        <translation>Start machining</translation>
    </message>
    <message>
        <source>请确认毛坯已夹紧，主轴周围没有杂物。</source>
        <translation>Make sure the stock is clamped and the area around the spindle is clear.</translation>
    </message>
    <message>
        <source>警告</source>
        <translation>Warn</translation>
    </message>
    <message>
        <source>未保存的修改</source>
        <translation>Unsaved changes</translation>
    </message>
    <message>
        <source>关闭前要保存对“支架”的修改吗？</source>
        <translation>Save the changes to “bracket” before closing?</translation>
    </message>
    <message>
        <source>完成</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>加工完成</source>
        <translation>Machining finished</translation>
    </message>
    <message>
        <source>用时 1 小时 24 分，请取下工件。</source>
        <translation>Finished in 1 hour 24 minutes. Please remove the workpiece.</translation>
    </message>
    <message>
        <source>等待</source>
        <translation>Wait</translation>
    </message>
    <message>
        <source>长文本</source>
        <translation>Long text</translation>
    </message>
    <message>
        <source>超过 250 个字符，窗口随文字增高</source>
        <translation>Over 250 characters; the box grows</translation>
    </message>
    <message>
        <source>换刀须知</source>
        <translation>Changing tools</translation>
    </message>
    <message>
        <source>图标</source>
        <translation>Icons</translation>
    </message>
    <message>
        <source>五种图标各用在它自然的场合。</source>
        <translation>Each of the five icons in its natural place.</translation>
    </message>
    <message>
        <source>自定义按钮文字</source>
        <translation>Custom button texts</translation>
    </message>
    <message>
        <source>刀具磨损</source>
        <translation>Tool wear</translation>
    </message>
    <message>
        <source>2 号刀具已使用 40 小时。</source>
        <translation>Tool 2 has been used for 40 hours.</translation>
    </message>
    <message>
        <source>继续使用</source>
        <translation>Keep using</translation>
    </message>
    <message>
        <source>更换刀具</source>
        <translation>Change tool</translation>
    </message>
    <message>
        <source>升级</source>
        <translation>Upgrade</translation>
    </message>
    <message>
        <source>发现新版本</source>
        <translation>New version</translation>
    </message>
    <message>
        <source>新版本已下载完成，可以立即安装。</source>
        <translation>The new version has been downloaded and can be installed now.</translation>
    </message>
    <message>
        <source>两秒后消失</source>
        <translation>Closes after two seconds</translation>
    </message>
    <message>
        <source>刀路已复制到剪贴板。</source>
        <translation>The toolpath has been copied to the clipboard.</translation>
    </message>
    <message>
        <source>必须回答</source>
        <translation>Must be answered</translation>
    </message>
    <message>
        <source>急停已触发</source>
        <translation>Emergency stop</translation>
    </message>
    <message>
        <source>机床是否处于安全状态？</source>
        <translation>Is the machine in a safe state?</translation>
    </message>
    <message>
        <source>不再提醒</source>
        <translation>Do not ask again</translation>
    </message>
    <message>
        <source>回原点</source>
        <translation>Home axes</translation>
    </message>
    <message>
        <source>主轴将移动到机床原点。</source>
        <translation>The spindle will move to machine zero.</translation>
    </message>
    <message>
        <source>，已勾选</source>
        <translation>, checked</translation>
    </message>
    <message>
        <source>，未勾选</source>
        <translation>, unchecked</translation>
    </message>
    <message>
        <source>主窗口居中</source>
        <translation>Centred on the window</translation>
    </message>
    <message>
        <source>扫描数据已导入。</source>
        <translation>The scan has been imported.</translation>
    </message>
    <message>
        <source>打开所在文件夹</source>
        <translation>Open folder</translation>
    </message>
    <message>
        <source>刀路文件已导出。</source>
        <translation>The toolpath file has been exported.</translation>
    </message>
    <message>
        <source>磁盘空间不足</source>
        <translation>Low disk space</translation>
    </message>
    <message>
        <source>磁盘剩余空间不足 2 GB，扫描可能中断。</source>
        <translation>Less than 2 GB of disk space left; the scan may be interrupted.</translation>
    </message>
    <message>
        <source>确认刀具</source>
        <translation>Confirm tools</translation>
    </message>
    <message>
        <source>请确认刀具</source>
        <translation>Please confirm the tools</translation>
    </message>
    <message>
        <source>框上再问</source>
        <translation>Box over a box</translation>
    </message>
    <message>
        <source>后开的框先结束</source>
        <translation>The one opened last closes first</translation>
    </message>
    <message>
        <source>入口</source>
        <translation>Entry points</translation>
    </message>
    <message>
        <source>每个静态函数一个例子。</source>
        <translation>One example for each static function.</translation>
    </message>
    <message>
        <source>正在计算</source>
        <translation>Calculating</translation>
    </message>
    <message>
        <source>正在生成加工预览</source>
        <translation>Generating the machining preview</translation>
    </message>
    <message>
        <source>安装包</source>
        <translation>Package</translation>
    </message>
    <message>
        <source>安装包占用 1.2 GB。</source>
        <translation>The package takes up 1.2 GB.</translation>
    </message>
    <message>
        <source>再次确认</source>
        <translation>Are you sure?</translation>
    </message>
    <message>
        <source>删除后需要重新下载，确定吗？</source>
        <translation>It would have to be downloaded again. Delete it?</translation>
    </message>
    <message>
        <source>1. 先按停止键，等主轴完全停下，再等待两分钟让刀具冷却；刚停下的刀具和夹头会烫手。</source>
        <translation>1. Press stop, wait until the spindle stands still, and let the tool cool for two minutes; tool and collet are hot at first.</translation>
    </message>
    <message>
        <source>2. 打开防护罩，用吸尘器清掉刀具、夹头和刀库上的切屑，不要用压缩空气吹。</source>
        <translation>2. Open the guard and vacuum the chips off tool, collet and magazine. Do not use compressed air.</translation>
    </message>
    <message>
        <source>3. 一手托住刀具，一手用扳手松开夹头，把旧刀具放回刀库里它自己的位置。</source>
        <translation>3. Hold the tool with one hand, loosen the collet with the other, and put the old tool back in its own pocket of the magazine.</translation>
    </message>
    <message>
        <source>4. 擦净新刀具的刀柄，插到夹头底部，再按规定的力矩拧紧；拧得过紧会损坏夹头。</source>
        <translation>4. Wipe the new tool&apos;s shank, insert it fully, and tighten to the specified torque; overtightening damages the collet.</translation>
    </message>
    <message>
        <source>5. 核对刀库编号与刀具列表一致，特别是直径相近的平底刀和球头刀。</source>
        <translation>5. Check that the pocket numbers match the tool list, above all for flat and ball end mills of similar diameter.</translation>
    </message>
    <message>
        <source>6. 关上防护罩，回原点，执行一次对刀；对刀数据超出范围时请重新装夹。</source>
        <translation>6. Close the guard, home the axes and measure the tool; clamp it anew if the result is out of range.</translation>
    </message>
    <message>
        <source>7. 第一次切削时把进给倍率降到一半，确认声音和切屑正常后再恢复。</source>
        <translation>7. Halve the feed for the first cut, and restore it once sound and chips are right.</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>搜索页面或类名</source>
        <translation>Search pages, classes</translation>
    </message>
    <message>
        <source>搜索页面</source>
        <translation>Search pages</translation>
    </message>
    <message>
        <source>搜索页面（%1）</source>
        <translation>Search pages (%1)</translation>
    </message>
    <message>
        <source>清除</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>页面</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>没有找到“%1”。按 Esc 显示全部页面。</source>
        <translation>Nothing found for “%1”. Esc shows all pages.</translation>
    </message>
</context>
<context>
    <name>PageRegistry</name>
    <message>
        <source>下拉框</source>
        <translation>Combo boxes</translation>
    </message>
    <message>
        <source>面板里的深色下拉框，表格里的浅色下拉框，以及一层菜单。</source>
        <translation>Dark combo boxes for panels, light ones for tables, and a single-level menu.</translation>
    </message>
    <message>
        <source>文本</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>编辑器和浏览器，右键菜单与整个程序一致。</source>
        <translation>An editor and a browser whose context menus match the rest of the program.</translation>
    </message>
    <message>
        <source>视图提示</source>
        <translation>Toasts</translation>
    </message>
    <message>
        <source>加工区上方的红色提示：不抢焦点，鼠标可以穿过。</source>
        <translation>Red strips over the work area that take neither the focus nor the mouse.</translation>
    </message>
    <message>
        <source>工具提示与说明</source>
        <translation>Tips and hints</translation>
    </message>
    <message>
        <source>磨砂工具提示，以及停留或点击后出现的说明。</source>
        <translation>Frosted tool tips, and notes that show on hover or on a click.</translation>
    </message>
    <message>
        <source>标记与动画</source>
        <translation>Mark and animation</translation>
    </message>
    <message>
        <source>内部版本的斜纹标记，以及逐帧播放的图片。</source>
        <translation>The slanted watermark of an internal build, and pictures played frame by frame.</translation>
    </message>
    <message>
        <source>主题按钮</source>
        <translation>Themed buttons</translation>
    </message>
    <message>
        <source>八种类型的按钮，三种背景，可选中、可带气泡。</source>
        <translation>Buttons of eight types on three backgrounds, checkable or with a bubble.</translation>
    </message>
    <message>
        <source>参数面板</source>
        <translation>Parameter panel</translation>
    </message>
    <message>
        <source>材料、尺寸、角度、开关与工序：一次加工的准备。</source>
        <translation>Material, sizes, an angle, switches and operations: setting up a job.</translation>
    </message>
    <message>
        <source>菜单栏</source>
        <translation>Menu bar</translation>
    </message>
    <message>
        <source>按钮与面板组成的菜单栏：图标、快捷键、子菜单、勾选项。</source>
        <translation>A menu bar of buttons and panels: icons, shortcuts, submenus, checkable rows.</translation>
    </message>
    <message>
        <source>消息框</source>
        <translation>Message boxes</translation>
    </message>
    <message>
        <source>一次调用即可提问，返回用户按下的按钮。</source>
        <translation>A question in one call, which returns the button that the user pressed.</translation>
    </message>
    <message>
        <source>连接机床</source>
        <translation>Machine connection</translation>
    </message>
    <message>
        <source>通过有线网络、无线网络或 USB Type-C 找到并连接机床。</source>
        <translation>Finds and connects a machine over Ethernet, Wi-Fi or USB Type-C.</translation>
    </message>
    <message>
        <source>进度对话框</source>
        <translation>Progress dialogs</translation>
    </message>
    <message>
        <source>长时间任务的进度：由程序给出，或自行缓慢前进。</source>
        <translation>The progress of a long job, reported by the program or advancing slowly on its own.</translation>
    </message>
    <message>
        <source>无边框窗口</source>
        <translation>Frameless windows</translation>
    </message>
    <message>
        <source>没有系统边框的主窗口和对话框，标题栏由程序自己画。</source>
        <translation>Main windows and dialogs without a system frame; the program draws their title bars.</translation>
    </message>
    <message>
        <source>工具栏与标签页</source>
        <translation>Toolbars and tabs</translation>
    </message>
    <message>
        <source>成组的工具、细工具栏和深色标签页；窗口上方的功能区也由它们组成。</source>
        <translation>Groups of tools, slim toolbars and dark tabs; the ribbon above is made of them too.</translation>
    </message>
    <message>
        <source>刀具与程序</source>
        <translation>Tools and programs</translation>
    </message>
    <message>
        <source>刀库里的刀具：能用的可以选择，直径和长度就地修改；以及等待加工的程序。</source>
        <translation>The tools of the magazine: choose those that fit, edit diameter and length in place; and the programs waiting to be machined.</translation>
    </message>
</context>
<context>
    <name>ParametersPage</name>
    <message>
        <source>选择材料、输入尺寸、切换选项，这里会显示结果。</source>
        <translation>Choose a material, enter a size or switch an option; the result is shown here.</translation>
    </message>
    <message>
        <source>亚克力</source>
        <translation>ACRYLIC</translation>
    </message>
    <message>
        <source>塑料</source>
        <translation>PLASTIC</translation>
    </message>
    <message>
        <source>木材</source>
        <translation>WOOD</translation>
    </message>
    <message>
        <source>铜</source>
        <translation>COPPER</translation>
    </message>
    <message>
        <source>金属</source>
        <translation>METAL</translation>
    </message>
    <message>
        <source>玉石</source>
        <translation>JADE</translation>
    </message>
    <message>
        <source>材料：%1</source>
        <translation>Material: %1</translation>
    </message>
    <message>
        <source>毛坯材料</source>
        <translation>Stock material</translation>
    </message>
    <message>
        <source>加工参数</source>
        <translation>Parameters</translation>
    </message>
    <message>
        <source>自适应毛坯</source>
        <translation>Fit to model</translation>
    </message>
    <message>
        <source>恢复默认值</source>
        <translation>Defaults</translation>
    </message>
    <message>
        <source>毛坯已按模型的尺寸设置。</source>
        <translation>The stock now fits the model.</translation>
    </message>
    <message>
        <source>毛坯已恢复默认尺寸。</source>
        <translation>The stock has its default size again.</translation>
    </message>
    <message>
        <source>方形毛坯</source>
        <translation>Block stock</translation>
    </message>
    <message>
        <source>关闭后毛坯尺寸由模型的外形决定，不能手动输入。</source>
        <translation>When off, the outline of the model sets the size of the stock, and it cannot be entered.</translation>
    </message>
    <message>
        <source>长度（X）</source>
        <translation>Length (X)</translation>
    </message>
    <message>
        <source>宽度（Y）</source>
        <translation>Width (Y)</translation>
    </message>
    <message>
        <source>高度（Z）</source>
        <translation>Height (Z)</translation>
    </message>
    <message>
        <source>旋转角度</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>毛坯尺寸由您输入。</source>
        <translation>You enter the size of the stock.</translation>
    </message>
    <message>
        <source>毛坯尺寸由模型决定。</source>
        <translation>The model sets the size of the stock.</translation>
    </message>
    <message>
        <source>%1：%2 %3</source>
        <translation>%1: %2 %3</translation>
    </message>
    <message>
        <source>转动</source>
        <translation>Turn by</translation>
    </message>
    <message>
        <source>旋转角度：%1°</source>
        <translation>Rotation: %1°</translation>
    </message>
    <message>
        <source>加工前测量高度</source>
        <translation>Probe before the job</translation>
    </message>
    <message>
        <source>主轴下降到对刀块上，测出刀尖的高度。请先放好对刀块。</source>
        <translation>The spindle comes down on the tool setter and measures the height of the tool tip. Put the tool setter in place first.</translation>
    </message>
    <message>
        <source>吸尘</source>
        <translation>Dust collection</translation>
    </message>
    <message>
        <source>加工时自动开启吸尘器；加工石材和金属时请保持开启。</source>
        <translation>Switches the dust collector on for the job; leave it on for stone and metal.</translation>
    </message>
    <message>
        <source>最后雕刻纹理</source>
        <translation>Engrave texture last</translation>
    </message>
    <message>
        <source>%1：开</source>
        <translation>%1: on</translation>
    </message>
    <message>
        <source>%1：关</source>
        <translation>%1: off</translation>
    </message>
    <message>
        <source>加工工序</source>
        <translation>Operations</translation>
    </message>
    <message>
        <source>列表还有内容时，按钮上方出现一条细线。</source>
        <translation>While there is more in the list, a thin line runs above the buttons.</translation>
    </message>
    <message>
        <source>移除</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>生成刀路</source>
        <translation>Generate</translation>
    </message>
    <message>
        <source>还有 %1 道工序</source>
        <translation>Operations left: %1</translation>
    </message>
    <message>
        <source>已为 %1 道工序生成刀路</source>
        <translation>Toolpaths generated, operations: %1</translation>
    </message>
    <message>
        <source>粗加工  平底铣刀 3.175</source>
        <translation>Roughing, flat end mill 3.175</translation>
    </message>
    <message>
        <source>半精加工  球头铣刀 2.0</source>
        <translation>Semi-finishing, ball end mill 2.0</translation>
    </message>
    <message>
        <source>精加工  球头铣刀 1.0</source>
        <translation>Finishing, ball end mill 1.0</translation>
    </message>
    <message>
        <source>钻孔  钻头 2.5</source>
        <translation>Drilling, drill 2.5</translation>
    </message>
    <message>
        <source>倒角  倒角刀 90°</source>
        <translation>Chamfering, chamfer mill 90°</translation>
    </message>
</context>
<context>
    <name>PositionPanel</name>
    <message>
        <source>机床坐标</source>
        <translation>Machine position</translation>
    </message>
</context>
<context>
    <name>ProgressPage</name>
    <message>
        <source>点击一个例子开始。</source>
        <translation>Click an example to start it.</translation>
    </message>
    <message>
        <source>任务完成</source>
        <translation>The job is done</translation>
    </message>
    <message>
        <source>自动前进</source>
        <translation>Advances on its own</translation>
    </message>
    <message>
        <source>CreateAutoWidget：任务不知道进度</source>
        <translation>CreateAutoWidget: for unknown progress</translation>
    </message>
    <message>
        <source>程序给出进度</source>
        <translation>Driven by the program</translation>
    </message>
    <message>
        <source>setValue：每一步报告一次</source>
        <translation>setValue: called at each step</translation>
    </message>
    <message>
        <source>分阶段提示</source>
        <translation>Stages</translation>
    </message>
    <message>
        <source>setStageText：过半后换一句话</source>
        <translation>setStageText: a new text halfway</translation>
    </message>
    <message>
        <source>可以取消</source>
        <translation>Can be cancelled</translation>
    </message>
    <message>
        <source>BindCloseButton：关闭前先询问</source>
        <translation>BindCloseButton: asks before closing</translation>
    </message>
    <message>
        <source>长提示</source>
        <translation>Long text</translation>
    </message>
    <message>
        <source>文字换行，窗口随之增高</source>
        <translation>The text wraps and the dialog grows</translation>
    </message>
    <message>
        <source>例子</source>
        <translation>Examples</translation>
    </message>
    <message>
        <source>对话框打开时其余窗口不可操作，任务结束后自动关闭。</source>
        <translation>A dialog blocks the other windows and closes when its job is done.</translation>
    </message>
    <message>
        <source>正在运行：%1</source>
        <translation>Running: %1</translation>
    </message>
    <message>
        <source>正在分析模型</source>
        <translation>Analysing the model</translation>
    </message>
    <message>
        <source>打开模型</source>
        <translation>Open model</translation>
    </message>
    <message>
        <source>正在导出刀路</source>
        <translation>Exporting toolpaths</translation>
    </message>
    <message>
        <source>导出</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>正在读取点云</source>
        <translation>Reading the point cloud</translation>
    </message>
    <message>
        <source>导入扫描数据</source>
        <translation>Import scan</translation>
    </message>
    <message>
        <source>正在重建表面</source>
        <translation>Reconstructing the surface</translation>
    </message>
    <message>
        <source>正在上传加工文件</source>
        <translation>Uploading the job</translation>
    </message>
    <message>
        <source>上传</source>
        <translation>Upload</translation>
    </message>
    <message>
        <source>确定要取消上传吗？</source>
        <translation>Cancel the upload?</translation>
    </message>
    <message>
        <source>已取消</source>
        <translation>Cancelled</translation>
    </message>
    <message>
        <source>正在把新的固件写入机床。写入期间请不要断开电源，也不要拔下数据线；机床会自行重新启动一次，指示灯变为绿色之后才可以继续操作</source>
        <translation>Writing the new firmware to the machine. Do not switch it off or unplug the cable meanwhile; it restarts once by itself, and can be used again when its light turns green</translation>
    </message>
    <message>
        <source>升级固件</source>
        <translation>Firmware upgrade</translation>
    </message>
    <message>
        <source>支架  粗加工</source>
        <translation>Bracket, roughing</translation>
    </message>
    <message>
        <source>支架  精加工</source>
        <translation>Bracket, finishing</translation>
    </message>
    <message>
        <source>铭牌  雕刻</source>
        <translation>Nameplate, engraving</translation>
    </message>
    <message>
        <source>加工队列</source>
        <translation>Job queue</translation>
    </message>
    <message>
        <source>进度条里的百分比在填充的边缘换色。</source>
        <translation>The percentage changes colour at the edge of the filled part.</translation>
    </message>
</context>
<context>
    <name>RenameBox</name>
    <message>
        <source>重命名</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SimulationWindow</name>
    <message>
        <source>刀路仿真</source>
        <translation>Toolpath simulation</translation>
    </message>
    <message>
        <source>已加工 %1%</source>
        <translation>%1% done</translation>
    </message>
</context>
<context>
    <name>SourceDialog</name>
    <message>
        <source>已复制到剪贴板。</source>
        <translation>Copied to the clipboard.</translation>
    </message>
    <message>
        <source>源代码</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>源代码：%1</source>
        <translation>Source: %1</translation>
    </message>
    <message>
        <source>全部复制</source>
        <translation>Copy all</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>已连接机床 %1，地址 %2</source>
        <translation>Connected to machine %1 at %2</translation>
    </message>
    <message>
        <source>未连接机床</source>
        <translation>No machine connected</translation>
    </message>
</context>
<context>
    <name>StockBox</name>
    <message>
        <source>添加毛坯</source>
        <translation>Add stock</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>方料</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>圆料</source>
        <translation>Round bar</translation>
    </message>
    <message>
        <source>模型</source>
        <translation>Model</translation>
    </message>
</context>
<context>
    <name>TextPage</name>
    <message>
        <source>加工备注</source>
        <translation>Notes</translation>
    </message>
    <message>
        <source>右键菜单：剪切、复制、粘贴、全选。</source>
        <translation>Right-click: cut, copy, paste, select all.</translation>
    </message>
    <message>
        <source>第一面加工前请确认压板没有挡住刀路。
第二面以左下角的销孔定位。
精加工余量 0.2 mm。</source>
        <translation>Before the first side, make sure that no clamp is in the way of the toolpath.
Locate the second side by the pin at the lower left.
Leave 0.2 mm for finishing.</translation>
    </message>
    <message>
        <source>操作手册</source>
        <translation>Manual</translation>
    </message>
    <message>
        <source>只读；选中文字后右键可以复制。</source>
        <translation>Read only; right-click selected text to copy it.</translation>
    </message>
    <message>
        <source>装夹</source>
        <translation>Clamping</translation>
    </message>
    <message>
        <source>把毛坯放在工作台中央，四角用压板压紧。压板要避开刀路。</source>
        <translation>Put the stock in the middle of the table and clamp its four corners. Keep the clamps clear of the toolpath.</translation>
    </message>
    <message>
        <source>对刀</source>
        <translation>Setting the zero</translation>
    </message>
    <message>
        <source>让刀尖轻触毛坯表面，再按下“设为零点”。换刀之后要重新对刀。</source>
        <translation>Let the tip of the tool touch the stock and press &quot;Set zero&quot;. Repeat this after each tool change.</translation>
    </message>
    <message>
        <source>加工</source>
        <translation>Machining</translation>
    </message>
    <message>
        <source>关好防护门，点击“开始加工”。运行中不要打开防护门。</source>
        <translation>Close the door and click &quot;Start machining&quot;. Keep the door closed during the run.</translation>
    </message>
    <message>
        <source>清理</source>
        <translation>Cleaning</translation>
    </message>
    <message>
        <source>加工结束后用吸尘器清理切屑，最后取下工件。</source>
        <translation>When the job is done, vacuum up the chips, then remove the part.</translation>
    </message>
    <message>
        <source>剪贴板是空的。</source>
        <translation>The clipboard is empty.</translation>
    </message>
    <message>
        <source>剪贴板：%1</source>
        <translation>Clipboard: %1</translation>
    </message>
</context>
<context>
    <name>TipsPage</name>
    <message>
        <source>把指针停在按钮上，提示会淡入；离开或 3.5 秒后淡出。</source>
        <translation>Rest the pointer on a button: its tip fades in, and fades out when you leave or after 3.5 seconds.</translation>
    </message>
    <message>
        <source>方料毛坯</source>
        <translation>Block stock</translation>
    </message>
    <message>
        <source>圆料毛坯
适合四轴加工</source>
        <translation>Round bar stock
for 4-axis machining</translation>
    </message>
    <message>
        <source>&lt;b&gt;导入模型&lt;/b&gt;&lt;br&gt;支持 STL、STEP 与 OBJ</source>
        <translation>&lt;b&gt;Import a model&lt;/b&gt;&lt;br&gt;STL, STEP and OBJ</translation>
    </message>
    <message>
        <source>自适应：毛坯随模型的大小改变，四周各留 2 mm 余量</source>
        <translation>Adaptive: the stock follows the size of the model, with an allowance of 2 mm on each side</translation>
    </message>
    <message>
        <source>开始仿真</source>
        <translation>Start simulation</translation>
    </message>
    <message>
        <source>点击：%1</source>
        <translation>Clicked: %1</translation>
    </message>
    <message>
        <source>工具栏</source>
        <translation>Toolbar</translation>
    </message>
    <message>
        <source>一行、两行、富文本和较长的提示。</source>
        <translation>Tips of one line, two lines, rich text and longer text.</translation>
    </message>
    <message>
        <source>左上</source>
        <translation>Top left</translation>
    </message>
    <message>
        <source>上</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>右上</source>
        <translation>Top right</translation>
    </message>
    <message>
        <source>左</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>右</source>
        <translation>Right</translation>
    </message>
    <message>
        <source>左下</source>
        <translation>Bottom left</translation>
    </message>
    <message>
        <source>下</source>
        <translation>Bottom</translation>
    </message>
    <message>
        <source>右下</source>
        <translation>Bottom right</translation>
    </message>
    <message>
        <source>收起</source>
        <translation>Hide</translation>
    </message>
    <message>
        <source>点动面板</source>
        <translation>Jog panel</translation>
    </message>
    <message>
        <source>停靠在屏幕的边角；提示不会伸出屏幕。</source>
        <translation>Docks to the edges and corners of the screen; its tips never leave the screen.</translation>
    </message>
    <message>
        <source>%1的说明</source>
        <translation>What %1 means</translation>
    </message>
    <message>
        <source>主轴转速</source>
        <translation>Spindle speed</translation>
    </message>
    <message>
        <source>转/分</source>
        <translation>rpm</translation>
    </message>
    <message>
        <source>铝合金建议 8000 至 12000 转/分。</source>
        <translation>Recommended for aluminium: 8000 to 12000 rpm.</translation>
    </message>
    <message>
        <source>进给速度</source>
        <translation>Feed rate</translation>
    </message>
    <message>
        <source>毫米/分</source>
        <translation>mm/min</translation>
    </message>
    <message>
        <source>进给过快会折断刀具，过慢会烧伤材料。第一次加工请先用建议值的一半，声音和切屑正常后再逐步提高。</source>
        <translation>Too fast breaks the tool, too slow burns the material. Run the first job at half the recommended rate, and raise it step by step once sound and chips are right.</translation>
    </message>
    <message>
        <source>每层切深</source>
        <translation>Depth of cut</translation>
    </message>
    <message>
        <source>毫米</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>不超过刀具直径的一半。</source>
        <translation>At most half the tool diameter.</translation>
    </message>
    <message>
        <source>刀具寿命</source>
        <translation>Tool life</translation>
    </message>
    <message>
        <source>小时</source>
        <translation>hours</translation>
    </message>
    <message>
        <source>寿命怎样计算</source>
        <translation>How tool life is counted</translation>
    </message>
    <message>
        <source>按主轴带负载的时间累计，空走不计。铝合金按 1 倍，不锈钢按 2.5 倍计入。</source>
        <translation>The time that the spindle works under load; rapid moves do not count. Aluminium counts once, stainless steel two and a half times.</translation>
    </message>
    <message>
        <source>加工参数</source>
        <translation>Parameters</translation>
    </message>
    <message>
        <source>指针停留或点击感叹号查看说明；刀具寿命只在点击后显示。</source>
        <translation>Rest on a mark or click it to read its note; that of tool life shows on a click only.</translation>
    </message>
    <message>
        <source>支架_铝合金_粗加工_6mm平底刀_第3次修订.nc</source>
        <translation>Bracket_aluminium_roughing_6mm_end_mill_revision_3.nc</translation>
    </message>
    <message>
        <source>奖章_黄铜_精加工.nc</source>
        <translation>Medal_brass_finish.nc</translation>
    </message>
    <message>
        <source>外壳上盖_亚克力_轮廓与孔_3.175mm平底刀_双面装夹_第12次修订_待确认.nc</source>
        <translation>Upper_cover_acrylic_outline_and_holes_3.175mm_end_mill_two_sides_revision_12_to_be_confirmed.nc</translation>
    </message>
    <message>
        <source>打开：%1</source>
        <translation>Opened: %1</translation>
    </message>
    <message>
        <source>最近的刀路</source>
        <translation>Recent toolpaths</translation>
    </message>
    <message>
        <source>长文件名逐字换行，放不下的省略；全名在提示里。</source>
        <translation>Long names wrap anywhere and are elided; the note has the whole name.</translation>
    </message>
    <message>
        <source>复制坐标</source>
        <translation>Copy position</translation>
    </message>
    <message>
        <source>坐标已复制到剪贴板</source>
        <translation>Position copied to the clipboard</translation>
    </message>
    <message>
        <source>机床坐标</source>
        <translation>Machine position</translation>
    </message>
    <message>
        <source>程序也可以自己显示磨砂提示，确认刚才的操作。</source>
        <translation>A program can also show a frosted tip by itself, to confirm what was just done.</translation>
    </message>
</context>
<context>
    <name>ToastsPage</name>
    <message>
        <source>提示显示时，仍可在其下拖动视图。</source>
        <translation>The view can be dragged under a toast while it shows.</translation>
    </message>
    <message>
        <source>视图：旋转 %1°，俯仰 %2°</source>
        <translation>View: rotated %1°, tilted %2°</translation>
    </message>
    <message>
        <source>编辑模型</source>
        <translation>Edit model</translation>
    </message>
    <message>
        <source>退出编辑</source>
        <translation>Stop editing</translation>
    </message>
    <message>
        <source>空号</source>
        <translation>Unused</translation>
    </message>
    <message>
        <source>生成G代码</source>
        <translation>Generate G-code</translation>
    </message>
    <message>
        <source>编辑纹理</source>
        <translation>Edit texture</translation>
    </message>
    <message>
        <source>模型越界</source>
        <translation>Outside stock</translation>
    </message>
    <message>
        <source>自定义</source>
        <translation>Custom</translation>
    </message>
    <message>
        <source>隐藏外壳</source>
        <translation>Hide enclosure</translation>
    </message>
    <message>
        <source>显示外壳</source>
        <translation>Show enclosure</translation>
    </message>
    <message>
        <source>隐藏坐标</source>
        <translation>Hide coordinates</translation>
    </message>
    <message>
        <source>显示坐标</source>
        <translation>Show coordinates</translation>
    </message>
    <message>
        <source>关闭检测</source>
        <translation>Collision check off</translation>
    </message>
    <message>
        <source>打开检测</source>
        <translation>Collision check on</translation>
    </message>
    <message>
        <source>退出标定</source>
        <translation>End calibration</translation>
    </message>
    <message>
        <source>面不可加工</source>
        <translation>Face not usable</translation>
    </message>
    <message>
        <source>圆柱面不可加工</source>
        <translation>Cylinder not usable</translation>
    </message>
    <message>
        <source>二十种提示</source>
        <translation>Twenty toasts</translation>
    </message>
    <message>
        <source>编号即类型的值；10、19、20 与自定义文字是警告，3 没有内容，不显示。</source>
        <translation>The number is the value of the type; 10, 19, 20 and the custom text are warnings, 3 has no message and does not show.</translation>
    </message>
    <message>
        <source>2 号刀具已使用 40 小时，超过建议寿命；继续使用可能影响表面质量，请在下一次换刀时更换。</source>
        <translation>Tool 2 has been used for 40 hours, beyond its recommended life; surface quality may suffer. Please replace it at the next tool change.</translation>
    </message>
    <message>
        <source>类型 %1 没有内容。</source>
        <translation>Type %1 has no message.</translation>
    </message>
    <message>
        <source>显示类型 %1。</source>
        <translation>Showing type %1.</translation>
    </message>
    <message>
        <source>加工区</source>
        <translation>Work area</translation>
    </message>
    <message>
        <source>双击模型或空白处也会出现提示。</source>
        <translation>Double-clicking the model, or beside it, brings up a toast too.</translation>
    </message>
</context>
<context>
    <name>ToolBarsPage</name>
    <message>
        <source>换一个标签页，或按下一个工具，这里会显示结果。</source>
        <translation>Change the tab or use a tool; the result is shown here.</translation>
    </message>
    <message>
        <source>工作台</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>行程 X</source>
        <translation>Travel X</translation>
    </message>
    <message>
        <source>行程 Y</source>
        <translation>Travel Y</translation>
    </message>
    <message>
        <source>行程 Z</source>
        <translation>Travel Z</translation>
    </message>
    <message>
        <source>主轴</source>
        <translation>Spindle</translation>
    </message>
    <message>
        <source>最高转速</source>
        <translation>Max. speed</translation>
    </message>
    <message>
        <source>功率</source>
        <translation>Power</translation>
    </message>
    <message>
        <source>夹头</source>
        <translation>Collet</translation>
    </message>
    <message>
        <source>刀库</source>
        <translation>Magazine</translation>
    </message>
    <message>
        <source>刀位</source>
        <translation>Pockets</translation>
    </message>
    <message>
        <source>换刀时间</source>
        <translation>Tool change</translation>
    </message>
    <message>
        <source>最长刀具</source>
        <translation>Longest tool</translation>
    </message>
    <message>
        <source>标签页：%1</source>
        <translation>Tab: %1</translation>
    </message>
    <message>
        <source>标签页</source>
        <translation>Tabs</translation>
    </message>
    <message>
        <source>工具栏</source>
        <translation>Toolbars</translation>
    </message>
    <message>
        <source>上面是一组工具：两个大按钮和一叠小按钮；下面的细工具栏切换视图里的内容。</source>
        <translation>Above, a group of tools: two large ones and a stack of small ones; below, a slim toolbar that switches what the view shows.</translation>
    </message>
    <message>
        <source>视角</source>
        <translation>View from</translation>
    </message>
    <message>
        <source>等轴测</source>
        <translation>Isometric</translation>
    </message>
    <message>
        <source>俯视</source>
        <translation>Top</translation>
    </message>
    <message>
        <source>前视</source>
        <translation>Front</translation>
    </message>
    <message>
        <source>左视</source>
        <translation>Left</translation>
    </message>
    <message>
        <source>视角：%1（小按钮）</source>
        <translation>View: %1 (small button)</translation>
    </message>
    <message>
        <source>视角：%1</source>
        <translation>View: %1</translation>
    </message>
    <message>
        <source>网格</source>
        <translation>Grid</translation>
    </message>
    <message>
        <source>坐标轴</source>
        <translation>Axes</translation>
    </message>
    <message>
        <source>刀路</source>
        <translation>Toolpath</translation>
    </message>
    <message>
        <source>%1：显示</source>
        <translation>%1: shown</translation>
    </message>
    <message>
        <source>%1：隐藏</source>
        <translation>%1: hidden</translation>
    </message>
    <message>
        <source>深色的标签，文字从不缩写；当前页与标签连成一体。</source>
        <translation>Dark tabs that never shorten a caption; the current one and its page are one.</translation>
    </message>
</context>
<context>
    <name>ToolDialog</name>
    <message>
        <source>球头刀 R3</source>
        <translation>Ball end mill R3</translation>
    </message>
    <message>
        <source>编辑刀具</source>
        <translation>Edit tool</translation>
    </message>
    <message>
        <source>名称</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>直径 (mm)</source>
        <translation>Diameter (mm)</translation>
    </message>
    <message>
        <source>刃长 (mm)</source>
        <translation>Flute length (mm)</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>保存</source>
        <translation>Save</translation>
    </message>
</context>
<context>
    <name>ToolTable</name>
    <message>
        <source>库位</source>
        <translation>Pocket</translation>
    </message>
    <message>
        <source>刀具</source>
        <translation>Tool</translation>
    </message>
    <message>
        <source>直径 mm</source>
        <translation>⌀ mm</translation>
    </message>
    <message>
        <source>长度 mm</source>
        <translation>Length mm</translation>
    </message>
</context>
<context>
    <name>ToolTablePage</name>
    <message>
        <source>单击一行选择刀具，双击直径或长度修改数值。</source>
        <translation>Click a row to choose its tool; double-click a diameter or length to edit it.</translation>
    </message>
    <message>
        <source>粗加工</source>
        <translation>Roughing</translation>
    </message>
    <message>
        <source>只能选择立铣刀，其余刀具显示为灰色。</source>
        <translation>Only end mills can be chosen; the other tools are greyed out.</translation>
    </message>
    <message>
        <source>精加工</source>
        <translation>Finishing</translation>
    </message>
    <message>
        <source>只能选择球头铣刀和锥度球头铣刀。</source>
        <translation>Only ball end mills can be chosen, tapered or not.</translation>
    </message>
    <message>
        <source>已选择刀具：</source>
        <translation>Chosen: </translation>
    </message>
    <message>
        <source>已修改刀具：</source>
        <translation>Edited: </translation>
    </message>
    <message>
        <source>T%1 %2，直径 %3 mm，长度 %4 mm</source>
        <translation>T%1 %2, diameter %3 mm, length %4 mm</translation>
    </message>
    <message>
        <source>确认刀具</source>
        <translation>Confirm tools</translation>
    </message>
    <message>
        <source>开始加工</source>
        <translation>Start machining</translation>
    </message>
    <message>
        <source>加工前列出所选刀具及其库位，由用户确认。</source>
        <translation>Lists the chosen tools and their pockets to be confirmed.</translation>
    </message>
    <message>
        <source>刀具已确认，可以开始加工。</source>
        <translation>The tools are confirmed; machining can start.</translation>
    </message>
    <message>
        <source>未确认刀具。</source>
        <translation>The tools are not confirmed.</translation>
    </message>
    <message>
        <source>支架_铝合金_粗加工_6mm平底刀_第3次修订.nc</source>
        <translation>Bracket_aluminium_roughing_6mm_end_mill_revision_3.nc</translation>
    </message>
    <message>
        <source>支架_铝合金_精加工_2mm球头刀.nc</source>
        <translation>Bracket_aluminium_finishing_2mm_ball_end_mill.nc</translation>
    </message>
    <message>
        <source>奖章_黄铜_精加工.nc</source>
        <translation>Medal_brass_finish.nc</translation>
    </message>
    <message>
        <source>外壳上盖_亚克力_轮廓与孔_双面装夹_待确认.nc</source>
        <translation>Upper_cover_acrylic_outline_and_holes_two_sides_to_be_confirmed.nc</translation>
    </message>
    <message>
        <source>待加工的程序</source>
        <translation>Queued programs</translation>
    </message>
    <message>
        <source>文件</source>
        <translation>File</translation>
    </message>
    <message>
        <source>大小</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>程序：%1</source>
        <translation>Program: %1</translation>
    </message>
    <message>
        <source>文件名放不下时省略中间，结尾的修订号仍然可见。</source>
        <translation>Long names are cut in the middle; the revision still shows.</translation>
    </message>
    <message>
        <source>还没有选择刀具。</source>
        <translation>No tool chosen yet.</translation>
    </message>
</context>
<context>
    <name>WatermarkPage</name>
    <message>
        <source>加工预览（内部版本）</source>
        <translation>Preview (internal build)</translation>
    </message>
    <message>
        <source>打开预览窗口</source>
        <translation>Open preview</translation>
    </message>
    <message>
        <source>移动</source>
        <translation>Move</translation>
    </message>
    <message>
        <source>放大</source>
        <translation>Enlarge</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>内测标记</source>
        <translation>Watermark of an internal build</translation>
    </message>
    <message>
        <source>标记是一个独立的窗口，鼠标和键盘都能穿过；预览窗口移动或缩放时它跟着走。</source>
        <translation>The watermark is a window of its own that mouse and keys pass through; it follows the preview when that moves or changes its size.</translation>
    </message>
    <message>
        <source>主轴转动</source>
        <translation>Spindle</translation>
    </message>
    <message>
        <source>刀库轮播</source>
        <translation>Tool magazine</translation>
    </message>
    <message>
        <source>慢</source>
        <translation>Slow</translation>
    </message>
    <message>
        <source>中</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>快</source>
        <translation>Fast</translation>
    </message>
    <message>
        <source>逐帧动画</source>
        <translation>Frame animation</translation>
    </message>
    <message>
        <source>图片按间隔逐张显示。</source>
        <translation>Pictures shown one after another at an interval.</translation>
    </message>
</context>
</TS>
