<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>brindlex</name>
    <message>
        <source>User authorization pending...</source>
        <translation>ユーザーの認証を待っています...</translation>
    </message>
    <message>
        <source>Sign in on the page that has opened in your web browser, then come back here. If no page has opened, choose &quot;Retry&quot;.</source>
        <translation>ブラウザーで開いたページでサインインしてから、ここに戻ってください。ページが開かない場合は「再試行」を選んでください。</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Getting access token...</source>
        <translation>アクセストークンを取得しています...</translation>
    </message>
    <message>
        <source>You are now connected to Brindlex.</source>
        <translation>Brindlex に接続しました。</translation>
    </message>
    <message>
        <source>Attempt to connect with Brindlex failed!</source>
        <translation>Brindlex に接続できませんでした。</translation>
    </message>
    <message>
        <source>Check your internet connection, then choose &quot;Retry&quot;.</source>
        <translation>インターネット接続を確認してから「再試行」を選んでください。</translation>
    </message>
    <message>
        <source>Refreshing access token...</source>
        <translation>アクセストークンを更新しています...</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>再試行(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>キャンセル(&amp;C)</translation>
    </message>
    <message>
        <source>Connect to Brindlex</source>
        <translation>Brindlex に接続</translation>
    </message>
    <message>
        <source>Publish your music with Brindlex</source>
        <translation>Brindlex で音楽を公開</translation>
    </message>
    <message>
        <source>Sign in to send finished songs straight from your project. Your web browser opens for the sign-in.</source>
        <translation>サインインすると、完成した曲をプロジェクトから直接送信できます。サインインにはブラウザーが開きます。</translation>
    </message>
    <message>
        <source>&amp;Connect to Brindlex</source>
        <translation>Brindlex に接続(&amp;C)</translation>
    </message>
    <message>
        <source>Brindlex Client</source>
        <translation>Brindlex クライアント</translation>
    </message>
    <message>
        <source>Signed in as</source>
        <translation>サインイン中のアカウント</translation>
    </message>
    <message>
        <source>Opens your account page in the web browser</source>
        <translation>アカウントのページをブラウザーで開きます</translation>
    </message>
    <message>
        <source>&amp;DISCONNECT</source>
        <translation>接続を解除(&amp;D)</translation>
    </message>
    <message>
        <source>Signs out of Brindlex on this computer</source>
        <translation>このコンピューターで Brindlex からサインアウトします</translation>
    </message>
    <message>
        <source>Trac&amp;ks</source>
        <translation>トラック(&amp;K)</translation>
    </message>
    <message>
        <source>&amp;Singles</source>
        <translation>シングル(&amp;S)</translation>
    </message>
    <message>
        <source>Each track becomes a release of its own</source>
        <translation>トラックごとに 1 つのリリースになります</translation>
    </message>
    <message>
        <source>Al&amp;bum</source>
        <translation>アルバム(&amp;B)</translation>
    </message>
    <message>
        <source>All tracks become one release</source>
        <translation>すべてのトラックが 1 つのリリースになります</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>トラック</translation>
    </message>
    <message>
        <source>Drop WAV, FLAC or MP3 files here, or choose them with &quot;Add Tracks&quot;.</source>
        <translation>WAV、FLAC、MP3 のファイルをここにドロップするか、「トラックを追加」で選んでください。</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>&amp;Add Tracks</source>
        <translation>トラックを追加(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Remove all</source>
        <translation>すべて削除(&amp;R)</translation>
    </message>
    <message>
        <source>No track selected</source>
        <translation>トラックが選択されていません</translation>
    </message>
    <message>
        <source>Song</source>
        <translation>曲</translation>
    </message>
    <message>
        <source>S&amp;ong title</source>
        <translation>曲のタイトル(&amp;O)</translation>
    </message>
    <message>
        <source>Required: the song has no title</source>
        <translation>必須: 曲のタイトルがありません</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>必須</translation>
    </message>
    <message>
        <source>Song art&amp;ist</source>
        <translation>曲のアーティスト(&amp;I)</translation>
    </message>
    <message>
        <source>Required: the song has no artist</source>
        <translation>必須: 曲のアーティストがありません</translation>
    </message>
    <message>
        <source>Track &amp;number</source>
        <translation>トラック番号(&amp;N)</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>リリース</translation>
    </message>
    <message>
        <source>Album &amp;title</source>
        <translation>アルバムのタイトル(&amp;T)</translation>
    </message>
    <message>
        <source>Required: the release has no title</source>
        <translation>必須: リリースのタイトルがありません</translation>
    </message>
    <message>
        <source>Albu&amp;m artist</source>
        <translation>アルバムのアーティスト(&amp;M)</translation>
    </message>
    <message>
        <source>Required: the release has no artist</source>
        <translation>必須: リリースのアーティストがありません</translation>
    </message>
    <message>
        <source>&amp;Genre</source>
        <translation>ジャンル(&amp;G)</translation>
    </message>
    <message>
        <source>Type to find</source>
        <translation>入力して検索</translation>
    </message>
    <message>
        <source>Required: the release has no genre</source>
        <translation>必須: リリースのジャンルがありません</translation>
    </message>
    <message>
        <source>&amp;Upload</source>
        <translation>アップロード(&amp;U)</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Missing Information</source>
        <translation>情報が不足しています</translation>
    </message>
    <message>
        <source>Preparing Brindlex Upload</source>
        <translation>Brindlex へのアップロードを準備しています</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>タイトル</translation>
    </message>
    <message>
        <source>Upload to Brindlex</source>
        <translation>Brindlex にアップロード</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>すべて再読み込み</translation>
    </message>
    <message>
        <source>Pub&amp;lish</source>
        <translation>公開(&amp;L)</translation>
    </message>
    <message>
        <source>Shows the songs that you publish</source>
        <translation>公開する曲を表示します</translation>
    </message>
    <message>
        <source>Ne&amp;ws</source>
        <translation>ニュース(&amp;W)</translation>
    </message>
    <message>
        <source>Shows the news of Brindlex</source>
        <translation>Brindlex のニュースを表示します</translation>
    </message>
    <message>
        <source>Read more</source>
        <translation>続きを読む</translation>
    </message>
    <message>
        <source>Opens the whole article in the web browser</source>
        <translation>記事の全文を Web ブラウザーで開きます</translation>
    </message>
    <message>
        <source>News</source>
        <translation>ニュース</translation>
    </message>
    <message>
        <source>Loading the news...</source>
        <translation>ニュースを読み込んでいます...</translation>
    </message>
    <message>
        <source>There is no news at the moment.</source>
        <translation>現在ニュースはありません。</translation>
    </message>
    <message>
        <source>The news could not be loaded. Check your internet connection, then try again.</source>
        <translation>ニュースを読み込めませんでした。インターネット接続を確認してから、もう一度お試しください。</translation>
    </message>
</context>
</TS>
