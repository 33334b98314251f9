<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>xbr::host::AboutDialog</name>
    <message>
        <source>About xbrhost</source>
        <translation>xbrhost について</translation>
    </message>
    <message>
        <source>Publishes finished songs through the modules of a workstation.</source>
        <translation>ワークステーションのモジュールを通じて、完成した曲を公開します。</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>閉じる(&amp;C)</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>コピー(&amp;P)</translation>
    </message>
    <message>
        <source>Copy the versions</source>
        <translation>バージョン情報をコピー</translation>
    </message>
</context>
<context>
    <name>xbr::host::DockTitle</name>
    <message>
        <source>Float or dock</source>
        <translation>切り離し／ドッキング</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>隠す</translation>
    </message>
</context>
<context>
    <name>xbr::host::EmptyState</name>
    <message>
        <source>&amp;Add Songs…</source>
        <translation>曲を追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Drop your finished songs here</source>
        <translation>完成した曲をここにドロップ</translation>
    </message>
    <message>
        <source>WAV, AIFF, FLAC, MP3 or Ogg, one by one or a whole folder</source>
        <translation>WAV、AIFF、FLAC、MP3、Ogg。1曲ずつでも、フォルダーごとでも</translation>
    </message>
</context>
<context>
    <name>xbr::host::FileSelector</name>
    <message>
        <source>All usable files</source>
        <translation>使用できるすべてのファイル</translation>
    </message>
    <message>
        <source>Choose Files</source>
        <translation>ファイルを選択</translation>
    </message>
</context>
<context>
    <name>xbr::host::GadgetDock</name>
    <message>
        <source>The form of this panel cannot be shown.</source>
        <translation>このパネルのフォームを表示できません。</translation>
    </message>
</context>
<context>
    <name>xbr::host::Header</name>
    <message>
        <source>Songs</source>
        <translation>曲</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>まだありません</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s)</source>
        <translation>
            <numerusform>%n曲</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::MainWindow</name>
    <message>
        <source>Songs – xbrhost</source>
        <translation>曲 – xbrhost</translation>
    </message>
    <message>
        <source>Add Songs</source>
        <translation>曲を追加</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Publish the selected songs, or all</source>
        <translation>選択した曲、またはすべての曲を公開</translation>
    </message>
    <message>
        <source>Some songs are still being read; try again in a moment.</source>
        <translation>まだ読み込み中の曲があります。少し待ってからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Add songs first.</source>
        <translation>先に曲を追加してください。</translation>
    </message>
    <message>
        <source>Wait until the upload that runs has ended.</source>
        <translation>実行中のアップロードが終わるまでお待ちください。</translation>
    </message>
    <message>
        <source>Stop the Upload?</source>
        <translation>アップロードを中止しますか？</translation>
    </message>
    <message>
        <source>An upload is running.</source>
        <translation>アップロードを実行中です。</translation>
    </message>
    <message>
        <source>When you quit now, it is stopped; songs that have not arrived are not published.</source>
        <translation>今終了すると中止されます。届いていない曲は公開されません。</translation>
    </message>
    <message>
        <source>&amp;Stop and Quit</source>
        <translation>中止して終了(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Keep Uploading</source>
        <translation>アップロードを続ける(&amp;K)</translation>
    </message>
</context>
<context>
    <name>xbr::host::ProgressSheet</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Working on</source>
        <translation>処理中</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>中止しています…</translation>
    </message>
</context>
<context>
    <name>xbr::host::Publishing</name>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>「%1」を読み込めません。</translation>
    </message>
    <message>
        <source>“%1” is of a kind that cannot be published.</source>
        <translation>「%1」は公開できない種類のファイルです。</translation>
    </message>
    <message>
        <source>Rendering was cancelled; nothing was handed over.</source>
        <translation>レンダリングを中止しました。何も渡していません。</translation>
    </message>
    <message>
        <source>“%1” cannot be used.</source>
        <translation>「%1」を使用できません。</translation>
    </message>
    <message>
        <source>“%1” does not take the songs.</source>
        <translation>「%1」は曲を受け付けません。</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) handed over. Complete the information, then upload.</source>
        <translation>
            <numerusform>%n曲を渡しました。情報を入力してからアップロードしてください。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::ServiceWatch</name>
    <message>
        <source>Disconnected.</source>
        <translation>切断しました。</translation>
    </message>
    <message>
        <source>Continue in your web browser: allow the access there.</source>
        <translation>ウェブブラウザーで続行し、アクセスを許可してください。</translation>
    </message>
    <message>
        <source>Signing in…</source>
        <translation>サインインしています…</translation>
    </message>
    <message>
        <source>Connected.</source>
        <translation>接続しました。</translation>
    </message>
    <message>
        <source>Uploading “%1”: %2 %</source>
        <translation>「%1」をアップロード中: %2 %</translation>
    </message>
    <message>
        <source>Your sign-in has expired or was withdrawn. Disconnect, then connect again.</source>
        <translation>サインインの有効期限が切れたか、取り消されました。切断してから接続し直してください。</translation>
    </message>
    <message>
        <source>Connected as %1.</source>
        <translation>%1 として接続しました。</translation>
    </message>
    <message>
        <source>The service did not accept the sign-in. Try to connect again.</source>
        <translation>サービスがサインインを受け付けませんでした。もう一度接続してください。</translation>
    </message>
    <message>
        <source>Not connected yet: the browser has not come back with a permission.</source>
        <translation>まだ接続していません。ブラウザーから許可が届いていません。</translation>
    </message>
    <message>
        <source>The upload was cancelled before anything was sent.</source>
        <translation>何も送信しないうちにアップロードを中止しました。</translation>
    </message>
    <message numerus="yes">
        <source>Published: %n song(s).</source>
        <translation>
            <numerusform>%n曲を公開しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>The service needs more information: fill in the marked fields, then upload again.</source>
        <translation>情報が足りません。印の付いた欄に入力してから、もう一度アップロードしてください。</translation>
    </message>
    <message>
        <source>Nothing was sent: the upload could not be prepared.</source>
        <translation>何も送信されませんでした。アップロードを準備できませんでした。</translation>
    </message>
    <message>
        <source>Nothing was sent: %1</source>
        <translation>何も送信されませんでした: %1</translation>
    </message>
    <message numerus="yes">
        <source>The service did not take %n song(s). Try again later.</source>
        <translation>
            <numerusform>%n曲が受け付けられませんでした。後でもう一度お試しください。</numerusform>
        </translation>
    </message>
    <message>
        <source>Uploading…</source>
        <translation>アップロード中…</translation>
    </message>
    <message>
        <source>The browser came back without a permission. Allow the access there, or cancel here.</source>
        <translation>ブラウザーから許可なしで戻りました。ブラウザーでアクセスを許可するか、ここでキャンセルしてください。</translation>
    </message>
</context>
<context>
    <name>xbr::host::Song</name>
    <message>
        <source>%1 bit</source>
        <translation>%1 ビット</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <source>This is no audio that can be read.</source>
        <translation>読み込める音声ではありません。</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>ファイルを読み込めません。</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>音声ファイル</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongListModel</name>
    <message>
        <source>Reading…</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>アーティスト</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>アルバム</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>アルバムアーティスト</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>ジャンル</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>トラック番号</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongView</name>
    <message>
        <source>Songs</source>
        <translation>曲</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
</context>
<context>
    <name>xbr::host::StatusLine</name>
    <message>
        <source>Status</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>準備完了</translation>
    </message>
</context>
<context>
    <name>xbr::host::WindowActions</name>
    <message>
        <source>Menus</source>
        <translation>メニュー</translation>
    </message>
    <message>
        <source>&amp;Publish</source>
        <translation>公開(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;About xbrhost</source>
        <translation>xbrhost について(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Add Songs…</source>
        <translation>曲を追加(&amp;A)…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Add songs (%1)</source>
        <translation>曲を追加 (%1)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit Cell</source>
        <translation>セルを編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>取り除く(&amp;R)</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>取り除く</translation>
    </message>
    <message>
        <source>Remove the selected songs from the list; the files stay</source>
        <translation>選択した曲をリストから取り除きます。ファイルは残ります</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>上へ(&amp;U)</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>下へ(&amp;D)</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Next Area</source>
        <translation>次の領域(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>外観(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>レイアウトをリセット(&amp;R)</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>デスクトップに合わせる(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>ライト(&amp;L)</translation>
    </message>
    <message>
        <source>Da&amp;rk</source>
        <translation>ダーク(&amp;R)</translation>
    </message>
</context>
<context>
    <name>xbr::host::WindowFront</name>
    <message>
        <source>%1, border %2.%3</source>
        <translation>%1、インターフェース %2.%3</translation>
    </message>
    <message>
        <source>Songs cannot be published: %1</source>
        <translation>曲を公開できません: %1</translation>
    </message>
    <message>
        <source>Songs cannot be published: no module was found.</source>
        <translation>曲を公開できません: モジュールが見つかりません。</translation>
    </message>
    <message>
        <source>The browser&apos;s answer to a sign-in cannot be received: %1</source>
        <translation>サインインに対するブラウザーの応答を受け取れません: %1</translation>
    </message>
</context>
<context>
    <name>xbr::host::Wording</name>
    <message>
        <source>The settings of %1 cannot be read from “%2”.</source>
        <translation>%1 の設定を「%2」から読み込めません。</translation>
    </message>
    <message>
        <source>%1 is not set up yet. Put %2 into “%3”, section [%4], one “key = value” a line.</source>
        <translation>%1 はまだ設定されていません。%2 を「%3」のセクション [%4] に、1行に1つ「キー = 値」の形で書いてください。</translation>
    </message>
    <message>
        <source>%1 is not set up properly. Correct %2 in “%3”, section [%4].</source>
        <translation>%1 の設定が正しくありません。「%3」のセクション [%4] の %2 を直してください。</translation>
    </message>
</context>
</TS>
