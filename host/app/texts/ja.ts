<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>The link is too long, or not one line.</source>
        <translation>リンクが長すぎるか、1 行ではありません。</translation>
    </message>
    <message>
        <source>No running xbrhost waits for this link. Start the sign-in again.</source>
        <translation>このリンクを待つ xbrhost はありません。サインインをやり直してください。</translation>
    </message>
    <message>
        <source>xbrhost help tells more.</source>
        <translation>詳しくは xbrhost help をご覧ください。</translation>
    </message>
    <message>
        <source>Nearest: %1.</source>
        <translation>近いもの: %1。</translation>
    </message>
    <message>
        <source>There is no command “%1”.</source>
        <translation>コマンド「%1」はありません。</translation>
    </message>
    <message>
        <source>“%1” is one word too many.</source>
        <translation>「%1」が余分です。</translation>
    </message>
    <message>
        <source>%1 needs a value behind it.</source>
        <translation>%1 の後に値が必要です。</translation>
    </message>
    <message>
        <source>There is no option “%1” for “%2”.</source>
        <translation>「%2」にオプション「%1」はありません。</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 に値は付けられません。</translation>
    </message>
    <message>
        <source>%1 needs a whole number from 1 to %2.</source>
        <translation>%1 には 1 から %2 までの整数が必要です。</translation>
    </message>
    <message>
        <source>%1 belongs to the song before it: put it behind a song.</source>
        <translation>%1 は直前の曲に付きます。曲の後に置いてください。</translation>
    </message>
    <message>
        <source>%1 is there twice.</source>
        <translation>%1 が 2 回あります。</translation>
    </message>
    <message>
        <source>open-url needs a link.</source>
        <translation>open-url にはリンクが必要です。</translation>
    </message>
    <message>
        <source>--release tells all about the release: leave out songs and details.</source>
        <translation>--release がすべてを伝えます。曲と情報は省いてください。</translation>
    </message>
    <message>
        <source>publish needs a song, or a folder with songs.</source>
        <translation>publish には曲か、曲の入ったフォルダーが必要です。</translation>
    </message>
    <message>
        <source>--album-title and --album-artist need --album: a single bears the title and the artist of its song.</source>
        <translation>--album-title と --album-artist には --album が必要です。シングルは曲のタイトルとアーティストを使います。</translation>
    </message>
    <message>
        <source>%1 is empty; leave it out to keep what the file&apos;s tags say.</source>
        <translation>%1 が空です。ファイルのタグのままにするには省いてください。</translation>
    </message>
    <message>
        <source>%1 is not UTF-8.</source>
        <translation>%1 は UTF-8 ではありません。</translation>
    </message>
    <message>
        <source>%1 holds a line break or another control character.</source>
        <translation>%1 に改行などの制御文字があります。</translation>
    </message>
    <message>
        <source>has no panel</source>
        <translation>にはパネルがありません</translation>
    </message>
    <message>
        <source>The browser&apos;s answer to a sign-in cannot be received: %1.</source>
        <translation>サインインへのブラウザーの応答を受け取れません: %1。</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2.</source>
        <translation>「%1」を読み取れません: %2。</translation>
    </message>
    <message>
        <source>“%1” and the folders in it hold no songs.</source>
        <translation>「%1」とその中のフォルダーに曲はありません。</translation>
    </message>
    <message>
        <source>“%1” holds no songs; --recursive looks into the folders in it, too.</source>
        <translation>「%1」に曲はありません。--recursive で中のフォルダーも調べます。</translation>
    </message>
    <message>
        <source>--title and --track-number belong to one song, and “%1” is a folder.</source>
        <translation>--title と --track-number は 1 曲に付くものですが、「%1」はフォルダーです。</translation>
    </message>
    <message>
        <source>No genre holds “%1”.</source>
        <translation>「%1」を含むジャンルはありません。</translation>
    </message>
    <message>
        <source>No genre holds “%1”. Nearest: %2.</source>
        <translation>「%1」を含むジャンルはありません。近いもの: %2。</translation>
    </message>
    <message>
        <source>takes no songs</source>
        <translation>は曲を受け取りません</translation>
    </message>
</context>
<context>
    <name>LineTexts</name>
    <message>
        <source>no bytes for %1</source>
        <translation>%1 送信なし</translation>
    </message>
    <message>
        <source>waiting for the answer</source>
        <translation>応答待ち</translation>
    </message>
    <message>
        <source>%1 left, all %2</source>
        <translation>残り %1、全体 %2</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>残り %1</translation>
    </message>
</context>
<context>
    <name>Output</name>
    <message>
        <source>The browser came back without a permission. Allow the access there, or end with Ctrl-C.</source>
        <translation>ブラウザーは許可なしで戻りました。そこでアクセスを許可するか、Ctrl-C で終了してください。</translation>
    </message>
    <message>
        <source>Publish the other songs?</source>
        <translation>ほかの曲を公開しますか?</translation>
    </message>
    <message>
        <source>published</source>
        <translation>公開しました</translation>
    </message>
    <message>
        <source>not published</source>
        <translation>公開されませんでした</translation>
    </message>
    <message>
        <source>refused, details are missing</source>
        <translation>拒否されました。情報が足りません</translation>
    </message>
    <message>
        <source>(not set)</source>
        <translation>(未設定)</translation>
    </message>
    <message>
        <source>%1, rendered from “%2”</source>
        <translation>%1、「%2」からレンダリング</translation>
    </message>
    <message>
        <source>Release %1 of %2 (incomplete)</source>
        <translation>リリース %1 / %2 (不完全)</translation>
    </message>
    <message>
        <source>Release %1 of %2</source>
        <translation>リリース %1 / %2</translation>
    </message>
    <message>
        <source>  Title: %1</source>
        <translation>  タイトル: %1</translation>
    </message>
    <message>
        <source>  Artist: %1</source>
        <translation>  アーティスト: %1</translation>
    </message>
    <message>
        <source>  Genre: %1</source>
        <translation>  ジャンル: %1</translation>
    </message>
    <message>
        <source>Published %1 of %2 songs as singles.</source>
        <translation>%2 曲のうち %1 曲をシングルとして公開しました。</translation>
    </message>
    <message>
        <source>Published %1 of %2 songs as singles, as %3.</source>
        <translation>%2 曲のうち %1 曲を %3 としてシングルで公開しました。</translation>
    </message>
    <message>
        <source>Perhaps published: %1: it was sent, the answer did not come. Look at your account page.</source>
        <translation>公開された可能性: %1: 送信しましたが応答がありません。アカウントのページをご覧ください。</translation>
    </message>
    <message>
        <source>Not published: %1: %2</source>
        <translation>未公開: %1: %2</translation>
    </message>
    <message>
        <source>Waiting for your permission in the browser. If no page opened, open this address:</source>
        <translation>ブラウザーでの許可を待っています。ページが開かない場合は、このアドレスを開いてください:</translation>
    </message>
    <message>
        <source>Hand it over with: %1</source>
        <translation>戻りのリンクの渡し方: %1</translation>
    </message>
    <message>
        <source>%1%2: sending %3</source>
        <translation>%1%2: %3 を送信中</translation>
    </message>
    <message>
        <source>%1%2: %3 %, %4 of %5, %6 left, all %7 left</source>
        <translation>%1%2: %3 %、%5 のうち %4、残り %6、全体の残り %7</translation>
    </message>
    <message>
        <source>Sent %1 in %2, %3/s.</source>
        <translation>%1 を %2 で送信しました (%3/s)。</translation>
    </message>
    <message>
        <source>Link back (paste it here if the browser does not return by itself):</source>
        <translation>戻りのリンク（ブラウザーが自動で戻らない場合はここに貼り付けてください）:</translation>
    </message>
    <message>
        <source>Publish them again?</source>
        <translation>もう一度公開しますか?</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>The browser came back without a permission. Allow the access there, or cancel here.</source>
        <translation>ブラウザーから許可なしで戻りました。ブラウザーでアクセスを許可するか、ここでキャンセルしてください。</translation>
    </message>
    <message>
        <source>Signed out.</source>
        <translation>サインアウトしました。</translation>
    </message>
    <message>
        <source>Waiting for your permission in the browser.</source>
        <translation>ブラウザーでの許可を待っています。</translation>
    </message>
    <message>
        <source>Signing in…</source>
        <translation>サインインしています…</translation>
    </message>
    <message>
        <source>it does not take the songs</source>
        <translation>は曲を受け取りません</translation>
    </message>
    <message>
        <source>it does not take all songs</source>
        <translation>は一部の曲を受け取りません</translation>
    </message>
    <message>
        <source>it does not offer to upload the songs</source>
        <translation>は曲のアップロードができません</translation>
    </message>
    <message>
        <source>Nothing was sent.</source>
        <translation>何も送信されていません。</translation>
    </message>
    <message>
        <source>The service refused “%1” (%2) and gave no reason.</source>
        <translation>サービスは「%1」を拒否しました（%2）。理由は示されていません。</translation>
    </message>
    <message>
        <source>The service refused the album “%1” (%2) and gave no reason.</source>
        <translation>サービスはアルバム「%1」を拒否しました（%2）。理由は示されていません。</translation>
    </message>
    <message>
        <source>The service refused “%1” (%2): %3</source>
        <translation>サービスは「%1」を拒否しました（%2）: %3</translation>
    </message>
    <message>
        <source>The service refused the album “%1” (%2): %3</source>
        <translation>サービスはアルバム「%1」を拒否しました（%2）: %3</translation>
    </message>
    <message>
        <source>The service refused “%1” because details are missing: %2.</source>
        <translation>情報が足りないため、サービスは「%1」を拒否しました: %2。</translation>
    </message>
    <message>
        <source>The service refused the album “%1” because details are missing: %2.</source>
        <translation>情報が足りないため、サービスはアルバム「%1」を拒否しました: %2。</translation>
    </message>
    <message>
        <source>The service refused “%1” because details are missing, but none is empty here: %2</source>
        <translation>情報が足りないため、サービスは「%1」を拒否しましたが、ここに空の項目はありません: %2</translation>
    </message>
    <message>
        <source>The service refused the album “%1” because details are missing, but none is empty here: %2</source>
        <translation>情報が足りないため、サービスはアルバム「%1」を拒否しましたが、ここに空の項目はありません: %2</translation>
    </message>
    <message>
        <source>The service does not accept the stored sign-in any more.</source>
        <translation>保存されたサインインは、もうサービスに受け付けられません。</translation>
    </message>
    <message>
        <source>The service refused “%1” because it is too large (%2).</source>
        <translation>大きすぎるため（%2）、サービスは「%1」を拒否しました。</translation>
    </message>
    <message>
        <source>The service refused the album “%1” because it is too large (%2).</source>
        <translation>大きすぎるため（%2）、サービスはアルバム「%1」を拒否しました。</translation>
    </message>
    <message>
        <source>The service asks to wait a while before the next upload. “%1” was not taken.</source>
        <translation>サービスは次のアップロードまで少し待つよう求めています。「%1」は受け付けられませんでした。</translation>
    </message>
    <message>
        <source>The service asks to wait a while before the next upload. The album “%1” was not taken.</source>
        <translation>サービスは次のアップロードまで少し待つよう求めています。アルバム「%1」は受け付けられませんでした。</translation>
    </message>
    <message>
        <source>The service has a fault (%2). “%1” was not taken; nothing is wrong with the song.</source>
        <translation>サービスに障害があります（%2）。「%1」は受け付けられませんでした。曲に問題はありません。</translation>
    </message>
    <message>
        <source>The service has a fault (%2). The album “%1” was not taken; nothing is wrong with it.</source>
        <translation>サービスに障害があります（%2）。アルバム「%1」は受け付けられませんでした。アルバムに問題はありません。</translation>
    </message>
    <message>
        <source>%1 could not prove its identity: %2.</source>
        <translation>%1 は身元を証明できませんでした: %2。</translation>
    </message>
    <message>
        <source>The service at %1 cannot be reached: %2.</source>
        <translation>%1 のサービスに接続できません: %2。</translation>
    </message>
    <message>
        <source>Stopped after all of “%1” was sent, before the service answered. It may be published.</source>
        <translation>「%1」をすべて送信した後、サービスの応答前に停止しました。公開されている可能性があります。</translation>
    </message>
    <message>
        <source>Stopped after all of the album “%1” was sent, before the service answered. It may be published.</source>
        <translation>アルバム「%1」をすべて送信した後、サービスの応答前に停止しました。公開されている可能性があります。</translation>
    </message>
    <message>
        <source>The connection broke after all of “%1” was sent, before the service answered. It may be published.</source>
        <translation>「%1」をすべて送信した後、サービスの応答前に接続が切れました。公開されている可能性があります。</translation>
    </message>
    <message>
        <source>The connection broke after all of the album “%1” was sent, before the service answered. It may be published.</source>
        <translation>アルバム「%1」をすべて送信した後、サービスの応答前に接続が切れました。公開されている可能性があります。</translation>
    </message>
    <message>
        <source>“%1” was stopped at %2 of %3 and did not arrive.</source>
        <translation>「%1」は %3 のうち %2 で停止され、届きませんでした。</translation>
    </message>
    <message>
        <source>The album “%1” was stopped at %2 of %3 and did not arrive.</source>
        <translation>アルバム「%1」は %3 のうち %2 で停止され、届きませんでした。</translation>
    </message>
    <message>
        <source>The connection broke after %2 of %3. “%1” did not arrive.</source>
        <translation>%3 のうち %2 で接続が切れました。「%1」は届きませんでした。</translation>
    </message>
    <message>
        <source>The connection broke after %2 of %3. The album “%1” did not arrive.</source>
        <translation>%3 のうち %2 で接続が切れました。アルバム「%1」は届きませんでした。</translation>
    </message>
    <message>
        <source>“%2” is no longer there. “%1” was not sent.</source>
        <translation>「%2」がなくなりました。「%1」は送信されませんでした。</translation>
    </message>
    <message>
        <source>“%2” is no longer there. The album “%1” is not complete.</source>
        <translation>「%2」がなくなりました。アルバム「%1」は完全ではありません。</translation>
    </message>
    <message>
        <source>“%2” changed while it was copied. “%1” was not sent.</source>
        <translation>「%2」はコピー中に変わりました。「%1」は送信されませんでした。</translation>
    </message>
    <message>
        <source>“%2” changed while it was copied. The album “%1” is not complete.</source>
        <translation>「%2」はコピー中に変わりました。アルバム「%1」は完全ではありません。</translation>
    </message>
    <message>
        <source>There is not enough room in “%2”: %3 are needed, %4 are free. “%1” was not sent.</source>
        <translation>「%2」の空きが足りません: %3 が必要ですが、空きは %4 です。「%1」は送信されませんでした。</translation>
    </message>
    <message>
        <source>There is not enough room in “%2”: %3 are needed, %4 are free. The album “%1” was not sent.</source>
        <translation>「%2」の空きが足りません: %3 が必要ですが、空きは %4 です。アルバム「%1」は送信されませんでした。</translation>
    </message>
    <message>
        <source>The folder for copies, “%1”, cannot be written.</source>
        <translation>コピー用のフォルダー「%1」に書き込めません。</translation>
    </message>
    <message>
        <source>“%1” could not be prepared: %2. It was not sent.</source>
        <translation>「%1」を準備できませんでした: %2。送信されていません。</translation>
    </message>
    <message>
        <source>The album “%1” could not be prepared: %2. It was not sent.</source>
        <translation>アルバム「%1」を準備できませんでした: %2。送信されていません。</translation>
    </message>
    <message>
        <source>“%1” was not sent.</source>
        <translation>「%1」は送信されませんでした。</translation>
    </message>
    <message>
        <source>The album “%1” was not sent.</source>
        <translation>アルバム「%1」は送信されませんでした。</translation>
    </message>
    <message>
        <source>“%1” could not be prepared. It was not sent.</source>
        <translation>「%1」を準備できませんでした。送信されていません。</translation>
    </message>
    <message>
        <source>The album “%1” could not be prepared. It was not sent.</source>
        <translation>アルバム「%1」を準備できませんでした。送信されていません。</translation>
    </message>
    <message>
        <source>Published the album “%1” with one song.</source>
        <translation>アルバム「%1」（1 曲）を公開しました。</translation>
    </message>
    <message>
        <source>Published the album “%1” with %2 songs.</source>
        <translation>アルバム「%1」（%2 曲）を公開しました。</translation>
    </message>
    <message>
        <source>Published “%1”.</source>
        <translation>「%1」を公開しました。</translation>
    </message>
    <message>
        <source>Published %1 songs as singles.</source>
        <translation>%1 曲をシングルとして公開しました。</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>停止しました。</translation>
    </message>
    <message>
        <source>%1 of %2 songs are published.</source>
        <translation>%2 曲のうち %1 曲が公開されています。</translation>
    </message>
    <message>
        <source>Signed in.</source>
        <translation>サインインしました。</translation>
    </message>
    <message>
        <source>Signed in as %1.</source>
        <translation>%1 としてサインインしました。</translation>
    </message>
    <message>
        <source>Not signed in: the sign-in was given up.</source>
        <translation>サインインしていません: サインインは中止されました。</translation>
    </message>
    <message>
        <source>Not signed in: the service did not accept it.</source>
        <translation>サインインしていません: サービスに受け付けられませんでした。</translation>
    </message>
    <message>
        <source>Not signed in: the service refused it: %1.</source>
        <translation>サインインしていません: サービスに拒否されました: %1。</translation>
    </message>
    <message>
        <source>Nothing waits to be sent. Choose “Reset” in the menu of a song first.</source>
        <translation>送信を待つ曲はありません。まず曲のメニューで「リセット」を選んでください。</translation>
    </message>
    <message>
        <source>Published %1 of %2 songs. %3</source>
        <translation>%2 曲のうち %1 曲を公開しました。%3</translation>
    </message>
    <message>
        <source>No module was found. Songs cannot be published.</source>
        <translation>モジュールが見つかりません。曲を公開できません。</translation>
    </message>
    <message>
        <source>“%1” %2. Songs cannot be published.</source>
        <translation>「%1」%2。曲を公開できません。</translation>
    </message>
    <message>
        <source>album title</source>
        <translation>アルバム名</translation>
    </message>
    <message>
        <source>album artist</source>
        <translation>アルバムアーティスト</translation>
    </message>
    <message>
        <source>genre</source>
        <translation>ジャンル</translation>
    </message>
    <message>
        <source>song title</source>
        <translation>曲名</translation>
    </message>
    <message>
        <source>song artist</source>
        <translation>曲のアーティスト</translation>
    </message>
    <message>
        <source>“%1” lacks: %2.</source>
        <translation>「%1」に足りない項目: %2。</translation>
    </message>
    <message>
        <source>The album lacks: %1.</source>
        <translation>アルバムに足りない項目: %1。</translation>
    </message>
    <message>
        <source>The album “%1” lacks: %2.</source>
        <translation>アルバム「%1」に足りない項目: %2。</translation>
    </message>
    <message>
        <source>The service does not know the genre “%1”.</source>
        <translation>ジャンル「%1」はサービスにありません。</translation>
    </message>
    <message>
        <source>The service does not know the genre “%1”. Nearest: %2.</source>
        <translation>ジャンル「%1」はサービスにありません。近いもの: %2。</translation>
    </message>
    <message>
        <source>“%1” has the genre “%2”, which the service does not know.</source>
        <translation>「%1」のジャンル「%2」はサービスにありません。</translation>
    </message>
    <message>
        <source>“%1” has the genre “%2”, which the service does not know. Nearest: %3.</source>
        <translation>「%1」のジャンル「%2」はサービスにありません。近いもの: %3。</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is not there.</source>
        <translation>「%1」は公開できません: ファイルがありません。</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it cannot be read.</source>
        <translation>「%1」は公開できません: 読み取れません。</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it cannot be read (%2).</source>
        <translation>「%1」は公開できません: 読み取れません（%2）。</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is not a file.</source>
        <translation>「%1」は公開できません: ファイルではありません。</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is %2, not %3 as its name says.</source>
        <translation>「%1」は公開できません: 名前は %3 ですが、中身は %2 です。</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is cut off.</source>
        <translation>「%1」は公開できません: 途中で切れています。</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is cut off: %2 of %3.</source>
        <translation>「%1」は公開できません: 途中で切れています（%3 のうち %2）。</translation>
    </message>
    <message>
        <source>“%1” cannot be published: its sample rate of %2 cannot be right.</source>
        <translation>「%1」は公開できません: サンプルレート %2 は正しくありません。</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it holds samples that are not numbers.</source>
        <translation>「%1」は公開できません: 数値でないサンプルがあります。</translation>
    </message>
    <message>
        <source>“%1” cannot be published: its name is not UTF-8.</source>
        <translation>「%1」は公開できません: 名前が UTF-8 ではありません。</translation>
    </message>
    <message>
        <source>“%1” cannot be published: its name holds control characters.</source>
        <translation>「%1」は公開できません: 名前に制御文字があります。</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it would have to become %2, which is not possible.</source>
        <translation>「%1」は公開できません: %2 に変換する必要がありますが、できません。</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it holds no audio that can be read.</source>
        <translation>「%1」は公開できません: 読み取れる音声がありません。</translation>
    </message>
    <message>
        <source>The settings of %1 cannot be read from “%2”.</source>
        <translation>%1 の設定を「%2」から読み込めません。</translation>
    </message>
    <message>
        <source>%1 is not set up: %2 is wrong in “%3”, section [%4].</source>
        <translation>%1 は設定されていません: 「%3」のセクション [%4] の %2 が正しくありません。</translation>
    </message>
    <message>
        <source>%1 is not set up: %2 is missing in “%3”, section [%4].</source>
        <translation>%1 は設定されていません: 「%3」のセクション [%4] に %2 がありません。</translation>
    </message>
    <message>
        <source>“%1” is there twice.</source>
        <translation>「%1」が 2 回あります。</translation>
    </message>
    <message>
        <source>“%1” and “%2” have the same file name; in an album each song needs its own.</source>
        <translation>「%1」と「%2」のファイル名が同じです。アルバムでは曲ごとに別の名前が必要です。</translation>
    </message>
    <message>
        <source>“%1” and “%2” both have the number %3.</source>
        <translation>「%1」と「%2」はどちらも %3 番です。</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>残り %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>“%1” is sent. Waiting for the service&apos;s answer.</source>
        <translation>「%1」を送信しました。サービスの応答を待っています。</translation>
    </message>
    <message>
        <source>Sending “%1”: no bytes have left for %2 s. Waiting for the connection.</source>
        <translation>「%1」を送信中: %2 秒間データが送られていません。接続を待っています。</translation>
    </message>
    <message>
        <source>Sending the album “%1”</source>
        <translation>アルバム「%1」を送信中</translation>
    </message>
    <message>
        <source>Sending “%1”, %2 of %3</source>
        <translation>「%1」を送信中 (%2 / %3)</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 時間 %2 分</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>All: %1</source>
        <translation>全体: %1</translation>
    </message>
    <message>
        <source>Preparing one song: %1 of %2. Nothing is sent yet.</source>
        <translation>1 曲を準備しています: %1 / %2。まだ何も送信されていません。</translation>
    </message>
    <message>
        <source>Preparing %1 songs: %2 of %3. Nothing is sent yet.</source>
        <translation>%1 曲を準備しています: %2 / %3。まだ何も送信されていません。</translation>
    </message>
    <message>
        <source>An upload is running.</source>
        <translation>送信中です。</translation>
    </message>
    <message>
        <source>Hand over songs first.</source>
        <translation>先に曲を渡してください。</translation>
    </message>
    <message>
        <source>Sign in first.</source>
        <translation>先にサインインしてください。</translation>
    </message>
    <message>
        <source>All songs are published.</source>
        <translation>すべての曲が公開されています。</translation>
    </message>
    <message>
        <source>Run the same command again.</source>
        <translation>同じコマンドをもう一度実行してください。</translation>
    </message>
    <message>
        <source>Run the same command with the songs that are not published to send the rest.</source>
        <translation>残りを送るには、公開されていない曲で同じコマンドを実行してください。</translation>
    </message>
    <message>
        <source>Try again later.</source>
        <translation>後でもう一度お試しください。</translation>
    </message>
    <message>
        <source>Choose one with --genre.</source>
        <translation>--genre で選んでください。</translation>
    </message>
    <message>
        <source>Name it once.</source>
        <translation>一度だけ指定してください。</translation>
    </message>
    <message>
        <source>Rename one of them.</source>
        <translation>どちらかの名前を変えてください。</translation>
    </message>
    <message>
        <source>--skip-unreadable leaves it out.</source>
        <translation>--skip-unreadable で省けます。</translation>
    </message>
    <message>
        <source>Put it back, then run the same command again.</source>
        <translation>元に戻してから、同じコマンドをもう一度実行してください。</translation>
    </message>
    <message>
        <source>Make room, or set TMPDIR to another folder.</source>
        <translation>空きを作るか、TMPDIR に別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>Set TMPDIR to another folder.</source>
        <translation>TMPDIR に別のフォルダーを指定してください。</translation>
    </message>
    <message>
        <source>--track-number sets it.</source>
        <translation>--track-number で設定できます。</translation>
    </message>
    <message>
        <source>Look at your account page before you send it again.</source>
        <translation>もう一度送る前に、アカウントのページをご覧ください。</translation>
    </message>
    <message>
        <source>Check ServerURL and this computer&apos;s clock.</source>
        <translation>ServerURL とこのコンピューターの時計を確認してください。</translation>
    </message>
    <message>
        <source>xbrhost sign-in renews it.</source>
        <translation>xbrhost sign-in で更新できます。</translation>
    </message>
    <message>
        <source>xbrhost sign-in signs in.</source>
        <translation>xbrhost sign-in でサインインします。</translation>
    </message>
    <message>
        <source>--module names one.</source>
        <translation>--module で指定できます。</translation>
    </message>
    <message>
        <source>Add it with %1.</source>
        <translation>%1 で追加してください。</translation>
    </message>
    <message>
        <source>Add them with %1.</source>
        <translation>%1 で追加してください。</translation>
    </message>
    <message>
        <source>The service asks to wait %2 before the next upload. “%1” was not taken.</source>
        <translation>サービスは次のアップロードまで %2 待つよう求めています。「%1」は受け付けられませんでした。</translation>
    </message>
    <message>
        <source>The service asks to wait %2 before the next upload. The album “%1” was not taken.</source>
        <translation>サービスは次のアップロードまで %2 待つよう求めています。アルバム「%1」は受け付けられませんでした。</translation>
    </message>
    <message>
        <source>Waiting for the keyring to be unlocked.</source>
        <translation>キーリングのロック解除を待っています。</translation>
    </message>
    <message>
        <source>Waiting for the keyring to answer.</source>
        <translation>キーリングの応答を待っています。</translation>
    </message>
    <message>
        <source>The web browser could not be started: %1. Copy the address and open it in a browser.</source>
        <translation>ウェブブラウザーを起動できませんでした: %1。アドレスをコピーしてブラウザーで開いてください。</translation>
    </message>
    <message>
        <source>The web browser could not be started: %1.</source>
        <translation>ウェブブラウザーを起動できませんでした: %1。</translation>
    </message>
    <message>
        <source>Signed in as %1, until the program ends: this computer has no keyring.</source>
        <translation>%1 としてサインインしました。プログラムが終わるまで有効です: このコンピューターにはキーリングがありません。</translation>
    </message>
    <message>
        <source>Not signed in: this computer has no keyring.</source>
        <translation>サインインしていません: このコンピューターにはキーリングがありません。</translation>
    </message>
    <message>
        <source>No keyring can be reached from here: nothing was removed.</source>
        <translation>ここからアクセスできるキーリングがありません: 何も削除されていません。</translation>
    </message>
    <message>
        <source>Signed in as %1, until the program ends: the keyring was not unlocked.</source>
        <translation>%1 としてサインインしました。プログラムが終わるまで有効です: キーリングのロックが解除されませんでした。</translation>
    </message>
    <message>
        <source>The keyring was not unlocked: the stored sign-in cannot be read.</source>
        <translation>キーリングのロックが解除されませんでした: 保存されたサインインを読み取れません。</translation>
    </message>
    <message>
        <source>The keyring was not unlocked: the stored sign-in may still be there.</source>
        <translation>キーリングのロックが解除されませんでした: 保存されたサインインがまだ残っている可能性があります。</translation>
    </message>
    <message>
        <source>Signed in as %1, until the program ends: the keyring does not answer.</source>
        <translation>%1 としてサインインしました。プログラムが終わるまで有効です: キーリングが応答しません。</translation>
    </message>
    <message>
        <source>The keyring does not answer: the stored sign-in cannot be read.</source>
        <translation>キーリングが応答しません: 保存されたサインインを読み取れません。</translation>
    </message>
    <message>
        <source>The keyring does not answer: the stored sign-in may still be there.</source>
        <translation>キーリングが応答しません: 保存されたサインインがまだ残っている可能性があります。</translation>
    </message>
    <message>
        <source>The service does not say who is signed in; it may not be %1.</source>
        <translation>サービスは誰がサインインしているかを示しません。%1 ではない可能性があります。</translation>
    </message>
    <message>
        <source>Signed in as %1, not as %2.</source>
        <translation>%2 ではなく %1 としてサインインしています。</translation>
    </message>
    <message>
        <source>A sign-in is stored, but the service could not be asked: %1.</source>
        <translation>サインインは保存されていますが、サービスに確認できませんでした: %1。</translation>
    </message>
    <message>
        <source>Not signed in: the service sent an answer that cannot be used.</source>
        <translation>サインインしていません: サービスから使用できない応答が届きました。</translation>
    </message>
    <message>
        <source>Not signed in.</source>
        <translation>サインインしていません。</translation>
    </message>
    <message>
        <source>This is not a link back: it begins with “%1:”.</source>
        <translation>これは戻りリンクではありません: 「%1:」で始まっています。</translation>
    </message>
    <message>
        <source>This link back belongs to another sign-in. Open the address again.</source>
        <translation>この戻りリンクは別のサインインのものです。アドレスをもう一度開いてください。</translation>
    </message>
    <message>
        <source>Nobody was signed in.</source>
        <translation>誰もサインインしていませんでした。</translation>
    </message>
    <message>
        <source>cannot sign out</source>
        <translation>サインアウトできません</translation>
    </message>
    <message>
        <source>Unlock it, then run the same command again.</source>
        <translation>ロックを解除してから、同じコマンドをもう一度実行してください。</translation>
    </message>
    <message>
        <source>xbrhost sign-out signs out.</source>
        <translation>xbrhost sign-out でサインアウトします。</translation>
    </message>
    <message>
        <source>it answered %1</source>
        <translation>応答は %1 でした</translation>
    </message>
    <message>
        <source>%1 is not set up: %2 is not encrypted, and only this computer may be reached that way.</source>
        <translation>%1 は設定されていません: %2 は暗号化されておらず、そのようにアクセスできるのはこのコンピューターだけです。</translation>
    </message>
    <message>
        <source>--again sends them again.</source>
        <translation>--again でもう一度送信できます。</translation>
    </message>
    <message>
        <source>%1 of %2 songs were published from this computer before.</source>
        <translation>%2 曲のうち %1 曲は、以前にこのコンピューターから公開されています。</translation>
    </message>
    <message>
        <source>“%1” was published from this computer on %2.</source>
        <translation>「%1」は %2 にこのコンピューターから公開されました。</translation>
    </message>
</context>
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
    <name>xbr::host::DesktopNotification</name>
    <message>
        <source>Show</source>
        <translation>表示</translation>
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
    <name>xbr::host::HandOver</name>
    <message numerus="yes">
        <source>It holds edits of %n song(s) that have not been sent.</source>
        <translation>
            <numerusform>%n 曲の未送信の変更があります。</numerusform>
        </translation>
    </message>
    <message>
        <source>It holds the results of the last upload.</source>
        <translation>前回の送信結果があります。</translation>
    </message>
    <message>
        <source>Replace the songs in the panel?</source>
        <translation>パネルの曲を置き換えますか?</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>そのままにする(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>置き換える(&amp;R)</translation>
    </message>
    <message>
        <source>The other songs can be handed over without them.</source>
        <translation>ほかの曲はそれらなしで渡せます。</translation>
    </message>
    <message>
        <source>Leave out songs?</source>
        <translation>曲を除きますか?</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Leave out</source>
        <translation>除く(&amp;L)</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) handed over to the panel; nothing is sent yet. Check the details there, then upload.</source>
        <translation>
            <numerusform>%n 曲をパネルに渡しました。まだ何も送信されていません。情報を確認してからアップロードしてください。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>表示(&amp;S)</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) lack details that the service needs. “%2”: %3.</source>
        <translation>
            <numerusform>%n 曲中 %1 曲に、サービスに必要な情報が足りません。「%2」: %3。</numerusform>
        </translation>
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
    <name>xbr::host::KeyringSheet</name>
    <message>
        <source>Keyring</source>
        <translation>キーリング</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
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
        <source>&amp;Stop and Quit</source>
        <translation>中止して終了(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Keep Uploading</source>
        <translation>アップロードを続ける(&amp;K)</translation>
    </message>
    <message>
        <source>Hands the selected songs, or all, over to the panel; nothing is sent yet</source>
        <translation>選択した曲、またはすべての曲をパネルに渡します。まだ何も送信されません</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) in the panel have edits that were not sent; they would be lost. The list comes back at the next start.</source>
        <translation>
            <numerusform>パネルの %n 曲に未送信の変更があり、失われます。一覧は次回の起動時に戻ります。</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop the upload?</source>
        <translation>送信を停止しますか?</translation>
    </message>
    <message>
        <source>Quit without publishing?</source>
        <translation>公開せずに終了しますか?</translation>
    </message>
    <message>
        <source>&amp;Keep Editing</source>
        <translation>編集を続ける(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
</context>
<context>
    <name>xbr::host::PanelMemory</name>
    <message>
        <source>Track number</source>
        <translation>トラック番号</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) removed from the panel.</source>
        <translation>
            <numerusform>%n 曲をパネルから取り除きました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 changed in %n song(s).</source>
        <translation>
            <numerusform>%n 曲の「%1」を変更しました。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::PanelNotices</name>
    <message numerus="yes">
        <source>%1 of %n song(s) are published; the rest would not be.</source>
        <translation>
            <numerusform>%n 曲中 %1 曲が公開済みです。残りは公開されません。</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is being sent.</source>
        <translation>「%1」を送信中です。</translation>
    </message>
    <message>
        <source>Published %1</source>
        <translation>%1 に公開</translation>
    </message>
    <message>
        <source>Published %1 as %2</source>
        <translation>%1 に %2 として公開</translation>
    </message>
    <message>
        <source>Send without these details?</source>
        <translation>この情報なしで送信しますか?</translation>
    </message>
    <message>
        <source>“%1”: %2. The service will probably refuse it. Nothing is sent yet.</source>
        <translation>「%1」: %2。サービスに拒否される可能性があります。まだ何も送信されていません。</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>表示(&amp;S)</translation>
    </message>
    <message>
        <source>Send &amp;Anyway</source>
        <translation>それでも送信(&amp;A)</translation>
    </message>
    <message>
        <source>Publish again?</source>
        <translation>もう一度公開しますか?</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Publish &amp;Again</source>
        <translation>もう一度公開(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Leave them out</source>
        <translation>除く(&amp;L)</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) were published from this computer before.</source>
        <translation>
            <numerusform>%n 曲中 %1 曲は、このコンピューターからすでに公開されています。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>再試行(&amp;T)</translation>
    </message>
    <message>
        <source>A&amp;ccount page</source>
        <translation>アカウントページ(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Leave out</source>
        <translation>除く(&amp;L)</translation>
    </message>
    <message>
        <source>Sign &amp;in</source>
        <translation>サインイン(&amp;I)</translation>
    </message>
</context>
<context>
    <name>xbr::host::ProgressRow</name>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>End the upload; what has arrived stays published</source>
        <translation>送信を終了します。届いたものは公開されたままです</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>進行状況</translation>
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
    <name>xbr::host::Selection</name>
    <message>
        <source>“%1” is on its way and cannot be changed now.</source>
        <translation>「%1」は送信中のため、今は変更できません。</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) selected: an edit changes all of them.</source>
        <translation>
            <numerusform>%n 曲を選択中: 変更はすべてに適用されます。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>≠ %n value(s)</source>
        <translation>
            <numerusform>≠ %n 個の値</numerusform>
        </translation>
    </message>
    <message>
        <source>same</source>
        <translation>同じ</translation>
    </message>
    <message numerus="yes">
        <source>%n different value(s): %1</source>
        <translation>
            <numerusform>%n 種類の値: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::SignInStrip</name>
    <message>
        <source>Copy the address</source>
        <translation>アドレスをコピー</translation>
    </message>
    <message>
        <source>Link back</source>
        <translation>戻りリンク</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>続行</translation>
    </message>
    <message>
        <source>Nothing happened?</source>
        <translation>何も起きませんか？</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>コピーしました</translation>
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
        <source>Audio files</source>
        <translation>音声ファイル</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongCommands</name>
    <message numerus="yes">
        <source>%n song(s) added.</source>
        <translation>
            <numerusform>%n 曲を追加しました。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) added; %1 were in the list already.</source>
        <translation>
            <numerusform>%n 曲を追加しました。%1 曲はすでに一覧にあります。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) removed from the list; the files stay.</source>
        <translation>
            <numerusform>%n 曲を一覧から取り除きました。ファイルは残ります。</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>表示(&amp;S)</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) need a look before they can be published. %2</source>
        <translation>
            <numerusform>%n 曲中 %1 曲は公開前に確認が必要です。%2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) from last time.</source>
        <translation>
            <numerusform>前回の %n 曲です。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) from last time; %1 no longer there.</source>
        <translation>
            <numerusform>前回の %n 曲です。%1は見つかりません。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n 個のファイル</numerusform>
        </translation>
    </message>
    <message>
        <source>Start &amp;Empty</source>
        <translation>空で始める(&amp;E)</translation>
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
    <message>
        <source>Mark</source>
        <translation>印</translation>
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
    <message>
        <source>Show each song</source>
        <translation>曲ごとに表示</translation>
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
    <message>
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message>
        <source>Red&amp;o</source>
        <translation>やり直す(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Next Problem</source>
        <translation>次の問題(&amp;N)</translation>
    </message>
    <message>
        <source>&amp;Previous Problem</source>
        <translation>前の問題(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>再試行(&amp;T)</translation>
    </message>
</context>
<context>
    <name>xbr::host::WindowFront</name>
    <message>
        <source>%1, border %2.%3</source>
        <translation>%1、インターフェース %2.%3</translation>
    </message>
    <message>
        <source>The browser&apos;s answer to a sign-in cannot be received: %1.</source>
        <translation>サインインに対するブラウザーの応答を受け取れません: %1.</translation>
    </message>
</context>
</TS>
