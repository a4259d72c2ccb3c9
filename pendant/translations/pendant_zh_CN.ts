<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>pendant::Application</name>
    <message>
        <source>an object that is gone</source>
        <translation>一个已不存在的对象</translation>
    </message>
    <message>
        <source>An event handler of %1 threw: %2</source>
        <translation>%1 的事件处理抛出异常：%2</translation>
    </message>
    <message>
        <source>The look of the whole pendant was changed by %1 of the application; that was taken back. Style your own widgets instead.</source>
        <translation>应用程序的 %1 改变了整个示教器的外观，现已恢复。请只设置您自己控件的样式。</translation>
    </message>
    <message>
        <source>a plugin</source>
        <translation>某个插件</translation>
    </message>
    <message>
        <source>Working folder: %1</source>
        <translation>工作文件夹：%1</translation>
    </message>
</context>
<context>
    <name>pendant::AssignWidget</name>
    <message>
        <source>Choose the variable, or type its name.</source>
        <translation>请选择变量，或输入其名称。</translation>
    </message>
    <message>
        <source>Type the value that the variable gets.</source>
        <translation>请输入要赋给变量的值。</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Name of a variable</source>
        <translation>变量名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Such as 5, parts + 1 or &quot;text&quot;</source>
        <translation>例如 5、parts + 1 或 &quot;文本&quot;</translation>
    </message>
</context>
<context>
    <name>pendant::BuiltIns</name>
    <message>
        <source>Motion</source>
        <translation>运动</translation>
    </message>
    <message>
        <source>Logic</source>
        <translation>逻辑</translation>
    </message>
    <message>
        <source>Inputs and outputs</source>
        <translation>输入与输出</translation>
    </message>
    <message>
        <source>Joint move</source>
        <translation>关节运动</translation>
    </message>
    <message>
        <source>Moves all axes at once to a point, the quickest way</source>
        <translation>所有轴同时运动到一个点，路径最快</translation>
    </message>
    <message>
        <source>Linear move</source>
        <translation>直线运动</translation>
    </message>
    <message>
        <source>Moves the tool on a straight line to a point</source>
        <translation>工具沿直线运动到一个点</translation>
    </message>
    <message>
        <source>Wait</source>
        <translation>等待</translation>
    </message>
    <message>
        <source>Waits for a time</source>
        <translation>等待一段时间</translation>
    </message>
    <message>
        <source>Assign</source>
        <translation>赋值</translation>
    </message>
    <message>
        <source>Gives a variable a value</source>
        <translation>给变量赋值</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>注释</translation>
    </message>
    <message>
        <source>A note for people; the robot passes it over</source>
        <translation>供人阅读的说明，机器人会跳过</translation>
    </message>
    <message>
        <source>Set digital output</source>
        <translation>设置数字输出</translation>
    </message>
    <message>
        <source>Switches an output on or off</source>
        <translation>打开或关闭一个输出</translation>
    </message>
</context>
<context>
    <name>pendant::CallGuard</name>
    <message>
        <source>%1 threw: %2</source>
        <translation>%1 抛出异常：%2</translation>
    </message>
    <message>
        <source>something unknown</source>
        <translation>未知内容</translation>
    </message>
    <message>
        <source>a value of type %1, which is no std::exception</source>
        <translation>类型为 %1 的值，它不是 std::exception</translation>
    </message>
</context>
<context>
    <name>pendant::CommentWidget</name>
    <message>
        <source>Comment</source>
        <translation>注释</translation>
    </message>
    <message>
        <source>What the lines below are for</source>
        <translation>说明下面各行的用途</translation>
    </message>
</context>
<context>
    <name>pendant::DeveloperButton</name>
    <message>
        <source>Developer dock (F12)</source>
        <translation>开发者窗口（F12）</translation>
    </message>
</context>
<context>
    <name>pendant::DeveloperDock</name>
    <message>
        <source>Developer dock</source>
        <translation>开发者窗口</translation>
    </message>
</context>
<context>
    <name>pendant::ElfHeader</name>
    <message>
        <source>64-bit Arm (aarch64)</source>
        <translation>64 位 Arm（aarch64）</translation>
    </message>
    <message>
        <source>32-bit x86</source>
        <translation>32 位 x86</translation>
    </message>
    <message>
        <source>32-bit Arm</source>
        <translation>32 位 Arm</translation>
    </message>
    <message>
        <source>a machine of type %1</source>
        <translation>类型为 %1 的机器</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>是空文件</translation>
    </message>
    <message>
        <source>is not an ELF file</source>
        <translation>不是 ELF 文件</translation>
    </message>
    <message>
        <source>is cut off in its ELF header</source>
        <translation>的 ELF 头不完整</translation>
    </message>
    <message>
        <source>is built for %1; this pendant runs on %2</source>
        <translation>是为 %1 构建的；本示教器运行在 %2 上</translation>
    </message>
    <message>
        <source>is a 32-bit file; this pendant needs 64-bit ones</source>
        <translation>是 32 位文件；本示教器需要 64 位文件</translation>
    </message>
    <message>
        <source>is a big-endian file; this pendant needs little-endian ones</source>
        <translation>是大端文件；本示教器需要小端文件</translation>
    </message>
    <message>
        <source>is not a shared object</source>
        <translation>不是共享库</translation>
    </message>
    <message>
        <source>cannot be read: %1</source>
        <translation>无法读取：%1</translation>
    </message>
    <message>
        <source>is cut off: it has %1 bytes of at least %2</source>
        <translation>不完整：只有 %1 字节，至少应有 %2 字节</translation>
    </message>
</context>
<context>
    <name>pendant::HardKey</name>
    <message>
        <source>The key “%1” threw when it was pressed: %2</source>
        <translation>按下按键“%1”时抛出异常：%2</translation>
    </message>
    <message>
        <source>The key “%1” threw when it was released: %2</source>
        <translation>松开按键“%1”时抛出异常：%2</translation>
    </message>
</context>
<context>
    <name>pendant::InstructionWidget</name>
    <message>
        <source>“%1” is no line of this instruction.</source>
        <translation>“%1”不是该指令的程序行。</translation>
    </message>
    <message>
        <source>This cannot be written into a line. Quotation marks come in pairs, and “//” begins a comment.</source>
        <translation>无法写成一行。引号必须成对，“//”之后是注释。</translation>
    </message>
</context>
<context>
    <name>pendant::IoDelegate</name>
    <message>
        <source>Forced</source>
        <translation>强制</translation>
    </message>
</context>
<context>
    <name>pendant::IoPage</name>
    <message>
        <source>Signals</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Inputs</source>
        <translation>输入</translation>
    </message>
    <message>
        <source>Outputs</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>Registers</source>
        <translation>寄存器</translation>
    </message>
    <message>
        <source>Find by name</source>
        <translation>按名称查找</translation>
    </message>
    <message>
        <source>Release all</source>
        <translation>全部释放</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Nothing of this name</source>
        <translation>没有此名称的项目</translation>
    </message>
    <message>
        <source>Clear the field above to see all.</source>
        <translation>清空上方的输入框即可查看全部。</translation>
    </message>
    <message>
        <source>No connection to the robot</source>
        <translation>未连接到机器人</translation>
    </message>
    <message>
        <source>Signals and registers are listed here as soon as the link to the bus is up. “Links” in the developer dock (F12) brings it up.</source>
        <translation>总线连接建立后，信号和寄存器会列在这里。可在开发者窗口（F12）的“连接”页中建立连接。</translation>
    </message>
    <message>
        <source>No registers</source>
        <translation>没有寄存器</translation>
    </message>
    <message>
        <source>The registers of the controller are listed here and can be changed. Give its cell file a section “registers”.</source>
        <translation>控制器的寄存器列在这里，并可修改。请在单元文件中添加“registers”一节。</translation>
    </message>
    <message>
        <source>No signals</source>
        <translation>没有信号</translation>
    </message>
    <message>
        <source>The signals of the controller are listed here: outputs can be switched, inputs forced. Give its cell file a section “signals”.</source>
        <translation>控制器的信号列在这里：可以切换输出，强制输入。请在单元文件中添加“signals”一节。</translation>
    </message>
    <message>
        <source>%1 forced</source>
        <translation>强制 %1 个</translation>
    </message>
    <message>
        <source>Keep them</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>The robot has not yet told its values: these may be old. It is asked again.</source>
        <translation>机器人尚未报告其数值：此处显示的可能已过时。将再次询问。</translation>
    </message>
    <message>
        <source>No connection: these are the last values that were told. “Links” in the developer dock (F12) brings it up.</source>
        <translation>无连接：此处为最后报告的数值。可在开发者窗口（F12）的“连接”页中建立连接。</translation>
    </message>
    <message>
        <source>The robot has not yet told its values</source>
        <translation>机器人尚未报告其数值</translation>
    </message>
    <message>
        <source>It is asked again.</source>
        <translation>将再次询问。</translation>
    </message>
    <message>
        <source>Release %1</source>
        <translation>释放 %1 个</translation>
    </message>
</context>
<context>
    <name>pendant::IoRegisterDetails</name>
    <message>
        <source>One value a line</source>
        <translation>每行一个值</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>设定</translation>
    </message>
    <message>
        <source>One value, an empty one</source>
        <translation>一个值，为空值</translation>
    </message>
    <message>
        <source>No value</source>
        <translation>无值</translation>
    </message>
    <message>
        <source>A value has a line break in it: these values cannot be changed here.</source>
        <translation>有一个值包含换行符：这些值无法在此更改。</translation>
    </message>
    <message>
        <source>“Set” overwrites what came meanwhile: %1</source>
        <translation>“设置”将覆盖其间到来的值：%1</translation>
    </message>
</context>
<context>
    <name>pendant::IoRegistersModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>pendant::IoRegistersPart</name>
    <message>
        <source>Select a register to change its values.</source>
        <translation>选择一个寄存器以修改其值。</translation>
    </message>
</context>
<context>
    <name>pendant::IoSignalDetails</name>
    <message>
        <source>Force off</source>
        <translation>强制断开</translation>
    </message>
    <message>
        <source>Off</source>
        <comment>switch</comment>
        <translation>断开</translation>
    </message>
    <message>
        <source>Force on</source>
        <translation>强制接通</translation>
    </message>
    <message>
        <source>On</source>
        <comment>switch</comment>
        <translation>接通</translation>
    </message>
    <message>
        <source>Force</source>
        <translation>强制</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>设定</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>释放</translation>
    </message>
    <message>
        <source>Undo: the value of the signal</source>
        <translation>撤销：恢复信号的值</translation>
    </message>
</context>
<context>
    <name>pendant::IoSignalsModel</name>
    <message>
        <source>Digital inputs</source>
        <translation>数字输入</translation>
    </message>
    <message>
        <source>Digital outputs</source>
        <translation>数字输出</translation>
    </message>
    <message>
        <source>Group inputs</source>
        <translation>组输入</translation>
    </message>
    <message>
        <source>Group outputs</source>
        <translation>组输出</translation>
    </message>
    <message>
        <source>Analogue inputs</source>
        <translation>模拟输入</translation>
    </message>
    <message>
        <source>Analogue outputs</source>
        <translation>模拟输出</translation>
    </message>
    <message>
        <source>On</source>
        <comment>signal</comment>
        <translation>接通</translation>
    </message>
    <message>
        <source>Off</source>
        <comment>signal</comment>
        <translation>断开</translation>
    </message>
</context>
<context>
    <name>pendant::IoSignalsPart</name>
    <message>
        <source>Select an input to force it.</source>
        <translation>选择一个输入以将其强制。</translation>
    </message>
    <message>
        <source>Select an output to switch it.</source>
        <translation>选择一个输出以切换它。</translation>
    </message>
</context>
<context>
    <name>pendant::JogPage</name>
    <message>
        <source>Jog</source>
        <translation>点动</translation>
    </message>
    <message>
        <source>Joints</source>
        <translation>关节</translation>
    </message>
    <message>
        <source>Cartesian</source>
        <translation>直角坐标</translation>
    </message>
    <message>
        <source>External axes</source>
        <translation>外部轴</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Work object</source>
        <translation>工件坐标系</translation>
    </message>
    <message>
        <source>No robot</source>
        <translation>没有机器人</translation>
    </message>
    <message>
        <source>The axes of the robot are jogged here. This controller tells of none: give its cell file a section “robot”.</source>
        <translation>在这里点动机器人的各轴。此控制器未报告任何轴：请在其工作单元文件中加入“robot”一节。</translation>
    </message>
    <message>
        <source>No connection to the robot</source>
        <translation>未连接到机器人</translation>
    </message>
    <message>
        <source>The axes of the robot are jogged here as soon as the links to the bus and to the controller are up. “Links” in the developer dock (F12) brings them up.</source>
        <translation>与总线和控制器的连接建立后，即可在这里点动机器人的各轴。可在开发者窗口（F12）的“连接”页中建立连接。</translation>
    </message>
</context>
<context>
    <name>pendant::JogState</name>
    <message>
        <source>The robot is moving.</source>
        <translation>机器人正在运动。</translation>
    </message>
    <message>
        <source>The robot stands still.</source>
        <translation>机器人静止。</translation>
    </message>
    <message>
        <source>%1 is at its limit. Jog it the other way.</source>
        <translation>%1 已到极限，请反向点动。</translation>
    </message>
    <message>
        <source>The arm does not reach further.</source>
        <translation>机械臂已无法再伸展。</translation>
    </message>
    <message>
        <source>The arm is near a singularity. Jog the joints to get past it.</source>
        <translation>机械臂接近奇异点，请用关节点动绕过。</translation>
    </message>
    <message>
        <source>The robot stopped because the pendant was too busy to hold the key.</source>
        <translation>示教器过于繁忙，未能保持按键信号，机器人已停止。</translation>
    </message>
    <message>
        <source>The robot stopped because its drives went off.</source>
        <translation>驱动已关闭，机器人已停止。</translation>
    </message>
    <message>
        <source>The robot stopped: %1</source>
        <translation>机器人已停止：%1</translation>
    </message>
</context>
<context>
    <name>pendant::KeyColumn</name>
    <message>
        <source>No keys in use</source>
        <translation>按键未使用</translation>
    </message>
</context>
<context>
    <name>pendant::LineTypes</name>
    <message>
        <source>The pattern is no regular expression: %1, at character %2. No line belongs to this type.</source>
        <translation>模式不是正则表达式：%1（第 %2 个字符）。没有程序行属于此类型。</translation>
    </message>
    <message>
        <source>The pattern gave up on a line of %1 characters; the line counts as none of this type.</source>
        <translation>模式在处理一个 %1 个字符的行时放弃；该行不算作此类型。</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
</context>
<context>
    <name>pendant::LinkCard</name>
    <message>
        <source>Bus</source>
        <translation>总线</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>控制器</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>已连接</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>已断开</translation>
    </message>
    <message>
        <source>Take down</source>
        <translation>断开</translation>
    </message>
    <message>
        <source>Bring up</source>
        <translation>连接</translation>
    </message>
    <message>
        <source>Nothing stands behind this link, so there is nothing to switch. The pendant puts the virtual controller there when it starts.</source>
        <translation>此连接后面没有任何对象，因此无可切换。示教器启动时会将虚拟控制器接在后面。</translation>
    </message>
    <message>
        <source>A plugin sees: values are read and set, commands are answered, and what changes on a watched key is delivered.</source>
        <translation>插件所见：可以读取和设置值，命令得到应答，被监视的键发生变化时会送达。</translation>
    </message>
    <message>
        <source>A plugin sees: the bus says that it is not connected. Reading and commands come back at once, with nothing in them; what is set is lost; nothing is delivered. What was watched is watched again as soon as the link is up.</source>
        <translation>插件所见：总线报告未连接。读取和命令立即返回，内容为空；设置的值会丢失；不会送达任何内容。连接恢复后，原先监视的键会重新监视。</translation>
    </message>
    <message>
        <source>A plugin sees: requests are answered, and the tasks for an established connection have run.</source>
        <translation>插件所见：请求得到应答，连接建立时的任务已经运行。</translation>
    </message>
    <message>
        <source>A plugin sees: it is told that the controller is gone, and the tasks for a lost connection have run. Requests are not sent and come back at once, with nothing in them.</source>
        <translation>插件所见：被告知控制器已断开，连接丢失时的任务已经运行。请求不会发送，并立即返回空内容。</translation>
    </message>
</context>
<context>
    <name>pendant::LinksPanel</name>
    <message>
        <source>Try what your plugin does when a link breaks and when it comes back.</source>
        <translation>试一试连接中断和恢复时插件的表现。</translation>
    </message>
    <message>
        <source>Both down</source>
        <translation>全部断开</translation>
    </message>
    <message>
        <source>Both up</source>
        <translation>全部连接</translation>
    </message>
    <message>
        <source>Links</source>
        <translation>连接</translation>
    </message>
</context>
<context>
    <name>pendant::LogChooser</name>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>All days</source>
        <translation>所有日期</translation>
    </message>
</context>
<context>
    <name>pendant::LogFilterBar</name>
    <message>
        <source>All levels</source>
        <translation>所有级别</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Without service</source>
        <translation>不含服务</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>服务</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Other lines</source>
        <translation>其他行</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>Module</source>
        <translation>模块</translation>
    </message>
    <message>
        <source>Find text</source>
        <translation>查找文本</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
</context>
<context>
    <name>pendant::LogPage</name>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Newest lines</source>
        <translation>最新行</translation>
    </message>
    <message>
        <source>Lines of the log</source>
        <translation>日志行</translation>
    </message>
    <message>
        <source>The line in full</source>
        <translation>完整的行</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>正在搜索</translation>
    </message>
    <message>
        <source>What is found appears here, the newest first.</source>
        <translation>找到的内容显示在这里，最新的在前。</translation>
    </message>
    <message>
        <source>Nothing matches the filter</source>
        <translation>没有符合筛选条件的内容</translation>
    </message>
    <message>
        <source>All levels, or other text, brings back what is hidden.</source>
        <translation>选择所有级别或更改文本，即可重新显示隐藏的内容。</translation>
    </message>
    <message>
        <source>The log cannot be read</source>
        <translation>无法读取日志</translation>
    </message>
    <message>
        <source>Nothing logged yet</source>
        <translation>还没有日志</translation>
    </message>
    <message>
        <source>What plugins and the pendant write with their log streams appears here, from all “.log” files below this folder. The first line makes the file.</source>
        <translation>插件和示教器用日志流写入的内容显示在这里，来自此文件夹下所有“.log”文件。写入第一行时会创建文件。</translation>
    </message>
    <message>
        <source>%1   %2 in %3 files</source>
        <translation>%1   %2，共 %3 个文件</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>Nothing is that late; these are the newest lines.</source>
        <translation>没有那么晚的内容；这些是最新的行。</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>实时</translation>
    </message>
    <message>
        <source>Searching: %1 % looked at, %2 found</source>
        <translation>正在搜索：已查看 %1 %，找到 %2 条</translation>
    </message>
    <message>
        <source>The newest %1 are shown</source>
        <translation>显示最新的 %1 条</translation>
    </message>
    <message>
        <source>Stopped: %1 % looked at, %2 found</source>
        <translation>已停止：已查看 %1 %，找到 %2 条</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>找到 %1 条</translation>
    </message>
    <message>
        <source>Live; %1 is written to as well</source>
        <translation>实时；同时也在写入 %1</translation>
    </message>
    <message>
        <source>There is no folder %1 yet. The first line that is logged makes it.</source>
        <translation>文件夹 %1 尚不存在。记录第一行日志时会创建它。</translation>
    </message>
    <message>
        <source>Nothing here opens folders. The log files are in %1</source>
        <translation>此处没有可打开文件夹的程序。日志文件位于 %1</translation>
    </message>
</context>
<context>
    <name>pendant::LogTimeBar</name>
    <message>
        <source>Time to go to</source>
        <translation>要跳转到的时间</translation>
    </message>
    <message>
        <source>Go to this time</source>
        <translation>跳转到此时间</translation>
    </message>
</context>
<context>
    <name>pendant::LogView</name>
    <message>
        <source>Service</source>
        <translation>服务</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
</context>
<context>
    <name>pendant::MessageLine</name>
    <message>
        <source>Messages: %1</source>
        <translation>消息：%1</translation>
    </message>
    <message>
        <source>No messages</source>
        <translation>没有消息</translation>
    </message>
</context>
<context>
    <name>pendant::Messages</name>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
</context>
<context>
    <name>pendant::MessagesPage</name>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>警告和错误</translation>
    </message>
    <message>
        <source>Errors</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Nothing of this kind</source>
        <translation>没有此类消息</translation>
    </message>
    <message>
        <source>“All” shows the messages of the other levels.</source>
        <translation>“全部”显示其他级别的消息。</translation>
    </message>
    <message>
        <source>No messages</source>
        <translation>没有消息</translation>
    </message>
    <message>
        <source>What the pendant and its plugins have to tell appears here, the newest first.</source>
        <translation>示教器及其插件的消息显示在这里，最新的排在最前。</translation>
    </message>
</context>
<context>
    <name>pendant::MoveWidget</name>
    <message>
        <source>Choose the point to move to, or type its name.</source>
        <translation>请选择目标点，或输入其名称。</translation>
    </message>
    <message>
        <source>Point</source>
        <translation>点位</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Zone</source>
        <translation>过渡区</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Work object</source>
        <translation>工件</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>How far from the point the robot may leave its path for the next move</source>
        <translation>距目标点多远时机器人可离开路径转入下一段运动</translation>
    </message>
    <message>
        <source>Name of a point</source>
        <translation>点位名称</translation>
    </message>
    <message>
        <source>Selected</source>
        <translation>当前所选</translation>
    </message>
</context>
<context>
    <name>pendant::Navigation</name>
    <message>
        <source>No pages yet. “Start” shows how to add a plugin.</source>
        <translation>尚无页面。“开始”页说明如何添加插件。</translation>
    </message>
</context>
<context>
    <name>pendant::OptionReader</name>
    <message>
        <source>There is no display. Start the pendant under one, or let it play its tour with --tour.</source>
        <translation>没有显示器。请在有显示器的环境中启动示教器，或使用 --tour 播放巡览。</translation>
    </message>
    <message>
        <source>A robot teach pendant with its plugins, without a robot.</source>
        <translation>无需机器人即可运行的示教器及其插件。</translation>
    </message>
    <message>
        <source>Load the plugins (*.so) of this folder. May be given several times.</source>
        <translation>加载此文件夹中的插件（*.so）。可多次指定。</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Walk all pages, leave pictures and a transcript in this folder, and end.</source>
        <translation>遍历所有页面，将图片和记录存入此文件夹，然后结束。</translation>
    </message>
    <message>
        <source>The folder in which the pendant keeps logs, settings and projects.</source>
        <translation>示教器保存日志、设置和工程的文件夹。</translation>
    </message>
    <message>
        <source>Size of the window in pixels, 800x480 or more.</source>
        <translation>窗口大小（像素），至少 800x480。</translation>
    </message>
    <message>
        <source>Language: %1.</source>
        <translation>语言：%1。</translation>
    </message>
    <message>
        <source>code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Appearance: %1.</source>
        <translation>外观：%1。</translation>
    </message>
    <message>
        <source>name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>“%1” is no option. A folder of plugins is named with --plugins.</source>
        <translation>“%1”不是选项。插件文件夹用 --plugins 指定。</translation>
    </message>
    <message>
        <source>--size takes width and height in pixels, 800x480 or more, such as 1280x800.</source>
        <translation>--size 接受以像素为单位的宽和高，至少 800x480，例如 1280x800。</translation>
    </message>
    <message>
        <source>--language takes one of: %1.</source>
        <translation>--language 可取：%1。</translation>
    </message>
    <message>
        <source>--theme takes one of: %1.</source>
        <translation>--theme 可取：%1。</translation>
    </message>
    <message>
        <source>The cell that the virtual controller plays, a JSON file; without it the one that is built in.</source>
        <translation>虚拟控制器所模拟的单元，一个 JSON 文件；不指定时使用内置的单元。</translation>
    </message>
    <message>
        <source>file</source>
        <translation>文件</translation>
    </message>
</context>
<context>
    <name>pendant::OutputWidget</name>
    <message>
        <source>Digital output</source>
        <translation>数字输出</translation>
    </message>
    <message>
        <source>Name of the signal</source>
        <translation>信号名称</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Choose the output, or type its name.</source>
        <translation>请选择输出，或输入其名称。</translation>
    </message>
</context>
<context>
    <name>pendant::OwnPages</name>
    <message>
        <source>Pendant</source>
        <translation>示教器</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Jog</source>
        <translation>点动</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>点位</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>信号</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>机器人</translation>
    </message>
    <message>
        <source>Projects</source>
        <translation>项目</translation>
    </message>
</context>
<context>
    <name>pendant::PendantWindow</name>
    <message>
        <source>There is no page “%1” to show.</source>
        <translation>没有可显示的页面“%1”。</translation>
    </message>
    <message>
        <source>The entry “%1” of the navigation names no page.</source>
        <translation>导航项“%1”没有指定页面。</translation>
    </message>
    <message>
        <source>The entry “%1” of the navigation leads to the page “%2”, which does not exist.</source>
        <translation>导航项“%1”指向的页面“%2”不存在。</translation>
    </message>
</context>
<context>
    <name>pendant::PluginLoader</name>
    <message>
        <source>threw while it was loaded: %1</source>
        <translation>加载时抛出异常：%1</translation>
    </message>
    <message>
        <source>cannot be loaded: %1</source>
        <translation>无法加载：%1</translation>
    </message>
    <message>
        <source>does not exist.</source>
        <translation>不存在。</translation>
    </message>
    <message>
        <source>is not a folder.</source>
        <translation>不是文件夹。</translation>
    </message>
    <message>
        <source>holds no plugin file (*.so).</source>
        <translation>中没有插件文件（*.so）。</translation>
    </message>
    <message>
        <source>points to a file that does not exist.</source>
        <translation>指向不存在的文件。</translation>
    </message>
    <message>
        <source>registers no plugin, or only names that other plugins hold.</source>
        <translation>没有注册插件，或注册的名称已被其他插件占用。</translation>
    </message>
    <message>
        <source>cannot be read: %1.</source>
        <translation>无法读取：%1。</translation>
    </message>
</context>
<context>
    <name>pendant::PluginSession</name>
    <message>
        <source>Its constructor threw: %1</source>
        <translation>其构造函数抛出异常：%1</translation>
    </message>
    <message>
        <source>Nothing was made for it.</source>
        <translation>未为其创建任何对象。</translation>
    </message>
    <message>
        <source>It was deleted while the pendant was running.</source>
        <translation>它在示教器运行期间被删除。</translation>
    </message>
    <message>
        <source>%1 threw: %2</source>
        <translation>%1 抛出异常：%2</translation>
    </message>
</context>
<context>
    <name>pendant::PointValues</name>
    <message>
        <source>Joint</source>
        <translation>关节</translation>
    </message>
    <message>
        <source>Cartesian</source>
        <translation>直角坐标</translation>
    </message>
    <message>
        <source>function %1, task %2</source>
        <translation>函数 %1，任务 %2</translation>
    </message>
    <message>
        <source>Joints, °</source>
        <translation>关节，°</translation>
    </message>
    <message>
        <source>External axes</source>
        <translation>外部轴</translation>
    </message>
    <message>
        <source>Position, mm</source>
        <translation>位置，mm</translation>
    </message>
    <message>
        <source>Angles, °</source>
        <translation>角度，°</translation>
    </message>
    <message>
        <source>Quaternion</source>
        <translation>四元数</translation>
    </message>
    <message>
        <source>Configuration</source>
        <translation>姿态配置</translation>
    </message>
</context>
<context>
    <name>pendant::PointsModel</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Work object</source>
        <translation>工件坐标系</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
</context>
<context>
    <name>pendant::PointsPage</name>
    <message>
        <source>Points</source>
        <translation>点位</translation>
    </message>
    <message>
        <source>Select a point to see all its values.</source>
        <translation>选择一个点位以查看其全部数值。</translation>
    </message>
    <message>
        <source>No points</source>
        <translation>没有点位</translation>
    </message>
    <message>
        <source>The taught points of the robot project are listed here. They are loaded when the links come up; a plugin teaches one with addCurrentPoint() where the robot stands: jog it there first.</source>
        <translation>这里列出机器人项目中已示教的点位。连接建立后自动加载；插件用 addCurrentPoint() 在机器人当前位置示教点位：请先将机器人点动到该处。</translation>
    </message>
</context>
<context>
    <name>pendant::Program</name>
    <message>
        <source>A line break cannot stand within a program line.</source>
        <translation>程序行中不能有换行符。</translation>
    </message>
    <message>
        <source>A null character cannot stand in a program line.</source>
        <translation>程序行中不能有空字符。</translation>
    </message>
    <message>
        <source>Half of a character cannot stand in a program line.</source>
        <translation>程序行中不能有不完整的字符。</translation>
    </message>
    <message>
        <source>Insert line</source>
        <translation>插入行</translation>
    </message>
    <message>
        <source>Delete line</source>
        <translation>删除行</translation>
    </message>
    <message>
        <source>Change line</source>
        <translation>更改行</translation>
    </message>
    <message>
        <source>Move line</source>
        <translation>移动行</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramContent</name>
    <message>
        <source>Its creator threw: %1</source>
        <translation>其创建函数抛出：%1</translation>
    </message>
    <message>
        <source>Its creator made no widget.</source>
        <translation>其创建函数没有生成控件。</translation>
    </message>
    <message>
        <source>%1 threw: %2</source>
        <translation>%1 抛出：%2</translation>
    </message>
    <message>
        <source>Its widget deleted itself in %1.</source>
        <translation>其控件在 %1 中删除了自己。</translation>
    </message>
    <message>
        <source>Its widget deleted itself.</source>
        <translation>它的界面删除了自己。</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramDelegate</name>
    <message>
        <source>Empty line</source>
        <translation>空行</translation>
    </message>
    <message>
        <source>No instruction knows this line</source>
        <translation>没有指令识别这一行</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramEditor</name>
    <message>
        <source>It can be moved and deleted.</source>
        <translation>可以移动和删除。</translation>
    </message>
    <message>
        <source>“%1” brings no widget to insert it with.</source>
        <translation>“%1”没有提供插入用的控件。</translation>
    </message>
    <message>
        <source>“%1” brings no widget to edit its lines.</source>
        <translation>“%1”没有提供编辑其程序行的控件。</translation>
    </message>
    <message>
        <source>“%1” could not be opened. The messages say why.</source>
        <translation>无法打开“%1”。原因见消息列表。</translation>
    </message>
    <message>
        <source>“%1” failed. The messages say why.</source>
        <translation>“%1”出错。原因见消息列表。</translation>
    </message>
    <message>
        <source>Insert</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>还原</translation>
    </message>
    <message>
        <source>Also matches: %1</source>
        <translation>同时匹配：%1</translation>
    </message>
    <message>
        <source>It is kept as it is, and can be moved and deleted. It may belong to a plugin that is not loaded.</source>
        <translation>该行保持原样，可以移动和删除。它可能属于未加载的插件。</translation>
    </message>
    <message>
        <source>The instruction gives no reason.</source>
        <translation>该指令没有说明原因。</translation>
    </message>
    <message>
        <source>Not applied yet</source>
        <translation>尚未应用</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramFile</name>
    <message>
        <source>The program %1 was not opened: %2</source>
        <translation>未打开程序 %1：%2</translation>
    </message>
    <message>
        <source>it is no file.</source>
        <translation>它不是文件。</translation>
    </message>
    <message>
        <source>it is no text in UTF-8.</source>
        <translation>它不是 UTF-8 文本。</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>it is longer than %1 MiB.</source>
        <translation>它超过 %1 MiB。</translation>
    </message>
    <message>
        <source>The program was not written to %1: %2</source>
        <translation>程序未写入 %1：%2</translation>
    </message>
    <message>
        <source>its folder cannot be made.</source>
        <translation>无法创建其文件夹。</translation>
    </message>
    <message>
        <source>The program %1 cannot be read: %2</source>
        <translation>无法读取程序 %1：%2</translation>
    </message>
    <message>
        <source>the folder of its project is not there.</source>
        <translation>其项目的文件夹不存在。</translation>
    </message>
    <message>
        <source>What stands in %1 now cannot be read, and nothing was written over it: %2</source>
        <translation>%1 中现有的内容无法读取，因此未被覆盖：%2</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramPage</name>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save the program (Ctrl+S)</source>
        <translation>保存程序 (Ctrl+S)</translation>
    </message>
    <message>
        <source>Select a line to edit it.</source>
        <translation>选择一行进行编辑。</translation>
    </message>
    <message>
        <source>No lines yet</source>
        <translation>还没有程序行</translation>
    </message>
    <message>
        <source>The lines of the robot program stand here. Press “Insert” and choose an instruction for the first one.</source>
        <translation>机器人程序的各行显示在这里。按“插入”，为第一行选择一条指令。</translation>
    </message>
    <message>
        <source>Empty line</source>
        <translation>空行</translation>
    </message>
    <message>
        <source>No instruction knows this line</source>
        <translation>没有指令识别这一行</translation>
    </message>
    <message>
        <source>No program is open</source>
        <translation>没有打开的程序</translation>
    </message>
    <message>
        <source>Becomes the first line</source>
        <translation>将成为第一行</translation>
    </message>
    <message>
        <source>Becomes line %1</source>
        <translation>将成为第 %1 行</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>第 %1 行</translation>
    </message>
    <message>
        <source>● %1, not saved</source>
        <translation>● %1，未保存</translation>
    </message>
    <message>
        <source>Changes from before that were not saved are in the program again. Save them, or take them back with undo.</source>
        <translation>上次未保存的更改已重新载入程序。请保存，或用“撤销”取消。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>Not inserted: the line of “%1” that was begun.</source>
        <translation>未插入：已开始填写的“%1”行。</translation>
    </message>
    <message>
        <source>Not applied: what was entered in line %1 is not in the program.</source>
        <translation>未应用：在第 %1 行输入的内容不在程序中。</translation>
    </message>
    <message>
        <source>The program cannot be read</source>
        <translation>无法读取程序</translation>
    </message>
    <message>
        <source>The robot program of the open project is edited here. %1 Open a project, or make one, on the page “Projects”.</source>
        <translation>在此编辑已打开项目的机器人程序。%1请在“项目”页面打开或新建一个项目。</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramPicker</name>
    <message>
        <source>Choose an instruction</source>
        <translation>选择指令</translation>
    </message>
    <message>
        <source>Find by name</source>
        <translation>按名称查找</translation>
    </message>
    <message>
        <source>No instruction of this name</source>
        <translation>没有该名称的指令</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Above</source>
        <translation>上方</translation>
    </message>
    <message>
        <source>Insert above the line at the cursor</source>
        <translation>在光标所在行的上方插入</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramPlace</name>
    <message>
        <source>No project is open.</source>
        <translation>没有打开的项目。</translation>
    </message>
    <message>
        <source>The project&apos;s name “%1” leads out of the workspace.</source>
        <translation>项目名称“%1”指向工作区之外。</translation>
    </message>
    <message>
        <source>The program&apos;s name “%1” leads out of the project.</source>
        <translation>程序名称“%1”指向项目之外。</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramStore</name>
    <message>
        <source>Take up unsaved changes</source>
        <translation>恢复未保存的更改</translation>
    </message>
    <message>
        <source>It was renamed to %1.</source>
        <translation>已重命名为 %1。</translation>
    </message>
    <message>
        <source>The program was not written: its project was deleted.</source>
        <translation>程序未写入：其项目已被删除。</translation>
    </message>
    <message>
        <source>There are unsaved changes of an older program %1. They were not taken up: it was saved since.</source>
        <translation>存在旧版程序 %1 的未保存更改。该程序此后已保存，因此未采用这些更改。</translation>
    </message>
    <message>
        <source>It cannot be renamed, so changes are kept by “Save” only.</source>
        <translation>它无法重命名，因此只有“保存”才会保留更改。</translation>
    </message>
    <message>
        <source>Changes that are not saved are not kept: %1 is in the way and cannot be renamed.</source>
        <translation>未保存的更改不会保留：%1 占用了位置且无法重命名。</translation>
    </message>
    <message>
        <source>The program was not written: somebody else has changed %1 since it was opened. Save once more to write yours; the other one is then kept beside it as %2.</source>
        <translation>程序未写入：%1 打开后已被他人更改。再次保存即可写入您的程序；对方的程序将以 %2 保留在旁边。</translation>
    </message>
    <message>
        <source>The program was not written: what somebody else has written cannot be copied to %1.</source>
        <translation>程序未写入：他人写入的内容无法复制到 %1。</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramTools</name>
    <message>
        <source>Insert</source>
        <translation>插入</translation>
    </message>
    <message>
        <source>Insert a line below (Ins)</source>
        <translation>在下方插入一行 (Ins)</translation>
    </message>
    <message>
        <source>Delete the line (Del)</source>
        <translation>删除该行 (Del)</translation>
    </message>
    <message>
        <source>Move the line up (Ctrl+Up)</source>
        <translation>上移该行 (Ctrl+Up)</translation>
    </message>
    <message>
        <source>Move the line down (Ctrl+Down)</source>
        <translation>下移该行 (Ctrl+Down)</translation>
    </message>
    <message>
        <source>Undo (Ctrl+Z)</source>
        <translation>撤销 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Undo: %1 (Ctrl+Z)</source>
        <translation>撤销：%1 (Ctrl+Z)</translation>
    </message>
    <message>
        <source>Redo (Ctrl+Y)</source>
        <translation>重做 (Ctrl+Y)</translation>
    </message>
    <message>
        <source>Redo: %1 (Ctrl+Y)</source>
        <translation>重做：%1 (Ctrl+Y)</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramTour</name>
    <message>
        <source>No program is open.</source>
        <translation>没有打开的程序。</translation>
    </message>
    <message>
        <source>“%1” is not offered.</source>
        <translation>没有提供“%1”。</translation>
    </message>
    <message>
        <source>A new line of “%1”.</source>
        <translation>“%1”的新行。</translation>
    </message>
    <message>
        <source>“%1” refuses the line as it is.</source>
        <translation>“%1”拒绝当前的行。</translation>
    </message>
    <message>
        <source>“%1” refuses the line with what the tour filled in.</source>
        <translation>“%1”拒绝巡览所填写的行。</translation>
    </message>
    <message>
        <source>Inserted a line of “%1”.</source>
        <translation>插入了“%1”的一行。</translation>
    </message>
    <message>
        <source>The line of “%1” was applied as it was.</source>
        <translation>“%1”的行未作更改。</translation>
    </message>
    <message>
        <source>Edited the line of “%1”.</source>
        <translation>编辑了“%1”的行。</translation>
    </message>
    <message>
        <source>Took the edit back.</source>
        <translation>撤销了编辑。</translation>
    </message>
    <message>
        <source>Saved the program.</source>
        <translation>保存了程序。</translation>
    </message>
</context>
<context>
    <name>pendant::ProgramWriter</name>
    <message>
        <source>“%1” refuses this line.</source>
        <translation>“%1”拒绝这一行。</translation>
    </message>
    <message>
        <source>The pattern of “%1” does not match the line that it made: it will not be recognised as one of its lines.</source>
        <translation>“%1”的模式与其生成的行不匹配：该行不会被识别为它的程序行。</translation>
    </message>
    <message>
        <source>Its line: %1</source>
        <translation>其生成的行：%1</translation>
    </message>
    <message>
        <source>“%1” made an empty line, which was not taken.</source>
        <translation>“%1”生成了空行，未被采用。</translation>
    </message>
</context>
<context>
    <name>pendant::ProjectDetails</name>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Keep it</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Delete for good</source>
        <translation>永久删除</translation>
    </message>
    <message>
        <source>Delete it with its variables, points and programs? It cannot be brought back.</source>
        <translation>连同其变量、点位和程序一起删除？删除后无法恢复。</translation>
    </message>
    <message>
        <source>This project is open. Open another one before you delete it.</source>
        <translation>该项目已打开。删除前请先打开另一个项目。</translation>
    </message>
</context>
<context>
    <name>pendant::ProjectForm</name>
    <message>
        <source>New project</source>
        <translation>新建项目</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Create and open</source>
        <translation>新建并打开</translation>
    </message>
</context>
<context>
    <name>pendant::ProjectMirror</name>
    <message>
        <source>The project %1 was not opened: the controller does not answer.</source>
        <translation>项目 %1 未打开：控制器没有应答。</translation>
    </message>
</context>
<context>
    <name>pendant::ProjectsModel</name>
    <message>
        <source>Open</source>
        <translation>已打开</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>创建时间</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
</context>
<context>
    <name>pendant::ProjectsPage</name>
    <message>
        <source>Projects</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>New project</source>
        <translation>新建项目</translation>
    </message>
    <message>
        <source>Select a project to open or delete it.</source>
        <translation>选择一个项目以打开或删除。</translation>
    </message>
    <message>
        <source>No connection: these are the projects that were there last.</source>
        <translation>未连接：这里显示的是最后一次读取的项目。</translation>
    </message>
    <message>
        <source>No projects</source>
        <translation>没有项目</translation>
    </message>
    <message>
        <source>The projects of this robot are listed here, a folder each in the workspace. Press “New project” to make one.</source>
        <translation>这里列出该机器人的项目，每个项目是工作区中的一个文件夹。按“新建项目”创建。</translation>
    </message>
    <message>
        <source>No connection to the robot</source>
        <translation>未连接机器人</translation>
    </message>
    <message>
        <source>The projects of this robot are listed here as soon as both links are up. “Links” in the developer dock (F12) brings them up.</source>
        <translation>两个连接都建立后，这里列出该机器人的项目。可在开发者窗口（F12）的“连接”页中建立连接。</translation>
    </message>
</context>
<context>
    <name>pendant::RecordsPage</name>
    <message>
        <source>Find by name</source>
        <translation>按名称查找</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Nothing of this name</source>
        <translation>没有此名称的条目</translation>
    </message>
    <message>
        <source>Clear the field above to see all.</source>
        <translation>清空上方的输入框即可查看全部。</translation>
    </message>
</context>
<context>
    <name>pendant::RobotPage</name>
    <message>
        <source>Robot</source>
        <translation>机器人</translation>
    </message>
    <message>
        <source>Front</source>
        <comment>view of the robot</comment>
        <translation>正面</translation>
    </message>
    <message>
        <source>Side</source>
        <comment>view of the robot</comment>
        <translation>侧面</translation>
    </message>
    <message>
        <source>Top</source>
        <comment>view of the robot</comment>
        <translation>顶部</translation>
    </message>
    <message>
        <source>Show all</source>
        <comment>view of the robot</comment>
        <translation>显示全部</translation>
    </message>
    <message>
        <source>Drag to turn, pinch to zoom, two fingers to shift.</source>
        <translation>拖动旋转，双指缩放和平移。</translation>
    </message>
    <message>
        <source>No robot</source>
        <translation>没有机器人</translation>
    </message>
    <message>
        <source>The robot is drawn here. This controller does not tell what its robot looks like (“robot.arm”).</source>
        <translation>机器人显示在此处。该控制器没有提供机器人的外形（“robot.arm”）。</translation>
    </message>
    <message>
        <source>No connection to the robot</source>
        <translation>未连接到机器人</translation>
    </message>
    <message>
        <source>The robot is drawn here as soon as the links to the bus and to the controller are up. “Links” in the developer dock (F12) brings them up.</source>
        <translation>总线和控制器连接建立后，机器人将显示在此处。可在开发者窗口（F12）的“连接”页中建立连接。</translation>
    </message>
    <message>
        <source>Joints %1 °</source>
        <translation>关节 %1 °</translation>
    </message>
    <message>
        <source>X %1  Y %2  Z %3 mm in %4</source>
        <translation>X %1  Y %2  Z %3 mm，%4</translation>
    </message>
</context>
<context>
    <name>pendant::SearchBar</name>
    <message>
        <source>Searching: %1 nodes looked at, %2 found.</source>
        <translation>正在搜索：已查看 %1 个节点，找到 %2 个。</translation>
    </message>
    <message>
        <source>The first %1 are shown. Type more to narrow the search.</source>
        <translation>显示前 %1 个。请输入更多内容以缩小范围。</translation>
    </message>
    <message>
        <source>Stopped after %1 nodes, %2 found. Press Enter to search again.</source>
        <translation>查看 %1 个节点后停止，找到 %2 个。按回车键重新搜索。</translation>
    </message>
    <message>
        <source>No key and no value contains “%1”. %2 nodes were looked at.</source>
        <translation>没有键或值包含“%1”。共查看了 %2 个节点。</translation>
    </message>
    <message>
        <source>%1 found in %2 nodes.</source>
        <translation>在 %2 个节点中找到 %1 个。</translation>
    </message>
    <message>
        <source>Search keys and values</source>
        <translation>搜索键和值</translation>
    </message>
    <message>
        <source>Previous hit (Shift+F3)</source>
        <translation>上一个结果（Shift+F3）</translation>
    </message>
    <message>
        <source>Next hit (F3)</source>
        <translation>下一个结果（F3）</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>停止搜索</translation>
    </message>
</context>
<context>
    <name>pendant::SearchHits</name>
    <message>
        <source>gone</source>
        <translation>已不存在</translation>
    </message>
    <message>
        <source>Found at</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
</context>
<context>
    <name>pendant::SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Dark suits a dim hall, light a bright one.</source>
        <translation>深色适合光线较暗的车间，浅色适合明亮的车间。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Texts of plugins stay in the language of the plugin.</source>
        <translation>插件的文字保持插件自身的语言。</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
</context>
<context>
    <name>pendant::SideBarButton</name>
    <message>
        <source>Side bar</source>
        <translation>侧边栏</translation>
    </message>
</context>
<context>
    <name>pendant::SideBarHeader</name>
    <message>
        <source>Close the side bar</source>
        <translation>关闭侧边栏</translation>
    </message>
</context>
<context>
    <name>pendant::StartPage</name>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>No plugins loaded</source>
        <translation>未加载插件</translation>
    </message>
    <message>
        <source>The plugins of this pendant are listed here. Copy a plugin (a file *.so) into one of the folders below and start the pendant again, or name its folder with --plugins.</source>
        <translation>这里列出本示教器的插件。请将插件（*.so 文件）复制到下列文件夹之一并重新启动示教器，或用 --plugins 指定插件所在的文件夹。</translation>
    </message>
    <message>
        <source>Working folder: %1</source>
        <translation>工作文件夹：%1</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>Not loaded</source>
        <translation>未加载</translation>
    </message>
    <message>
        <source>Running: %1</source>
        <translation>运行中：%1</translation>
    </message>
    <message>
        <source>Failed: %1</source>
        <translation>失败：%1</translation>
    </message>
    <message>
        <source>The plugins of this pendant are listed here. Start the pendant with --plugins and the folder that holds them (files *.so).</source>
        <translation>这里列出本示教器的插件。请用 --plugins 加上插件（*.so 文件）所在的文件夹来启动示教器。</translation>
    </message>
</context>
<context>
    <name>pendant::StatusItems</name>
    <message>
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message>
        <source>Bus</source>
        <translation>总线</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>控制器</translation>
    </message>
    <message>
        <source>Drives</source>
        <translation>驱动</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>模式</translation>
    </message>
    <message>
        <source>Tool</source>
        <translation>工具</translation>
    </message>
    <message>
        <source>Work object</source>
        <translation>工件坐标系</translation>
    </message>
    <message>
        <source>Online</source>
        <translation>在线</translation>
    </message>
    <message>
        <source>Offline</source>
        <translation>离线</translation>
    </message>
    <message>
        <source>On</source>
        <comment>drive power</comment>
        <translation>开</translation>
    </message>
    <message>
        <source>Off</source>
        <comment>drive power</comment>
        <translation>关</translation>
    </message>
    <message>
        <source>Robot</source>
        <translation>机器人</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手动</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Standing</source>
        <translation>静止</translation>
    </message>
    <message>
        <source>Moving</source>
        <translation>运动中</translation>
    </message>
    <message>
        <source>Stopping</source>
        <translation>停止中</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Forced</source>
        <comment>signals</comment>
        <translation>强制</translation>
    </message>
</context>
<context>
    <name>pendant::ThrownHandler</name>
    <message>
        <source>A callback on the bus key “%1” threw: %2</source>
        <translation>总线键“%1”的回调抛出异常：%2</translation>
    </message>
    <message>
        <source>A network task “%1” threw: %2</source>
        <translation>网络任务“%1”抛出异常：%2</translation>
    </message>
    <message>
        <source>What listens to the answers to “%1” threw: %2</source>
        <translation>监听“%1”应答的代码抛出异常：%2</translation>
    </message>
    <message>
        <source>What listens to the link “%1” threw: %2</source>
        <translation>监听连接“%1”的代码抛出异常：%2</translation>
    </message>
</context>
<context>
    <name>pendant::Tour</name>
    <message>
        <source>The pendant has started.</source>
        <translation>示教器已启动。</translation>
    </message>
    <message>
        <source>The plugins have been stopped.</source>
        <translation>插件已停止。</translation>
    </message>
    <message>
        <source>The entry &quot;%1&quot; of the navigation has no page (%2).</source>
        <translation>导航项“%1”没有页面（%2）。</translation>
    </message>
    <message>
        <source>Page &quot;%1&quot;.</source>
        <translation>页面“%1”。</translation>
    </message>
    <message>
        <source>Page &quot;%1&quot; of %2.</source>
        <translation>%2 的页面“%1”。</translation>
    </message>
    <message>
        <source>Pressed &quot;%1&quot; on the page of %2.</source>
        <translation>在 %2 的页面上按下“%1”。</translation>
    </message>
    <message>
        <source>%1: what &quot;%2&quot; opened did not go away when it was pressed again.</source>
        <translation>%1：再次按下后，“%2”打开的内容没有消失。</translation>
    </message>
    <message>
        <source>Side-bar page &quot;%1&quot; of %2.</source>
        <translation>%2 的侧边栏页面“%1”。</translation>
    </message>
    <message>
        <source>The physical keys &quot;%1&quot; of %2 are disabled now.</source>
        <translation>%2 的实体按键“%1”现已禁用。</translation>
    </message>
    <message>
        <source>Physical keys &quot;%1&quot; of %2.</source>
        <translation>%2 的实体按键“%1”。</translation>
    </message>
    <message>
        <source>Cannot write %1.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
    <message>
        <source>Developer dock, tab &quot;%1&quot;.</source>
        <translation>开发者窗口，标签页“%1”。</translation>
    </message>
</context>
<context>
    <name>pendant::TrafficFilter</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>无法写入 %1：%2</translation>
    </message>
</context>
<context>
    <name>pendant::TrafficModel</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Way</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Sender</source>
        <translation>发送者</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>毫秒</translation>
    </message>
</context>
<context>
    <name>pendant::TrafficPanel</name>
    <message>
        <source>… cut here; what you save is whole.</source>
        <translation>……此处截断；保存的内容是完整的。</translation>
    </message>
    <message>
        <source>No traffic yet</source>
        <translation>尚无通信</translation>
    </message>
    <message>
        <source>What the pendant and its plugins send over the bus and to the controller is listed here from the moment this window is open. Use the pendant, and it fills.</source>
        <translation>从打开此窗口起，示教器及其插件通过总线和向控制器发送的内容都列在这里。操作示教器即可看到。</translation>
    </message>
    <message>
        <source>Nothing matches the filter</source>
        <translation>没有符合筛选条件的内容</translation>
    </message>
    <message>
        <source>Other text, or all channels, brings back what is hidden.</source>
        <translation>更改文字或选择全部通道，即可显示被隐藏的内容。</translation>
    </message>
    <message>
        <source>%1 entries</source>
        <translation>%1 条</translation>
    </message>
    <message>
        <source>%1 of %2 entries</source>
        <translation>%1 条，共 %2 条</translation>
    </message>
    <message>
        <source>%1. Paused: nothing is recorded.</source>
        <translation>%1。已暂停：不记录任何内容。</translation>
    </message>
    <message>
        <source>Save the traffic</source>
        <translation>保存通信记录</translation>
    </message>
    <message>
        <source>JSON lines (*.jsonl)</source>
        <translation>JSON 行 (*.jsonl)</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>已保存为 %1。</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>筛选</translation>
    </message>
    <message>
        <source>Part of key, sender, kind or value</source>
        <translation>键、发送者、类型或值的一部分</translation>
    </message>
    <message>
        <source>All channels</source>
        <translation>全部通道</translation>
    </message>
    <message>
        <source>Bus</source>
        <translation>总线</translation>
    </message>
    <message>
        <source>Controller</source>
        <translation>控制器</translation>
    </message>
    <message>
        <source>Channel</source>
        <translation>通道</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save what is shown, one JSON object a line</source>
        <translation>保存所显示的内容，每行一个 JSON 对象</translation>
    </message>
    <message>
        <source>Choose an entry to see its whole value.</source>
        <translation>选择一条记录以查看其完整的值。</translation>
    </message>
    <message>
        <source>Traffic</source>
        <translation>通信</translation>
    </message>
</context>
<context>
    <name>pendant::TrafficWords</name>
    <message>
        <source>out</source>
        <translation>发</translation>
    </message>
    <message>
        <source>in</source>
        <translation>收</translation>
    </message>
    <message>
        <source>%1, not sent</source>
        <translation>%1，未发送</translation>
    </message>
</context>
<context>
    <name>pendant::Transcript</name>
    <message>
        <source>running</source>
        <translation>运行中</translation>
    </message>
    <message>
        <source>switched off</source>
        <translation>已关闭</translation>
    </message>
    <message>
        <source>stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Plugins</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>问题</translation>
    </message>
    <message>
        <source>Plugin</source>
        <translation>插件</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>原因</translation>
    </message>
    <message>
        <source>Call</source>
        <translation>调用</translation>
    </message>
    <message>
        <source>Thrown</source>
        <translation>异常</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>From</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>消息</translation>
    </message>
    <message>
        <source>None.</source>
        <translation>无。</translation>
    </message>
    <message>
        <source>Tour of the pendant</source>
        <translation>示教器巡览</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>结果</translation>
    </message>
    <message>
        <source>Nothing failed.</source>
        <translation>没有失败。</translation>
    </message>
    <message>
        <source>Steps</source>
        <translation>步骤</translation>
    </message>
    <message>
        <source>Plugin files</source>
        <translation>插件文件</translation>
    </message>
    <message>
        <source>Calls into plugins</source>
        <translation>对插件的调用</translation>
    </message>
    <message>
        <source>Messages</source>
        <translation>消息</translation>
    </message>
</context>
<context>
    <name>pendant::TreeModel</name>
    <message>
        <source>The node is gone.</source>
        <translation>节点已不存在。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Changed by</source>
        <translation>修改者</translation>
    </message>
    <message>
        <source>Changed at</source>
        <translation>修改时间</translation>
    </message>
</context>
<context>
    <name>pendant::TreePanel</name>
    <message>
        <source>Edit value</source>
        <translation>编辑值</translation>
    </message>
    <message>
        <source>Copy key</source>
        <translation>复制键</translation>
    </message>
    <message>
        <source>Copy JSON</source>
        <translation>复制 JSON</translation>
    </message>
    <message>
        <source>Edit the value of the chosen leaf (F2)</source>
        <translation>编辑所选叶节点的值（F2）</translation>
    </message>
    <message>
        <source>Copy the key of the chosen node (Ctrl+C)</source>
        <translation>复制所选节点的键（Ctrl+C）</translation>
    </message>
    <message>
        <source>Copy the chosen node with everything below it as JSON (Ctrl+Shift+C)</source>
        <translation>将所选节点及其下所有内容复制为 JSON（Ctrl+Shift+C）</translation>
    </message>
    <message>
        <source>Tree</source>
        <translation>数据树</translation>
    </message>
</context>
<context>
    <name>pendant::ValueReader</name>
    <message>
        <source>“%1” is not a whole number, or too big a one.</source>
        <translation>“%1”不是整数，或者过大。</translation>
    </message>
    <message>
        <source>“%1” is not a number. It is written with a point, such as 12.5.</source>
        <translation>“%1”不是数字。请用小数点书写，例如 12.5。</translation>
    </message>
    <message>
        <source>“%1” is neither true nor false.</source>
        <translation>“%1”既不是 true 也不是 false。</translation>
    </message>
    <message>
        <source>“%1” is not JSON. A text stands in quotes.</source>
        <translation>“%1”不是 JSON。文字要加引号。</translation>
    </message>
    <message>
        <source>“%1” is not a JSON array, and an array stands here.</source>
        <translation>“%1”不是 JSON 数组，而这里是数组。</translation>
    </message>
    <message>
        <source>“%1” is not a JSON object, and an object stands here.</source>
        <translation>“%1”不是 JSON 对象，而这里是对象。</translation>
    </message>
    <message>
        <source>“%1” is no value of the type %2.</source>
        <translation>“%1”不是类型 %2 的值。</translation>
    </message>
</context>
<context>
    <name>pendant::VariablesModel</name>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Persistent</source>
        <translation>持久</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>描述</translation>
    </message>
</context>
<context>
    <name>pendant::VariablesPage</name>
    <message>
        <source>Variables</source>
        <translation>变量</translation>
    </message>
    <message>
        <source>No variables</source>
        <translation>没有变量</translation>
    </message>
    <message>
        <source>The variables of the robot project are listed here. They are loaded when the links come up; a plugin adds one with addVarData().</source>
        <translation>这里列出机器人项目的变量。连接建立后自动加载；插件用 addVarData() 添加变量。</translation>
    </message>
</context>
<context>
    <name>pendant::WaitWidget</name>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
</context>
<context>
    <name>pendant::WorkFolder</name>
    <message>
        <source>The folder %1 cannot be made. Name another one with --work.</source>
        <translation>无法创建文件夹 %1。请用 --work 指定其他文件夹。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be entered. Name another one with --work.</source>
        <translation>无法进入文件夹 %1。请用 --work 指定其他文件夹。</translation>
    </message>
</context>
<context>
    <name>pendant::Workspace</name>
    <message>
        <source>Type a name.</source>
        <translation>请输入名称。</translation>
    </message>
    <message>
        <source>“_temp” is kept for the pendant itself. Choose another name.</source>
        <translation>“_temp”由示教器自身保留。请另选名称。</translation>
    </message>
    <message>
        <source>A name has no “/” and is neither “.” nor “..”.</source>
        <translation>名称不能包含“/”，也不能是“.”或“..”。</translation>
    </message>
    <message>
        <source>A name does not begin with a dot: the folder would be hidden.</source>
        <translation>名称不能以点开头，否则文件夹会被隐藏。</translation>
    </message>
    <message>
        <source>A name has no blanks at its ends and no letters that cannot be seen.</source>
        <translation>名称首尾不能有空格，也不能包含不可见字符。</translation>
    </message>
    <message>
        <source>A name has at most %1 letters.</source>
        <translation>名称最多 %1 个字符。</translation>
    </message>
    <message>
        <source>There is a project “%1” already.</source>
        <translation>项目“%1”已存在。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be made.</source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message>
        <source>The description of “%1” was not written.</source>
        <translation>未能写入“%1”的说明。</translation>
    </message>
    <message>
        <source>There is no project “%1”.</source>
        <translation>没有项目“%1”。</translation>
    </message>
    <message>
        <source>The project “%1” was not deleted completely: something in %2 cannot be deleted.</source>
        <translation>项目“%1”未能完全删除：%2 中有无法删除的内容。</translation>
    </message>
</context>
</TS>
