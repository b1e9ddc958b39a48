<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CupsSupport</name>
    <message>
        <source>The options of %1 cannot be stored: they are too long, or hold a line break.</source>
        <translation>%1 のオプションを保存できません。長すぎるか、改行が含まれています。</translation>
    </message>
    <message>
        <source>Password for %1 on %2? </source>
        <translation>%2 での %1 のパスワード? </translation>
    </message>
    <message>
        <source>The printer &quot;%1&quot; cannot be reached.</source>
        <translation>プリンター「%1」に接続できません。</translation>
    </message>
    <message>
        <source>The print server did not answer in time.</source>
        <translation>印刷サーバーから時間内に応答がありませんでした。</translation>
    </message>
    <message>
        <source>The print server broke off in the middle of an answer.</source>
        <translation>印刷サーバーからの応答が途中で切断されました。</translation>
    </message>
</context>
<context>
    <name>ExtDialog</name>
    <message>
        <source>Select Extended Print Offset</source>
        <translation>拡張印刷オフセットの選択</translation>
    </message>
    <message>
        <source>Offset:</source>
        <translation>オフセット:</translation>
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
        <translation>%1 ～ %2 インチ</translation>
    </message>
    <message>
        <source>%1 inches = %2 mm</source>
        <translation>%1 インチ = %2 mm</translation>
    </message>
    <message>
        <source>Only numbers from %1 to %2, with two decimals at most.</source>
        <translation>%1 ～ %2 の数値のみ (小数点以下 2 桁まで)。</translation>
    </message>
    <message>
        <source>%1 to %2 dots</source>
        <translation>%1 ～ %2 ドット</translation>
    </message>
    <message>
        <source>%1 dots = %2 mm</source>
        <translation>%1 ドット = %2 mm</translation>
    </message>
    <message>
        <source>Only whole numbers from %1 to %2.</source>
        <translation>%1 ～ %2 の整数のみ。</translation>
    </message>
</context>
<context>
    <name>PasswordDialog</name>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>The print server asks for a user name and a password.</source>
        <translation>印刷サーバーがユーザー名とパスワードを要求しています。</translation>
    </message>
    <message>
        <source>They were not accepted. Please try again.</source>
        <translation>認証されませんでした。もう一度入力してください。</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>ユーザー名:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>パスワード:</translation>
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
        <translation>%1 は変更できません。</translation>
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
        <translation>%1 は削除できません。</translation>
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
        <translation>印刷</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>プロパティ</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>状態:</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Use Default</source>
        <translation>デフォルトを使用</translation>
    </message>
    <message>
        <source>Type:</source>
        <translation>機種:</translation>
    </message>
    <message>
        <source>Vantry</source>
        <translation>Vantry</translation>
    </message>
    <message>
        <source>Where:</source>
        <translation>場所:</translation>
    </message>
    <message>
        <source>Here</source>
        <translation>ここ</translation>
    </message>
    <message>
        <source>Print to file</source>
        <translation>ファイルに出力</translation>
    </message>
    <message>
        <source>Number of Copies:</source>
        <translation>部数:</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Request Print Job Now</source>
        <translation>今すぐ印刷しますか?</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Do you want to change the current printer to 
</source>
        <translation>現在のプリンターを次のものに変更します: 
</translation>
    </message>
    <message>
        <source> ?</source>
        <translation> よろしいですか?</translation>
    </message>
    <message>
        <source>Printer Change</source>
        <translation>プリンターの変更</translation>
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
        <translation>ページ設定</translation>
    </message>
    <message>
        <source>User-defined Page Size</source>
        <translation>ユーザー定義の用紙サイズ</translation>
    </message>
    <message>
        <source>Width:</source>
        <translation>幅:</translation>
    </message>
    <message>
        <source>inches</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>Height:</source>
        <translation>高さ:</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Orientation</source>
        <translation>方向</translation>
    </message>
    <message>
        <source>Portrait</source>
        <translation>縦</translation>
    </message>
    <message>
        <source>Landscape</source>
        <translation>横</translation>
    </message>
    <message>
        <source>Portrait 180°</source>
        <translation>縦 180°</translation>
    </message>
    <message>
        <source>Landscape 180°</source>
        <translation>横 180°</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>効果</translation>
    </message>
    <message>
        <source>Mirror</source>
        <translation>鏡像</translation>
    </message>
    <message>
        <source>Negative</source>
        <translation>白黒反転</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前:</translation>
    </message>
    <message>
        <source>Manage...</source>
        <translation>管理...</translation>
    </message>
    <message>
        <source>Speed Settings</source>
        <translation>印刷速度</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Darkness</source>
        <translation>印刷濃度</translation>
    </message>
    <message>
        <source>Copyright © 2026 The PropertiesDialog authors</source>
        <translation>Copyright © 2026 The PropertiesDialog authors</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Presets allow you to save your print settings with a name so
that you can quickly switch between different configurations.</source>
        <translation>プリセットを使うと、印刷設定に名前を付けて保存し、
設定をすばやく切り替えることができます。</translation>
    </message>
    <message>
        <source>Preset List:</source>
        <translation>プリセット一覧:</translation>
    </message>
    <message>
        <source>Description:</source>
        <translation>説明:</translation>
    </message>
    <message>
        <source>New</source>
        <translation>新規</translation>
    </message>
    <message>
        <source>Update...</source>
        <translation>更新...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Stock</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>Media Settings</source>
        <translation>用紙の設定</translation>
    </message>
    <message>
        <source>MediaType:</source>
        <translation>用紙の種類:</translation>
    </message>
    <message>
        <source>Black Mark Width:</source>
        <translation>ブラックマークの幅:</translation>
    </message>
    <message>
        <source>Black Mark Offset:</source>
        <translation>ブラックマークのオフセット:</translation>
    </message>
    <message>
        <source>Print Method:</source>
        <translation>印刷方式:</translation>
    </message>
    <message>
        <source>Media Handling</source>
        <translation>用紙の取り扱い</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>カット:</translation>
    </message>
    <message>
        <source>Feed:</source>
        <translation>フィード量:</translation>
    </message>
    <message>
        <source>Backfeed:</source>
        <translation>バックフィード量:</translation>
    </message>
    <message>
        <source>dots</source>
        <translation>ドット</translation>
    </message>
    <message>
        <source>Overlap:</source>
        <translation>重なり:</translation>
    </message>
    <message>
        <source>Position Adjustments</source>
        <translation>位置調整</translation>
    </message>
    <message>
        <source>Stop Position:</source>
        <translation>停止位置:</translation>
    </message>
    <message>
        <source>Start Position:</source>
        <translation>開始位置:</translation>
    </message>
    <message>
        <source>Advanced</source>
        <translation>詳細</translation>
    </message>
    <message>
        <source>User Commands</source>
        <translation>ユーザーコマンド</translation>
    </message>
    <message>
        <source>Start of Job</source>
        <translation>ジョブの先頭</translation>
    </message>
    <message>
        <source>Start of Label</source>
        <translation>ラベルの先頭</translation>
    </message>
    <message>
        <source>End of Label</source>
        <translation>ラベルの末尾</translation>
    </message>
    <message>
        <source>End of Job</source>
        <translation>ジョブの末尾</translation>
    </message>
    <message>
        <source>Position Adjustment</source>
        <translation>位置調整</translation>
    </message>
    <message>
        <source>Horizontal Offset:</source>
        <translation>水平オフセット:</translation>
    </message>
    <message>
        <source>Vertical Offset:</source>
        <translation>垂直オフセット:</translation>
    </message>
    <message>
        <source>About</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>バージョン</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Continuous</source>
        <translation>連続紙</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>ギャップ付きラベル</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>マーク付きラベル</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>カットしない</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>ジョブ後にカット</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>ページ後にカット</translation>
    </message>
    <message>
        <source>Vertical Offset</source>
        <translation>垂直オフセット</translation>
    </message>
    <message>
        <source>Stop Position</source>
        <translation>停止位置</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>%1</source>
        <translation>%1</translation>
    </message>
    <message>
        <source>Gap Size</source>
        <translation>ギャップのサイズ</translation>
    </message>
    <message>
        <source>Gap Offset</source>
        <translation>ギャップのオフセット</translation>
    </message>
    <message>
        <source>Black Mark Size</source>
        <translation>ブラックマークのサイズ</translation>
    </message>
    <message>
        <source>Black Mark Offset</source>
        <translation>ブラックマークのオフセット</translation>
    </message>
    <message>
        <source>New Preset</source>
        <translation>新しいプリセット</translation>
    </message>
    <message>
        <source>New Preset %1</source>
        <translation>新しいプリセット %1</translation>
    </message>
    <message>
        <source>Orientation: %1</source>
        <translation>方向: %1</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored</source>
        <translation>方向: %1、鏡像</translation>
    </message>
    <message>
        <source>Orientation: %1, negative</source>
        <translation>方向: %1、白黒反転</translation>
    </message>
    <message>
        <source>Orientation: %1, mirrored and negative</source>
        <translation>方向: %1、鏡像、白黒反転</translation>
    </message>
    <message>
        <source>The driver of this printer does not have this setting.</source>
        <translation>このプリンターのドライバーにこの設定はありません。</translation>
    </message>
    <message>
        <source>From %1 x %2 to %3 x %4 inches.</source>
        <translation>%1 x %2 ～ %3 x %4 インチ。</translation>
    </message>
    <message>
        <source>The driver of this printer accepts only the page sizes that it lists.</source>
        <translation>このプリンターのドライバーでは、一覧にある用紙サイズのみ使用できます。</translation>
    </message>
    <message>
        <source>Left to the printer (%1).</source>
        <translation>プリンターに任せます (%1)。</translation>
    </message>
    <message>
        <source>Empty: left to the printer (%1).</source>
        <translation>空欄: プリンターに任せます (%1)。</translation>
    </message>
    <message>
        <source>The driver of this printer has no label settings. Only the page size and the orientation take effect.</source>
        <translation>このプリンターのドライバーにはラベルの設定がありません。用紙サイズと方向のみ有効です。</translation>
    </message>
    <message>
        <source>%1 and %2 cannot be used together.</source>
        <translation>%1 と %2 は同時に使用できません。</translation>
    </message>
    <message>
        <source>This preset cannot hold the printer&apos;s present settings: %1. Choosing it would change them.</source>
        <translation>このプリセットにはプリンターの現在の設定 (%1) を保存できません。選択すると、これらの設定は変更されます。</translation>
    </message>
</context>
<context>
    <name>PrinterList</name>
    <message>
        <source>Label Printer Properties</source>
        <translation>ラベルプリンターのプロパティ</translation>
    </message>
    <message>
        <source>Choose a &amp;printer:</source>
        <translation>プリンターの選択(&amp;P):</translation>
    </message>
    <message>
        <source>Queue</source>
        <translation>キュー</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>場所</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Not accepting jobs</source>
        <translation>ジョブを受け付けていません</translation>
    </message>
    <message>
        <source>Idle</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Print &amp;Test Label</source>
        <translation>テストラベルを印刷(&amp;T)</translation>
    </message>
</context>
<context>
    <name>Program</name>
    <message>
        <source>Shows and changes the settings of a label printer.</source>
        <translation>ラベルプリンターの設定を表示、変更します。</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Lists the queues, the default one marked with an asterisk.</source>
        <translation>キューを一覧表示します。デフォルトのキューにはアスタリスクが付きます。</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>予期しない引数「%1」</translation>
    </message>
    <message>
        <source>there is no printer &quot;%1&quot;; --list names those there are</source>
        <translation>プリンター「%1」はありません。--list で一覧を表示します</translation>
    </message>
    <message>
        <source>Label Printer Properties</source>
        <translation>ラベルプリンターのプロパティ</translation>
    </message>
    <message>
        <source>The queue, instead of one chosen from a list.</source>
        <translation>一覧から選択せずに使用するキュー。</translation>
    </message>
    <message>
        <source>Prints a label to adjust offsets and darkness by, on the queue or the default one.</source>
        <translation>オフセットと印刷濃度を調整するためのラベルを、指定したキューまたはデフォルトのキューで印刷します。</translation>
    </message>
    <message>
        <source>Shows this help.</source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>The print service cannot be reached: %1</source>
        <translation>印刷サービスに接続できません: %1</translation>
    </message>
    <message>
        <source>No printers have been set up.</source>
        <translation>プリンターが設定されていません。</translation>
    </message>
    <message>
        <source>The test label could not be printed: %1</source>
        <translation>テストラベルを印刷できませんでした: %1</translation>
    </message>
    <message>
        <source>there is no default printer; name one with -p</source>
        <translation>デフォルトのプリンターがありません。-p で指定してください</translation>
    </message>
    <message>
        <source>The test label was sent to %1.</source>
        <translation>テストラベルを %1 に送信しました。</translation>
    </message>
    <message>
        <source>no window can be shown: neither DISPLAY nor WAYLAND_DISPLAY is set</source>
        <translation>ウィンドウを表示できません: DISPLAY も WAYLAND_DISPLAY も設定されていません</translation>
    </message>
    <message>
        <source>no window can be shown with %1</source>
        <translation>%1 ではウィンドウを表示できません</translation>
    </message>
    <message>
        <source>The default printer &quot;%1&quot; does not exist.</source>
        <translation>デフォルトのプリンター「%1」は存在しません。</translation>
    </message>
    <message>
        <source>The presets could not be saved.</source>
        <translation>プリセットを保存できませんでした。</translation>
    </message>
    <message>
        <source>The settings could not be saved: %1</source>
        <translation>設定を保存できませんでした: %1</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 と %2</translation>
    </message>
    <message>
        <source>These settings cannot be used together:</source>
        <translation>次の設定は同時に使用できません:</translation>
    </message>
    <message>
        <source>Do you want to change them to the following?</source>
        <translation>次のように変更しますか?</translation>
    </message>
</context>
<context>
    <name>QCommandLineParser</name>
    <message>
        <source>Usage: %1</source>
        <translation>使用法: %1</translation>
    </message>
    <message>
        <source>[options]</source>
        <translation>[オプション]</translation>
    </message>
    <message>
        <source>Options:</source>
        <translation>オプション:</translation>
    </message>
    <message>
        <source>Unknown option &apos;%1&apos;.</source>
        <translation>不明なオプション「%1」です。</translation>
    </message>
    <message>
        <source>Missing value after &apos;%1&apos;.</source>
        <translation>「%1」の後に値がありません。</translation>
    </message>
    <message>
        <source>Unexpected value after &apos;%1&apos;.</source>
        <translation>「%1」の後に予期しない値があります。</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>This preset contains this driver&apos;s current settings.</source>
        <translation>このプリセットには、このドライバーの現在の設定が含まれます。</translation>
    </message>
    <message>
        <source>This preset contains this driver&apos;s original default settings.</source>
        <translation>このプリセットには、このドライバーの元のデフォルト設定が含まれます。</translation>
    </message>
    <message>
        <source>%1 Printing Preferences</source>
        <translation>%1 の印刷設定</translation>
    </message>
</context>
<context>
    <name>TestLabel</name>
    <message>
        <source>Continuous</source>
        <translation>連続紙</translation>
    </message>
    <message>
        <source>Labels With Gaps</source>
        <translation>ギャップ付きラベル</translation>
    </message>
    <message>
        <source>Labels With Marks</source>
        <translation>マーク付きラベル</translation>
    </message>
    <message>
        <source>No Cut</source>
        <translation>カットしない</translation>
    </message>
    <message>
        <source>Cut After Job</source>
        <translation>ジョブ後にカット</translation>
    </message>
    <message>
        <source>Cut After Page</source>
        <translation>ページ後にカット</translation>
    </message>
    <message>
        <source>Darkness %1</source>
        <translation>印刷濃度 %1</translation>
    </message>
    <message>
        <source>Speed %1</source>
        <translation>速度 %1</translation>
    </message>
    <message>
        <source>Offset %1, %2 dots</source>
        <translation>オフセット %1, %2 ドット</translation>
    </message>
    <message>
        <source>Default settings</source>
        <translation>デフォルト設定</translation>
    </message>
    <message>
        <source>%1 x %2 mm</source>
        <translation>%1 x %2 mm</translation>
    </message>
    <message>
        <source>Test label</source>
        <translation>テストラベル</translation>
    </message>
</context>
</TS>
