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
</TS>
