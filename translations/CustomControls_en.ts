<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US">
<context>
    <name>CPlainTextEdit</name>
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
        <source>全选</source>
        <translation>Select All</translation>
    </message>
</context>
<context>
    <name>CProgressWidget</name>
    <message>
        <source>进度</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>重建中，请稍候</source>
        <translation>Reconstructing, please wait</translation>
    </message>
    <message>
        <source>断言失败: %1
文件: %2
行号: %3</source>
        <translation>Assertion failed: %1
File: %2
Line: %3</translation>
    </message>
    <message>
        <source>关键逻辑错误</source>
        <translation>Critical logic error</translation>
    </message>
    <message>
        <source>恢复扫描状态</source>
        <translation>Restoring the scan state</translation>
    </message>
    <message>
        <source>三维拼接</source>
        <translation>3D registration</translation>
    </message>
    <message>
        <source>表面重建</source>
        <translation>Surface reconstruction</translation>
    </message>
</context>
<context>
    <name>CSelectMachineBox</name>
    <message>
        <source>请将本机手动配置以下数据后重试</source>
        <translation>Configure this computer manually as follows, then try again</translation>
    </message>
    <message>
        <source>打开网络和Internet</source>
        <translation>Open Network &amp; Internet</translation>
    </message>
    <message>
        <source>IP分配：手动</source>
        <translation>IP assignment: Manual</translation>
    </message>
    <message>
        <source>IP地址：192.168.7.x</source>
        <translation>IP address: 192.168.7.x</translation>
    </message>
    <message>
        <source>IP掩码：255.255.255.0</source>
        <translation>Subnet mask: 255.255.255.0</translation>
    </message>
    <message>
        <source>指定IP</source>
        <translation>Enter IP</translation>
    </message>
    <message>
        <source>重新扫描</source>
        <translation>Scan again</translation>
    </message>
    <message>
        <source>连接</source>
        <translation>Connect</translation>
    </message>
    <message>
        <source>为确保数据传输稳定和结果准确，请参照示意图进行有线方式连接机床</source>
        <translation>For stable data transfer and accurate results, connect the machine by cable as shown</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>自动配置</source>
        <translation>Automatic setup</translation>
    </message>
    <message>
        <source>自动连接失败，有线网卡未探测到机床</source>
        <translation>Automatic connection failed: no machine on a wired adapter</translation>
    </message>
    <message>
        <source>连接中，请稍候...</source>
        <translation>Connecting, please wait...</translation>
    </message>
    <message>
        <source>手动配置</source>
        <translation>Manual setup</translation>
    </message>
    <message>
        <source>新建连接</source>
        <translation>New connection</translation>
    </message>
    <message>
        <source>扫描中...</source>
        <translation>Scanning...</translation>
    </message>
    <message>
        <source>设备列表</source>
        <translation>Machines</translation>
    </message>
    <message>
        <source>序列号</source>
        <translation>Serial number</translation>
    </message>
    <message>
        <source>Velmar CNC机器</source>
        <translation>Velmar CNC machine</translation>
    </message>
    <message>
        <source>连接中...</source>
        <translation>Connecting...</translation>
    </message>
    <message>
        <source>清除</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>指定IP连接</source>
        <translation>Connect by IP address</translation>
    </message>
    <message>
        <source>获取机床序列号失败</source>
        <translation>Could not read the machine&apos;s serial number</translation>
    </message>
    <message>
        <source>获取机床序列号失败：%1</source>
        <translation>Could not read the machine&apos;s serial number: %1</translation>
    </message>
    <message>
        <source>获取机床序列号失败：序列号为空</source>
        <translation>Could not read the machine&apos;s serial number: it is empty</translation>
    </message>
    <message>
        <source>连接超时，请检查机床连接状态</source>
        <translation>Connection timed out. Please check the machine&apos;s connection</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>机床连接成功！</source>
        <translation>Machine connected!</translation>
    </message>
    <message>
        <source>机床连接失败</source>
        <translation>Could not connect to the machine</translation>
    </message>
    <message>
        <source>机床连接失败【%1】</source>
        <translation>Could not connect to the machine [%1]</translation>
    </message>
    <message>
        <source>正在进行自动配置并连接机床，请稍候</source>
        <translation>Setting up the connection to the machine, please wait</translation>
    </message>
    <message>
        <source>连接机床</source>
        <translation>Connect machine</translation>
    </message>
    <message>
        <source>机床连接失败!</source>
        <translation>Could not connect to the machine!</translation>
    </message>
    <message>
        <source>获取机床序列号失败!</source>
        <translation>Could not read the machine&apos;s serial number!</translation>
    </message>
</context>
<context>
    <name>CSelectMachineIPLineEdit</name>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>IP地址:</source>
        <translation>IP address:</translation>
    </message>
    <message>
        <source>请输入IPv4地址</source>
        <translation>Enter an IPv4 address</translation>
    </message>
</context>
<context>
    <name>CTextBrowser</name>
    <message>
        <source>复制</source>
        <translation>Copy</translation>
    </message>
</context>
<context>
    <name>CTextEdit</name>
    <message>
        <source>长度：</source>
        <translation>Length: </translation>
    </message>
</context>
<context>
    <name>CToolBarItem</name>
    <message>
        <source>更多工具</source>
        <translation>More tools</translation>
    </message>
</context>
<context>
    <name>CVelmarMessageBox</name>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Form</source>
        <translation>Form</translation>
    </message>
    <message>
        <source>提示</source>
        <translation>Notice</translation>
    </message>
    <message>
        <source>不再提醒</source>
        <translation>Do not ask again</translation>
    </message>
    <message>
        <source>确定</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>是</source>
        <translation>Yes</translation>
    </message>
    <message>
        <source>否</source>
        <translation>No</translation>
    </message>
    <message>
        <source>删除安装包</source>
        <translation>Delete package</translation>
    </message>
    <message>
        <source>稍后提示</source>
        <translation>Remind me later</translation>
    </message>
    <message>
        <source>立刻升级</source>
        <translation>Upgrade now</translation>
    </message>
    <message>
        <source>稍后重启</source>
        <translation>Restart later</translation>
    </message>
    <message>
        <source>立即重启</source>
        <translation>Restart now</translation>
    </message>
    <message>
        <source>上传参数</source>
        <translation>Upload parameters</translation>
    </message>
    <message>
        <source>忽略</source>
        <translation>Ignore</translation>
    </message>
    <message>
        <source>重试</source>
        <translation>Retry</translation>
    </message>
    <message>
        <source>退出中</source>
        <translation>Exiting</translation>
    </message>
    <message>
        <source>打开文件位置</source>
        <translation>Open file location</translation>
    </message>
    <message>
        <source>打开文件夹位置</source>
        <translation>Open folder location</translation>
    </message>
    <message>
        <source>磁盘空间不足</source>
        <translation>Low disk space</translation>
    </message>
    <message>
        <source>请确保已将刀具放置在对应库位。</source>
        <translation>Make sure each tool is in its assigned pocket.</translation>
    </message>
</context>
<context>
    <name>CVelmarMessageListItem</name>
    <message>
        <source>刀具</source>
        <translation>Tool</translation>
    </message>
    <message>
        <source>库位</source>
        <translation>Pocket</translation>
    </message>
    <message>
        <source>策略</source>
        <translation>Strategy</translation>
    </message>
</context>
<context>
    <name>CVelmarSelectBox</name>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>添加毛坯</source>
        <translation>Add stock</translation>
    </message>
    <message>
        <source>添加</source>
        <translation>Add</translation>
    </message>
</context>
<context>
    <name>CWatermarkWidget</name>
    <message>
        <source>Dornhall 内 测 版 本，禁 止 外 发 ！</source>
        <translation>Dornhall internal test build. Do not distribute!</translation>
    </message>
</context>
<context>
    <name>CorvaneToolBitHelper</name>
    <message>
        <source>铰刀</source>
        <translation>Reamer</translation>
    </message>
    <message>
        <source>立铣刀</source>
        <translation>End mill</translation>
    </message>
    <message>
        <source>避空立铣刀</source>
        <translation>Relieved mill</translation>
    </message>
    <message>
        <source>球头铣刀</source>
        <translation>Ball end mill</translation>
    </message>
    <message>
        <source>避空球头铣刀</source>
        <translation>Relieved ball</translation>
    </message>
    <message>
        <source>圆鼻铣刀</source>
        <translation>Bull nose</translation>
    </message>
    <message>
        <source>锥刀</source>
        <translation>Engraver</translation>
    </message>
    <message>
        <source>锥度球头铣刀</source>
        <translation>Tapered ball</translation>
    </message>
    <message>
        <source>无法读取文件</source>
        <translation>the file cannot be read</translation>
    </message>
    <message>
        <source>文件超过 %1 MiB</source>
        <translation>the file is larger than %1 MiB</translation>
    </message>
    <message>
        <source>第 %1 字节处不是有效的 JSON</source>
        <translation>not valid JSON at byte %1</translation>
    </message>
    <message>
        <source>文件应为含有 “models” 对象的 JSON 对象，“types” 若有也应为对象</source>
        <translation>the file must be a JSON object with an object “models”; “types”, if present, must be an object too</translation>
    </message>
    <message>
        <source>“types” 中的 “%1”：编号应为 0 到 %2 的整数，名称应为 1 到 %3 个字符的文本</source>
        <translation>“%1” in “types”: the code must be an integer from 0 to %2, and the name a text of 1 to %3 characters</translation>
    </message>
    <message>
        <source>“models” 中的 “%1”：机型应为 0 到 %2 的整数，其值应为刀具数组</source>
        <translation>“%1” in “models”: the model must be an integer from 0 to %2, and its value an array of tools</translation>
    </message>
    <message>
        <source>机型 %1 的第 %2 把刀具：%3</source>
        <translation>model %1, tool %2: %3</translation>
    </message>
    <message>
        <source>应为对象</source>
        <translation>must be an object</translation>
    </message>
    <message>
        <source>“%1” 应为 %2 到 %3 的整数</source>
        <translation>“%1” must be an integer from %2 to %3</translation>
    </message>
    <message>
        <source>刀具类型 %1 没有名称</source>
        <translation>tool type %1 has no name</translation>
    </message>
    <message>
        <source>“%1” 应为不超过 %2 个字符的文本</source>
        <translation>“%1” must be a text of at most %2 characters</translation>
    </message>
    <message>
        <source>刀具文件 %1：%2</source>
        <translation>Tool file %1: %2</translation>
    </message>
</context>
<context>
    <name>MyProgressBar</name>
    <message>
        <source>MyProgressBar</source>
        <translation>MyProgressBar</translation>
    </message>
</context>
<context>
    <name>NetworkConfigurator</name>
    <message>
        <source>网卡“%1”已就绪，本机地址 %2</source>
        <translation>Adapter “%1” is ready; this computer&apos;s address is %2</translation>
    </message>
    <message>
        <source>没有修改网卡设置的权限，请以管理员身份运行本软件后重试</source>
        <translation>No permission to change the adapter settings. Run this program as administrator and try again</translation>
    </message>
    <message>
        <source>系统缺少网卡配置工具（%1），请安装后重试</source>
        <translation>The system has no tool to configure the adapter (%1). Install one and try again</translation>
    </message>
    <message>
        <source>无法设置网卡“%1”的地址：%2</source>
        <translation>Could not set the address of adapter “%1”: %2</translation>
    </message>
    <message>
        <source>机床没有应答，请检查数据线是否插好、机床是否已开机</source>
        <translation>The machine does not answer. Check that the cable is plugged in and the machine is switched on</translation>
    </message>
    <message>
        <source>没有空闲的地址</source>
        <translation>no address is free</translation>
    </message>
    <message>
        <source>网卡“%1”占用了机床的地址 %2，请先修改该网卡的地址</source>
        <translation>Adapter “%1” uses the machine&apos;s address %2. Change the address of that adapter first</translation>
    </message>
    <message>
        <source>未找到已连接的有线网卡，请确认机床已开机，并已用数据线连接到电脑</source>
        <translation>No connected wired adapter was found. Check that the machine is switched on and connected to this computer by its cable</translation>
    </message>
</context>
<context>
    <name>QTableView</name>
    <message>
        <source>铰刀</source>
        <translation>Reamer</translation>
    </message>
    <message>
        <source>立铣刀</source>
        <translation>End mill</translation>
    </message>
    <message>
        <source>避空立铣刀</source>
        <translation>Relieved mill</translation>
    </message>
    <message>
        <source>球头铣刀</source>
        <translation>Ball end mill</translation>
    </message>
    <message>
        <source>避空球头铣刀</source>
        <translation>Relieved ball</translation>
    </message>
    <message>
        <source>圆鼻铣刀</source>
        <translation>Bull nose</translation>
    </message>
    <message>
        <source>锥刀</source>
        <translation>Engraver</translation>
    </message>
    <message>
        <source>锥度球头铣刀</source>
        <translation>Tapered ball</translation>
    </message>
    <message>
        <source>位置</source>
        <translation>No.</translation>
    </message>
    <message>
        <source>类型</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>直径</source>
        <translation>Diameter</translation>
    </message>
    <message>
        <source>长度</source>
        <translation>Length</translation>
    </message>
</context>
<context>
    <name>ToastWidget</name>
    <message>
        <source>双击模型进行编辑</source>
        <translation>Double-click the model to edit it</translation>
    </message>
    <message>
        <source>双击空白区域退出编辑</source>
        <translation>Double-click an empty area to stop editing</translation>
    </message>
    <message>
        <source>点击【生成G代码】按钮进行G代码生成</source>
        <translation>Click [Generate G-code] to generate the G-code</translation>
    </message>
    <message>
        <source>双击纹理进行编辑</source>
        <translation>Double-click the texture to edit it</translation>
    </message>
    <message>
        <source>检测到部分模型在毛坯外，越界部分将无法切割</source>
        <translation>Part of the model lies outside the stock; that part cannot be cut</translation>
    </message>
    <message>
        <source>机床外壳已隐藏</source>
        <translation>Machine enclosure hidden</translation>
    </message>
    <message>
        <source>机床外壳已显示</source>
        <translation>Machine enclosure shown</translation>
    </message>
    <message>
        <source>局部坐标已隐藏</source>
        <translation>Local coordinates hidden</translation>
    </message>
    <message>
        <source>局部坐标已显示</source>
        <translation>Local coordinates shown</translation>
    </message>
    <message>
        <source>碰撞检测已关闭</source>
        <translation>Collision check off</translation>
    </message>
    <message>
        <source>碰撞检测已打开</source>
        <translation>Collision check on</translation>
    </message>
    <message>
        <source>已退出扫描仪标定</source>
        <translation>Scanner calibration ended</translation>
    </message>
    <message>
        <source>选择的面不支持加工</source>
        <translation>The selected face cannot be machined</translation>
    </message>
    <message>
        <source>选取的圆柱面不支持加工</source>
        <translation>The selected cylindrical face cannot be machined</translation>
    </message>
</context>
</TS>
