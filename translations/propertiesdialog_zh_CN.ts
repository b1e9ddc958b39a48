<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CupsSupport</name>
    <message>
        <source>The options of %1 cannot be stored: they are too long, or hold a line break.</source>
        <translation>无法存储 %1 的选项：选项过长或包含换行符。</translation>
    </message>
    <message>
        <source>Password for %1 on %2? </source>
        <translation>%1 在 %2 上的密码？ </translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached.</source>
        <translation>无法连接打印机“%1”。</translation>
    </message>
    <message>
        <source>The print server did not answer in time.</source>
        <translation>打印服务器未及时响应。</translation>
    </message>
    <message>
        <source>The print server broke off in the middle of an answer.</source>
        <translation>打印服务器在应答过程中断开了连接。</translation>
    </message>
</context>
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>选择扩展打印偏移</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>偏移：</translation>
    </message>
    <message>
        <source>-0.75mm</source>
        <translation>-0.75mm</translation>
    </message>
    <message>
        <source>-0.50mm</source>
        <translation>-0.50mm</translation>
    </message>
    <message>
        <source>-0.25mm</source>
        <translation>-0.25mm</translation>
    </message>
    <message>
        <source> 0.00mm</source>
        <translation> 0.00mm</translation>
    </message>
    <message>
        <source> 0.25mm</source>
        <translation> 0.25mm</translation>
    </message>
    <message>
        <source> 0.50mm</source>
        <translation> 0.50mm</translation>
    </message>
    <message>
        <source> 0.75mm</source>
        <translation> 0.75mm</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>%1 to %2 inches</source>
        <translation>%1 到 %2 英寸</translation>
    </message>
    <message>
        <source>%1 inches = %2 mm</source>
        <translation>%1 英寸 = %2 mm</translation>
    </message>
    <message>
        <source>Only numbers from %1 to %2, with two decimals at most.</source>
        <translation>只能是 %1 到 %2 之间的数字，最多两位小数。</translation>
    </message>
    <message>
        <source>%1 to %2 dots</source>
        <translation>%1 到 %2 点</translation>
    </message>
    <message>
        <source>%1 dots = %2 mm</source>
        <translation>%1 点 = %2 mm</translation>
    </message>
    <message>
        <source>Only whole numbers from %1 to %2.</source>
        <translation>只能是 %1 到 %2 之间的整数。</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>The print server asks for a user name and a password.</source>
        <translation>打印服务器要求提供用户名和密码。</translation>
    </message>
    <message>
        <source>They were not accepted. Please try again.</source>
        <translation>用户名或密码未被接受。请重试。</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>用户名：</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>密码：</translation>
    </message>
</context>
<context>
    <name>Preset</name>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>%1 cannot be modified.</source>
        <translation>无法修改 %1。</translation>
    </message>
</context>
<context>
    <name>Presets</name>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>%1 cannot be deleted.</source>
        <translation>无法删除 %1。</translation>
    </message>
</context>
<context>
    <name>Preview</name>
    <message>
        <source>DL</source>
        <translation>DL</translation>
    </message>
</context>
<context>
    <name>PrintDialog</name>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>属性</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状态：</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation>使用默认</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>类型：</translation>
    </message>
    <message>
        <source>Vantry</source>
        <translation>Vantry</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>位置：</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>此处</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>打印到文件</translation>
    </message>
    <message>
        <source>Number of Copies:</source>
        <translation>份数：</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Request Print Job Now</source>
        <translation>立即打印？</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation>要将当前打印机更改为 
</translation>
    </message>
    <message>
        <source> ?</source>
        <translation>吗？</translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation>更改打印机</translation>
    </message>
</context>
<context>
    <name>PrintPropertiesDialog</name>
    <message>
        <source>PrintPropertiesDialog</source>
        <translation>PrintPropertiesDialog</translation>
    </message>
    <message>
        <source>Page Setup</source>
        <translation>页面设置</translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation>自定义页面大小</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>宽度：</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>英寸</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高度：</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>纵向</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横向</translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation>纵向 180°</translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation>横向 180°</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>效果</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>反色</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation>管理...</translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation>速度设置</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>打印浓度</translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation>Copyright © 2026 The PropertiesDialog authors</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation>预设可将打印设置以名称保存，
以便在不同配置之间快速切换。</translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation>预设列表：</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>说明：</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新建</translation>
    </message>
    <message>
        <source>Update...</source>
        <translation>更新...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>介质</translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation>介质设置</translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation>介质类型：</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>黑标宽度：</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>黑标偏移：</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>打印方式：</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>介质处理</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>切纸：</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>进纸：</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>回退：</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>点</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>重叠：</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>位置调整</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>停止位置：</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>起始位置：</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>高级</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>用户命令</translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation>作业开始</translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation>标签开始</translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation>标签结束</translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation>作业结束</translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation>位置调整</translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation>水平偏移：</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>垂直偏移：</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>版本</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>连续纸</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>间隙标签</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>黑标标签</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>不切纸</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>作业后切纸</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>每页后切纸</translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation>垂直偏移</translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation>停止位置</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Gap Size</source>
        <translation>间隙大小</translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation>间隙偏移</translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation>黑标大小</translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation>黑标偏移</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>新预设</translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation>新预设 %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>方向：%1</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored</source>
        <translation>方向：%1，镜像</translation>
    </message>
    <message>
        <source>Orientation: %1, negative</source>
        <translation>方向：%1，反色</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored and negative</source>
        <translation>方向：%1，镜像并反色</translation>
    </message>
    <message>
        <source>The driver of this printer does not have this setting.</source>
        <translation>此打印机的驱动程序没有该设置。</translation>
    </message>
    <message>
        <source>From %1 x %2 to %3 x %4 inches.</source>
        <translation>%1 x %2 到 %3 x %4 英寸。</translation>
    </message>
    <message>
        <source>The driver of this printer accepts only the page sizes that it lists.</source>
        <translation>此打印机的驱动程序只接受其列出的页面大小。</translation>
    </message>
    <message>
        <source>Left to the printer (%1).</source>
        <translation>由打印机决定（%1）。</translation>
    </message>
    <message>
        <source>Empty: left to the printer (%1).</source>
        <translation>留空：由打印机决定（%1）。</translation>
    </message>
    <message>
        <source>The driver of this printer has no label settings. Only the page size and the orientation take effect.</source>
        <translation>此打印机的驱动程序没有标签设置。只有页面大小和方向有效。</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be used together.</source>
        <translation>%1 和 %2 不能同时使用。</translation>
    </message>
    <message>
        <source>This preset cannot hold the printer&apos;s present settings: %1. Choosing it would change them.</source>
        <translation>此预设无法保存打印机的当前设置：%1。选择此预设会更改这些设置。</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Label Printer Properties</source>
        <translation>标签打印机属性</translation>
    </message>
    <message>
        <source>Choose a &amp;printer:</source>
        <translation>选择打印机(&amp;P)：</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>队列</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>不接受作业</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>空闲</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>正在打印</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Print &amp;Test Label</source>
        <translation>打印测试标签(&amp;T)</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>显示和更改标签打印机的设置。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation>列出队列，默认队列以星号标记。</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>意外的参数“%1”</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation>没有打印机“%1”；--list 会列出现有的打印机</translation>
    </message>
    <message>
        <source>Label Printer Properties</source>
        <translation>标签打印机属性</translation>
    </message>
    <message>
        <source>The queue, instead of one chosen from a list.</source>
        <translation>要使用的队列，而不从列表中选择。</translation>
    </message>
    <message>
        <source>Prints a label to adjust offsets and darkness by, on the queue or the default one.</source>
        <translation>在指定队列或默认队列上打印一张标签，用于调整偏移和打印浓度。</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>The print service cannot be reached: %1</source>
        <translation>无法连接打印服务：%1</translation>
    </message>
    <message>
        <source>No printers have been set up.</source>
        <translation>尚未设置任何打印机。</translation>
    </message>
    <message>
        <source>The test label could not be printed: %1</source>
        <translation>无法打印测试标签：%1</translation>
    </message>
    <message>
        <source>there is no default printer; name one with -p</source>
        <translation>没有默认打印机；请用 -p 指定一台</translation>
    </message>
    <message>
        <source>The test label was sent to %1.</source>
        <translation>测试标签已发送到 %1。</translation>
    </message>
    <message>
        <source>no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>无法显示窗口：DISPLAY 和 WAYLAND_DISPLAY 均未设置</translation>
    </message>
    <message>
        <source>no window can be shown with %1</source>
        <translation>使用 %1 无法显示窗口</translation>
    </message>
    <message>
        <source>The default printer &quot;%1&quot; does not exist.</source>
        <translation>默认打印机“%1”不存在。</translation>
    </message>
    <message>
        <source>The presets could not be saved.</source>
        <translation>无法保存预设。</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>无法保存设置：%1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 和 %2</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>这些设置不能同时使用：</translation>
    </message>
    <message>
        <source>Do you want to change them to the following?</source>
        <translation>要将它们更改为以下设置吗？</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>用法：%1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[选项]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>选项：</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>未知选项“%1”。</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>“%1”后缺少值。</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>“%1”后有意外的值。</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation>此预设包含该驱动程序的当前设置。</translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation>此预设包含该驱动程序的原始默认设置。</translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation>%1 打印首选项</translation>
    </message>
</context>
<context>
    <name>TestLabel</name>
    <message>
        <source>Continuous</source>
        <translation>连续纸</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>间隙标签</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>黑标标签</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>不切纸</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>作业后切纸</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>每页后切纸</translation>
    </message>
    <message>
        <source>Darkness %1</source>
        <translation>打印浓度 %1</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>速度 %1</translation>
    </message>
    <message>
        <source>Offset %1, %2 dots</source>
        <translation>偏移 %1, %2 点</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>默认设置</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>Test label</source>
        <translation>测试标签</translation>
    </message>
</context>
</TS>
