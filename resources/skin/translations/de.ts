<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>brindlex</name>
    <message>
        <source>User authorization pending...</source>
        <translation>Warten auf die Anmeldung...</translation>
    </message>
    <message>
        <source>Sign in on the page that has opened in your web browser, then come back here. If no page has opened, choose &quot;Retry&quot;.</source>
        <translation>Melden Sie sich auf der Seite an, die sich im Webbrowser geöffnet hat, und kehren Sie dann hierher zurück. Hat sich keine Seite geöffnet, wählen Sie „Erneut versuchen“.</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Bitte warten</translation>
    </message>
    <message>
        <source>Getting access token...</source>
        <translation>Zugriffstoken wird angefordert...</translation>
    </message>
    <message>
        <source>You are now connected to Brindlex.</source>
        <translation>Sie sind jetzt mit Brindlex verbunden.</translation>
    </message>
    <message>
        <source>Attempt to connect with Brindlex failed!</source>
        <translation>Die Verbindung mit Brindlex ist fehlgeschlagen!</translation>
    </message>
    <message>
        <source>Check your internet connection, then choose &quot;Retry&quot;.</source>
        <translation>Prüfen Sie Ihre Internetverbindung und wählen Sie dann „Erneut versuchen“.</translation>
    </message>
    <message>
        <source>Refreshing access token...</source>
        <translation>Zugriffstoken wird erneuert...</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Connect to Brindlex</source>
        <translation>Mit Brindlex verbinden</translation>
    </message>
    <message>
        <source>Publish your music with Brindlex</source>
        <translation>Veröffentlichen Sie Ihre Musik mit Brindlex</translation>
    </message>
    <message>
        <source>Sign in to send finished songs straight from your project. Your web browser opens for the sign-in.</source>
        <translation>Melden Sie sich an, um fertige Songs direkt aus Ihrem Projekt zu senden. Zur Anmeldung öffnet sich Ihr Webbrowser.</translation>
    </message>
    <message>
        <source>&amp;Connect to Brindlex</source>
        <translation>Mit Brindlex &amp;verbinden</translation>
    </message>
    <message>
        <source>Brindlex Client</source>
        <translation>Brindlex-Client</translation>
    </message>
    <message>
        <source>Signed in as</source>
        <translation>Angemeldet als</translation>
    </message>
    <message>
        <source>Opens your account page in the web browser</source>
        <translation>Öffnet Ihre Kontoseite im Webbrowser</translation>
    </message>
    <message>
        <source>&amp;DISCONNECT</source>
        <translation>&amp;TRENNEN</translation>
    </message>
    <message>
        <source>Signs out of Brindlex on this computer</source>
        <translation>Meldet diesen Computer bei Brindlex ab</translation>
    </message>
    <message>
        <source>Trac&amp;ks</source>
        <translation>Trac&amp;ks</translation>
    </message>
    <message>
        <source>&amp;Singles</source>
        <translation>&amp;Singles</translation>
    </message>
    <message>
        <source>Each track becomes a release of its own</source>
        <translation>Jeder Track wird zu einer eigenen Veröffentlichung</translation>
    </message>
    <message>
        <source>Al&amp;bum</source>
        <translation>Al&amp;bum</translation>
    </message>
    <message>
        <source>All tracks become one release</source>
        <translation>Alle Tracks werden zu einer Veröffentlichung</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Tracks</translation>
    </message>
    <message>
        <source>Drop WAV, FLAC or MP3 files here, or choose them with &quot;Add Tracks&quot;.</source>
        <translation>Legen Sie WAV-, FLAC- oder MP3-Dateien hier ab oder wählen Sie sie mit „Tracks hinzufügen“ aus.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>&amp;Add Tracks</source>
        <translation>Tracks &amp;hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Remove all</source>
        <translation>A&amp;lle entfernen</translation>
    </message>
    <message>
        <source>No track selected</source>
        <translation>Kein Track ausgewählt</translation>
    </message>
    <message>
        <source>Song</source>
        <translation>Song</translation>
    </message>
    <message>
        <source>S&amp;ong title</source>
        <translation>S&amp;ongtitel</translation>
    </message>
    <message>
        <source>Required: the song has no title</source>
        <translation>Erforderlich: Der Song hat keinen Titel</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Erforderlich</translation>
    </message>
    <message>
        <source>Song art&amp;ist</source>
        <translation>Songinterpr&amp;et</translation>
    </message>
    <message>
        <source>Required: the song has no artist</source>
        <translation>Erforderlich: Der Song hat keinen Interpreten</translation>
    </message>
    <message>
        <source>Track &amp;number</source>
        <translation>Track&amp;nummer</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Veröffentlichung</translation>
    </message>
    <message>
        <source>Album &amp;title</source>
        <translation>Albumt&amp;itel</translation>
    </message>
    <message>
        <source>Required: the release has no title</source>
        <translation>Erforderlich: Die Veröffentlichung hat keinen Titel</translation>
    </message>
    <message>
        <source>Albu&amp;m artist</source>
        <translation>Albu&amp;minterpret</translation>
    </message>
    <message>
        <source>Required: the release has no artist</source>
        <translation>Erforderlich: Die Veröffentlichung hat keinen Interpreten</translation>
    </message>
    <message>
        <source>&amp;Genre</source>
        <translation>&amp;Genre</translation>
    </message>
    <message>
        <source>Type to find</source>
        <translation>Zum Suchen tippen</translation>
    </message>
    <message>
        <source>Required: the release has no genre</source>
        <translation>Erforderlich: Die Veröffentlichung hat kein Genre</translation>
    </message>
    <message>
        <source>&amp;Upload</source>
        <translation>Ho&amp;chladen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Missing Information</source>
        <translation>Angaben fehlen</translation>
    </message>
    <message>
        <source>Preparing Brindlex Upload</source>
        <translation>Upload zu Brindlex wird vorbereitet</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Upload to Brindlex</source>
        <translation>Zu Brindlex hochladen</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>Alles neu laden</translation>
    </message>
    <message>
        <source>Pub&amp;lish</source>
        <translation>Ve&amp;röffentlichen</translation>
    </message>
    <message>
        <source>Shows the songs that you publish</source>
        <translation>Zeigt die Songs, die Sie veröffentlichen</translation>
    </message>
    <message>
        <source>Ne&amp;ws</source>
        <translation>Ne&amp;uigkeiten</translation>
    </message>
    <message>
        <source>Shows the news of Brindlex</source>
        <translation>Zeigt Neuigkeiten von Brindlex</translation>
    </message>
    <message>
        <source>Read more</source>
        <translation>Weiterlesen</translation>
    </message>
    <message>
        <source>Opens the whole article in the web browser</source>
        <translation>Öffnet den ganzen Artikel im Webbrowser</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Neuigkeiten</translation>
    </message>
    <message>
        <source>Loading the news...</source>
        <translation>Neuigkeiten werden geladen...</translation>
    </message>
    <message>
        <source>There is no news at the moment.</source>
        <translation>Zurzeit gibt es keine Neuigkeiten.</translation>
    </message>
    <message>
        <source>The news could not be loaded. Check your internet connection, then try again.</source>
        <translation>Die Neuigkeiten konnten nicht geladen werden. Prüfen Sie Ihre Internetverbindung und versuchen Sie es dann erneut.</translation>
    </message>
</context>
</TS>
