<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>The link is too long, or not one line.</source>
        <translation>Der Link ist zu lang oder nicht eine Zeile.</translation>
    </message>
    <message>
        <source>No running xbrhost waits for this link. Start the sign-in again.</source>
        <translation>Kein laufendes xbrhost wartet auf diesen Link. Die Anmeldung neu beginnen.</translation>
    </message>
    <message>
        <source>xbrhost help tells more.</source>
        <translation>xbrhost help sagt mehr.</translation>
    </message>
    <message>
        <source>Nearest: %1.</source>
        <translation>Am nächsten: %1.</translation>
    </message>
    <message>
        <source>There is no command “%1”.</source>
        <translation>Es gibt keinen Befehl „%1“.</translation>
    </message>
    <message>
        <source>“%1” is one word too many.</source>
        <translation>„%1“ ist ein Wort zu viel.</translation>
    </message>
    <message>
        <source>%1 needs a value behind it.</source>
        <translation>Hinter %1 fehlt ein Wert.</translation>
    </message>
    <message>
        <source>There is no option “%1” for “%2”.</source>
        <translation>Für „%2“ gibt es keine Option „%1“.</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 hat keinen Wert.</translation>
    </message>
    <message>
        <source>%1 needs a whole number from 1 to %2.</source>
        <translation>%1 braucht eine ganze Zahl von 1 bis %2.</translation>
    </message>
    <message>
        <source>%1 belongs to the song before it: put it behind a song.</source>
        <translation>%1 gehört zum Song davor: hinter einen Song stellen.</translation>
    </message>
    <message>
        <source>%1 is there twice.</source>
        <translation>%1 steht zweimal da.</translation>
    </message>
    <message>
        <source>open-url needs a link.</source>
        <translation>open-url braucht einen Link.</translation>
    </message>
    <message>
        <source>--release tells all about the release: leave out songs and details.</source>
        <translation>--release sagt alles über die Veröffentlichung: Songs und Angaben weglassen.</translation>
    </message>
    <message>
        <source>publish needs a song, or a folder with songs.</source>
        <translation>publish braucht einen Song oder einen Ordner mit Songs.</translation>
    </message>
    <message>
        <source>--album-title and --album-artist need --album: a single bears the title and the artist of its song.</source>
        <translation>--album-title und --album-artist brauchen --album: Eine Single trägt Titel und Interpret ihres Songs.</translation>
    </message>
    <message>
        <source>%1 is empty; leave it out to keep what the file&apos;s tags say.</source>
        <translation>%1 ist leer; weglassen, damit gilt, was die Tags der Datei sagen.</translation>
    </message>
    <message>
        <source>%1 is not UTF-8.</source>
        <translation>%1 ist nicht UTF-8.</translation>
    </message>
    <message>
        <source>%1 holds a line break or another control character.</source>
        <translation>%1 enthält einen Zeilenumbruch oder ein anderes Steuerzeichen.</translation>
    </message>
    <message>
        <source>has no panel</source>
        <translation>hat kein Panel</translation>
    </message>
    <message>
        <source>The browser&apos;s answer to a sign-in cannot be received: %1.</source>
        <translation>Die Antwort des Browsers auf eine Anmeldung kann nicht empfangen werden: %1.</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2.</source>
        <translation>„%1“ kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>“%1” and the folders in it hold no songs.</source>
        <translation>„%1“ und die Ordner darin enthalten keine Songs.</translation>
    </message>
    <message>
        <source>“%1” holds no songs; --recursive looks into the folders in it, too.</source>
        <translation>„%1“ enthält keine Songs; --recursive sieht auch in die Ordner darin.</translation>
    </message>
    <message>
        <source>--title and --track-number belong to one song, and “%1” is a folder.</source>
        <translation>--title und --track-number gehören zu einem Song, und „%1“ ist ein Ordner.</translation>
    </message>
    <message>
        <source>No genre holds “%1”.</source>
        <translation>Kein Genre enthält „%1“.</translation>
    </message>
    <message>
        <source>No genre holds “%1”. Nearest: %2.</source>
        <translation>Kein Genre enthält „%1“. Am nächsten: %2.</translation>
    </message>
    <message>
        <source>takes no songs</source>
        <translation>nimmt keine Songs an</translation>
    </message>
</context>
<context>
    <name>LineTexts</name>
    <message>
        <source>no bytes for %1</source>
        <translation>seit %1 keine Bytes</translation>
    </message>
    <message>
        <source>waiting for the answer</source>
        <translation>wartet auf die Antwort</translation>
    </message>
    <message>
        <source>%1 left, all %2</source>
        <translation>noch %1, alle %2</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
</context>
<context>
    <name>Output</name>
    <message>
        <source>The browser came back without a permission. Allow the access there, or end with Ctrl-C.</source>
        <translation>Der Browser kam ohne Erlaubnis zurück. Den Zugriff dort erlauben oder mit Strg-C beenden.</translation>
    </message>
    <message>
        <source>Publish the other songs?</source>
        <translation>Die anderen Songs veröffentlichen?</translation>
    </message>
    <message>
        <source>published</source>
        <translation>veröffentlicht</translation>
    </message>
    <message>
        <source>not published</source>
        <translation>nicht veröffentlicht</translation>
    </message>
    <message>
        <source>refused, details are missing</source>
        <translation>abgelehnt, Angaben fehlen</translation>
    </message>
    <message>
        <source>(not set)</source>
        <translation>(nicht gesetzt)</translation>
    </message>
    <message>
        <source>%1, rendered from “%2”</source>
        <translation>%1, gerendert aus „%2“</translation>
    </message>
    <message>
        <source>Release %1 of %2 (incomplete)</source>
        <translation>Veröffentlichung %1 von %2 (unvollständig)</translation>
    </message>
    <message>
        <source>Release %1 of %2</source>
        <translation>Veröffentlichung %1 von %2</translation>
    </message>
    <message>
        <source>  Title: %1</source>
        <translation>  Titel: %1</translation>
    </message>
    <message>
        <source>  Artist: %1</source>
        <translation>  Interpret: %1</translation>
    </message>
    <message>
        <source>  Genre: %1</source>
        <translation>  Genre: %1</translation>
    </message>
    <message>
        <source>Published %1 of %2 songs as singles.</source>
        <translation>%1 von %2 Songs als Singles veröffentlicht.</translation>
    </message>
    <message>
        <source>Published %1 of %2 songs as singles, as %3.</source>
        <translation>%1 von %2 Songs als Singles veröffentlicht, als %3.</translation>
    </message>
    <message>
        <source>Perhaps published: %1: it was sent, the answer did not come. Look at your account page.</source>
        <translation>Vielleicht veröffentlicht: %1: gesendet, aber ohne Antwort. Auf der Kontoseite nachsehen.</translation>
    </message>
    <message>
        <source>Not published: %1: %2</source>
        <translation>Nicht veröffentlicht: %1: %2</translation>
    </message>
    <message>
        <source>Waiting for your permission in the browser. If no page opened, open this address:</source>
        <translation>Warten auf die Erlaubnis im Browser. Falls sich keine Seite öffnete, diese Adresse öffnen:</translation>
    </message>
    <message>
        <source>Hand it over with: %1</source>
        <translation>Den Link zurück übergeben mit: %1</translation>
    </message>
    <message>
        <source>%1%2: sending %3</source>
        <translation>%1%2: %3 werden gesendet</translation>
    </message>
    <message>
        <source>%1%2: %3 %, %4 of %5, %6 left, all %7 left</source>
        <translation>%1%2: %3 %, %4 von %5, noch %6, alle noch %7</translation>
    </message>
    <message>
        <source>Sent %1 in %2, %3/s.</source>
        <translation>%1 in %2 gesendet, %3/s.</translation>
    </message>
    <message>
        <source>Link back (paste it here if the browser does not return by itself):</source>
        <translation>Link zurück (hier einfügen, wenn der Browser nicht von selbst zurückkehrt):</translation>
    </message>
    <message>
        <source>Publish them again?</source>
        <translation>Noch einmal veröffentlichen?</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>The browser came back without a permission. Allow the access there, or cancel here.</source>
        <translation>Der Browser kam ohne Erlaubnis zurück. Den Zugriff dort erlauben oder hier abbrechen.</translation>
    </message>
    <message>
        <source>Signed out.</source>
        <translation>Abgemeldet.</translation>
    </message>
    <message>
        <source>Waiting for your permission in the browser.</source>
        <translation>Warten auf die Erlaubnis im Browser.</translation>
    </message>
    <message>
        <source>Signing in…</source>
        <translation>Anmeldung läuft …</translation>
    </message>
    <message>
        <source>it does not take the songs</source>
        <translation>nimmt die Songs nicht an</translation>
    </message>
    <message>
        <source>it does not take all songs</source>
        <translation>nimmt nicht alle Songs an</translation>
    </message>
    <message>
        <source>it does not offer to upload the songs</source>
        <translation>bietet das Hochladen der Songs nicht an</translation>
    </message>
    <message>
        <source>Nothing was sent.</source>
        <translation>Nichts wurde gesendet.</translation>
    </message>
    <message>
        <source>The service refused “%1” (%2) and gave no reason.</source>
        <translation>Der Dienst hat „%1“ abgelehnt (%2) und keinen Grund genannt.</translation>
    </message>
    <message>
        <source>The service refused the album “%1” (%2) and gave no reason.</source>
        <translation>Der Dienst hat das Album „%1“ abgelehnt (%2) und keinen Grund genannt.</translation>
    </message>
    <message>
        <source>The service refused “%1” (%2): %3</source>
        <translation>Der Dienst hat „%1“ abgelehnt (%2): %3</translation>
    </message>
    <message>
        <source>The service refused the album “%1” (%2): %3</source>
        <translation>Der Dienst hat das Album „%1“ abgelehnt (%2): %3</translation>
    </message>
    <message>
        <source>The service refused “%1” because details are missing: %2.</source>
        <translation>Der Dienst hat „%1“ abgelehnt, weil Angaben fehlen: %2.</translation>
    </message>
    <message>
        <source>The service refused the album “%1” because details are missing: %2.</source>
        <translation>Der Dienst hat das Album „%1“ abgelehnt, weil Angaben fehlen: %2.</translation>
    </message>
    <message>
        <source>The service refused “%1” because details are missing, but none is empty here: %2</source>
        <translation>Der Dienst hat „%1“ abgelehnt, weil Angaben fehlen; hier ist aber keine leer: %2</translation>
    </message>
    <message>
        <source>The service refused the album “%1” because details are missing, but none is empty here: %2</source>
        <translation>Der Dienst hat das Album „%1“ abgelehnt, weil Angaben fehlen; hier ist aber keine leer: %2</translation>
    </message>
    <message>
        <source>The service does not accept the stored sign-in any more.</source>
        <translation>Der Dienst nimmt die gespeicherte Anmeldung nicht mehr an.</translation>
    </message>
    <message>
        <source>The service refused “%1” because it is too large (%2).</source>
        <translation>Der Dienst hat „%1“ abgelehnt, weil es zu groß ist (%2).</translation>
    </message>
    <message>
        <source>The service refused the album “%1” because it is too large (%2).</source>
        <translation>Der Dienst hat das Album „%1“ abgelehnt, weil es zu groß ist (%2).</translation>
    </message>
    <message>
        <source>The service asks to wait a while before the next upload. “%1” was not taken.</source>
        <translation>Der Dienst bittet, vor dem nächsten Hochladen eine Weile zu warten. „%1“ wurde nicht angenommen.</translation>
    </message>
    <message>
        <source>The service asks to wait a while before the next upload. The album “%1” was not taken.</source>
        <translation>Der Dienst bittet, vor dem nächsten Hochladen eine Weile zu warten. Das Album „%1“ wurde nicht angenommen.</translation>
    </message>
    <message>
        <source>The service has a fault (%2). “%1” was not taken; nothing is wrong with the song.</source>
        <translation>Der Dienst hat eine Störung (%2). „%1“ wurde nicht angenommen; mit dem Song ist alles in Ordnung.</translation>
    </message>
    <message>
        <source>The service has a fault (%2). The album “%1” was not taken; nothing is wrong with it.</source>
        <translation>Der Dienst hat eine Störung (%2). Das Album „%1“ wurde nicht angenommen; mit ihm ist alles in Ordnung.</translation>
    </message>
    <message>
        <source>%1 could not prove its identity: %2.</source>
        <translation>%1 konnte seine Identität nicht nachweisen: %2.</translation>
    </message>
    <message>
        <source>The service at %1 cannot be reached: %2.</source>
        <translation>Der Dienst unter %1 ist nicht erreichbar: %2.</translation>
    </message>
    <message>
        <source>Stopped after all of “%1” was sent, before the service answered. It may be published.</source>
        <translation>Gestoppt, nachdem „%1“ ganz gesendet war, bevor der Dienst antwortete. Es ist vielleicht veröffentlicht.</translation>
    </message>
    <message>
        <source>Stopped after all of the album “%1” was sent, before the service answered. It may be published.</source>
        <translation>Gestoppt, nachdem das Album „%1“ ganz gesendet war, bevor der Dienst antwortete. Es ist vielleicht veröffentlicht.</translation>
    </message>
    <message>
        <source>The connection broke after all of “%1” was sent, before the service answered. It may be published.</source>
        <translation>Die Verbindung brach ab, nachdem „%1“ ganz gesendet war, bevor der Dienst antwortete. Es ist vielleicht veröffentlicht.</translation>
    </message>
    <message>
        <source>The connection broke after all of the album “%1” was sent, before the service answered. It may be published.</source>
        <translation>Die Verbindung brach ab, nachdem das Album „%1“ ganz gesendet war, bevor der Dienst antwortete. Es ist vielleicht veröffentlicht.</translation>
    </message>
    <message>
        <source>“%1” was stopped at %2 of %3 and did not arrive.</source>
        <translation>„%1“ wurde bei %2 von %3 gestoppt und kam nicht an.</translation>
    </message>
    <message>
        <source>The album “%1” was stopped at %2 of %3 and did not arrive.</source>
        <translation>Das Album „%1“ wurde bei %2 von %3 gestoppt und kam nicht an.</translation>
    </message>
    <message>
        <source>The connection broke after %2 of %3. “%1” did not arrive.</source>
        <translation>Die Verbindung brach nach %2 von %3 ab. „%1“ kam nicht an.</translation>
    </message>
    <message>
        <source>The connection broke after %2 of %3. The album “%1” did not arrive.</source>
        <translation>Die Verbindung brach nach %2 von %3 ab. Das Album „%1“ kam nicht an.</translation>
    </message>
    <message>
        <source>“%2” is no longer there. “%1” was not sent.</source>
        <translation>„%2“ ist nicht mehr da. „%1“ wurde nicht gesendet.</translation>
    </message>
    <message>
        <source>“%2” is no longer there. The album “%1” is not complete.</source>
        <translation>„%2“ ist nicht mehr da. Das Album „%1“ ist nicht vollständig.</translation>
    </message>
    <message>
        <source>“%2” changed while it was copied. “%1” was not sent.</source>
        <translation>„%2“ hat sich beim Kopieren geändert. „%1“ wurde nicht gesendet.</translation>
    </message>
    <message>
        <source>“%2” changed while it was copied. The album “%1” is not complete.</source>
        <translation>„%2“ hat sich beim Kopieren geändert. Das Album „%1“ ist nicht vollständig.</translation>
    </message>
    <message>
        <source>There is not enough room in “%2”: %3 are needed, %4 are free. “%1” was not sent.</source>
        <translation>In „%2“ ist nicht genug Platz: %3 werden gebraucht, %4 sind frei. „%1“ wurde nicht gesendet.</translation>
    </message>
    <message>
        <source>There is not enough room in “%2”: %3 are needed, %4 are free. The album “%1” was not sent.</source>
        <translation>In „%2“ ist nicht genug Platz: %3 werden gebraucht, %4 sind frei. Das Album „%1“ wurde nicht gesendet.</translation>
    </message>
    <message>
        <source>The folder for copies, “%1”, cannot be written.</source>
        <translation>In den Ordner für Kopien, „%1“, kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>“%1” could not be prepared: %2. It was not sent.</source>
        <translation>„%1“ konnte nicht vorbereitet werden: %2. Es wurde nicht gesendet.</translation>
    </message>
    <message>
        <source>The album “%1” could not be prepared: %2. It was not sent.</source>
        <translation>Das Album „%1“ konnte nicht vorbereitet werden: %2. Es wurde nicht gesendet.</translation>
    </message>
    <message>
        <source>“%1” was not sent.</source>
        <translation>„%1“ wurde nicht gesendet.</translation>
    </message>
    <message>
        <source>The album “%1” was not sent.</source>
        <translation>Das Album „%1“ wurde nicht gesendet.</translation>
    </message>
    <message>
        <source>“%1” could not be prepared. It was not sent.</source>
        <translation>„%1“ konnte nicht vorbereitet werden. Es wurde nicht gesendet.</translation>
    </message>
    <message>
        <source>The album “%1” could not be prepared. It was not sent.</source>
        <translation>Das Album „%1“ konnte nicht vorbereitet werden. Es wurde nicht gesendet.</translation>
    </message>
    <message>
        <source>Published the album “%1” with one song.</source>
        <translation>Das Album „%1“ mit einem Song wurde veröffentlicht.</translation>
    </message>
    <message>
        <source>Published the album “%1” with %2 songs.</source>
        <translation>Das Album „%1“ mit %2 Songs wurde veröffentlicht.</translation>
    </message>
    <message>
        <source>Published “%1”.</source>
        <translation>„%1“ wurde veröffentlicht.</translation>
    </message>
    <message>
        <source>Published %1 songs as singles.</source>
        <translation>%1 Songs wurden als Singles veröffentlicht.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Gestoppt.</translation>
    </message>
    <message>
        <source>%1 of %2 songs are published.</source>
        <translation>%1 von %2 Songs sind veröffentlicht.</translation>
    </message>
    <message>
        <source>Signed in.</source>
        <translation>Angemeldet.</translation>
    </message>
    <message>
        <source>Signed in as %1.</source>
        <translation>Angemeldet als %1.</translation>
    </message>
    <message>
        <source>Not signed in: the sign-in was given up.</source>
        <translation>Nicht angemeldet: Die Anmeldung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Not signed in: the service did not accept it.</source>
        <translation>Nicht angemeldet: Der Dienst hat die Anmeldung nicht angenommen.</translation>
    </message>
    <message>
        <source>Not signed in: the service refused it: %1.</source>
        <translation>Nicht angemeldet: Der Dienst hat die Anmeldung abgelehnt: %1.</translation>
    </message>
    <message>
        <source>Nothing waits to be sent. Choose “Reset” in the menu of a song first.</source>
        <translation>Nichts wartet auf das Senden. Zuerst im Menü eines Songs „Zurücksetzen“ wählen.</translation>
    </message>
    <message>
        <source>Published %1 of %2 songs. %3</source>
        <translation>%1 von %2 Songs wurden veröffentlicht. %3</translation>
    </message>
    <message>
        <source>No module was found. Songs cannot be published.</source>
        <translation>Es wurde kein Modul gefunden. Songs können nicht veröffentlicht werden.</translation>
    </message>
    <message>
        <source>“%1” %2. Songs cannot be published.</source>
        <translation>„%1“ %2. Songs können nicht veröffentlicht werden.</translation>
    </message>
    <message>
        <source>album title</source>
        <translation>Albumtitel</translation>
    </message>
    <message>
        <source>album artist</source>
        <translation>Albuminterpret</translation>
    </message>
    <message>
        <source>genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>song title</source>
        <translation>Songtitel</translation>
    </message>
    <message>
        <source>song artist</source>
        <translation>Songinterpret</translation>
    </message>
    <message>
        <source>“%1” lacks: %2.</source>
        <translation>„%1“ fehlt: %2.</translation>
    </message>
    <message>
        <source>The album lacks: %1.</source>
        <translation>Dem Album fehlt: %1.</translation>
    </message>
    <message>
        <source>The album “%1” lacks: %2.</source>
        <translation>Dem Album „%1“ fehlt: %2.</translation>
    </message>
    <message>
        <source>The service does not know the genre “%1”.</source>
        <translation>Der Dienst kennt das Genre „%1“ nicht.</translation>
    </message>
    <message>
        <source>The service does not know the genre “%1”. Nearest: %2.</source>
        <translation>Der Dienst kennt das Genre „%1“ nicht. Am nächsten: %2.</translation>
    </message>
    <message>
        <source>“%1” has the genre “%2”, which the service does not know.</source>
        <translation>„%1“ hat das Genre „%2“, das der Dienst nicht kennt.</translation>
    </message>
    <message>
        <source>“%1” has the genre “%2”, which the service does not know. Nearest: %3.</source>
        <translation>„%1“ hat das Genre „%2“, das der Dienst nicht kennt. Am nächsten: %3.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is not there.</source>
        <translation>„%1“ kann nicht veröffentlicht werden: Die Datei ist nicht da.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it cannot be read.</source>
        <translation>„%1“ kann nicht veröffentlicht werden: Die Datei ist nicht lesbar.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it cannot be read (%2).</source>
        <translation>„%1“ kann nicht veröffentlicht werden: Die Datei ist nicht lesbar (%2).</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is not a file.</source>
        <translation>„%1“ kann nicht veröffentlicht werden: Es ist keine Datei.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is %2, not %3 as its name says.</source>
        <translation>„%1“ kann nicht veröffentlicht werden: Es ist %2, nicht %3, wie der Name sagt.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is cut off.</source>
        <translation>„%1“ kann nicht veröffentlicht werden: Die Datei ist abgeschnitten.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is cut off: %2 of %3.</source>
        <translation>„%1“ kann nicht veröffentlicht werden: Die Datei ist abgeschnitten: %2 von %3.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: its sample rate of %2 cannot be right.</source>
        <translation>„%1“ kann nicht veröffentlicht werden: Die Abtastrate von %2 kann nicht stimmen.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it holds samples that are not numbers.</source>
        <translation>„%1“ kann nicht veröffentlicht werden: Die Datei enthält Abtastwerte, die keine Zahlen sind.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: its name is not UTF-8.</source>
        <translation>„%1“ kann nicht veröffentlicht werden: Der Name ist nicht UTF-8.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: its name holds control characters.</source>
        <translation>„%1“ kann nicht veröffentlicht werden: Der Name enthält Steuerzeichen.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it would have to become %2, which is not possible.</source>
        <translation>„%1“ kann nicht veröffentlicht werden: Daraus müsste %2 werden, was nicht möglich ist.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it holds no audio that can be read.</source>
        <translation>„%1“ kann nicht veröffentlicht werden: Die Datei enthält keinen lesbaren Ton.</translation>
    </message>
    <message>
        <source>The settings of %1 cannot be read from “%2”.</source>
        <translation>Die Einstellungen von %1 können nicht aus „%2“ gelesen werden.</translation>
    </message>
    <message>
        <source>%1 is not set up: %2 is wrong in “%3”, section [%4].</source>
        <translation>%1 ist nicht eingerichtet: %2 ist falsch in „%3“, Abschnitt [%4].</translation>
    </message>
    <message>
        <source>%1 is not set up: %2 is missing in “%3”, section [%4].</source>
        <translation>%1 ist nicht eingerichtet: %2 fehlt in „%3“, Abschnitt [%4].</translation>
    </message>
    <message>
        <source>“%1” is there twice.</source>
        <translation>„%1“ ist zweimal da.</translation>
    </message>
    <message>
        <source>“%1” and “%2” have the same file name; in an album each song needs its own.</source>
        <translation>„%1“ und „%2“ haben denselben Dateinamen; in einem Album braucht jeder Song einen eigenen.</translation>
    </message>
    <message>
        <source>“%1” and “%2” both have the number %3.</source>
        <translation>„%1“ und „%2“ haben beide die Nummer %3.</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>noch %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>“%1” is sent. Waiting for the service&apos;s answer.</source>
        <translation>„%1“ ist gesendet. Die Antwort des Dienstes steht noch aus.</translation>
    </message>
    <message>
        <source>Sending “%1”: no bytes have left for %2 s. Waiting for the connection.</source>
        <translation>„%1“ wird gesendet: seit %2 s ist nichts mehr abgegangen. Die Verbindung wird abgewartet.</translation>
    </message>
    <message>
        <source>Sending the album “%1”</source>
        <translation>Das Album „%1“ wird gesendet</translation>
    </message>
    <message>
        <source>Sending “%1”, %2 of %3</source>
        <translation>„%1“ wird gesendet, %2 von %3</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>All: %1</source>
        <translation>Alles: %1</translation>
    </message>
    <message>
        <source>Preparing one song: %1 of %2. Nothing is sent yet.</source>
        <translation>Ein Song wird vorbereitet: %1 von %2. Noch ist nichts gesendet.</translation>
    </message>
    <message>
        <source>Preparing %1 songs: %2 of %3. Nothing is sent yet.</source>
        <translation>%1 Songs werden vorbereitet: %2 von %3. Noch ist nichts gesendet.</translation>
    </message>
    <message>
        <source>An upload is running.</source>
        <translation>Es wird gerade gesendet.</translation>
    </message>
    <message>
        <source>Hand over songs first.</source>
        <translation>Zuerst Songs übergeben.</translation>
    </message>
    <message>
        <source>Sign in first.</source>
        <translation>Zuerst anmelden.</translation>
    </message>
    <message>
        <source>All songs are published.</source>
        <translation>Alle Songs sind veröffentlicht.</translation>
    </message>
    <message>
        <source>Run the same command again.</source>
        <translation>Denselben Befehl noch einmal ausführen.</translation>
    </message>
    <message>
        <source>Run the same command with the songs that are not published to send the rest.</source>
        <translation>Denselben Befehl mit den Songs ausführen, die nicht veröffentlicht sind, um den Rest zu senden.</translation>
    </message>
    <message>
        <source>Try again later.</source>
        <translation>Später noch einmal versuchen.</translation>
    </message>
    <message>
        <source>Choose one with --genre.</source>
        <translation>Eines mit --genre wählen.</translation>
    </message>
    <message>
        <source>Name it once.</source>
        <translation>Nur einmal nennen.</translation>
    </message>
    <message>
        <source>Rename one of them.</source>
        <translation>Eine davon umbenennen.</translation>
    </message>
    <message>
        <source>--skip-unreadable leaves it out.</source>
        <translation>--skip-unreadable lässt sie aus.</translation>
    </message>
    <message>
        <source>Put it back, then run the same command again.</source>
        <translation>Zurücklegen, dann denselben Befehl noch einmal ausführen.</translation>
    </message>
    <message>
        <source>Make room, or set TMPDIR to another folder.</source>
        <translation>Platz schaffen oder TMPDIR auf einen anderen Ordner setzen.</translation>
    </message>
    <message>
        <source>Set TMPDIR to another folder.</source>
        <translation>TMPDIR auf einen anderen Ordner setzen.</translation>
    </message>
    <message>
        <source>--track-number sets it.</source>
        <translation>--track-number setzt sie.</translation>
    </message>
    <message>
        <source>Look at your account page before you send it again.</source>
        <translation>Vor dem nächsten Senden auf der Kontoseite nachsehen.</translation>
    </message>
    <message>
        <source>Check ServerURL and this computer&apos;s clock.</source>
        <translation>ServerURL und die Uhr dieses Computers prüfen.</translation>
    </message>
    <message>
        <source>xbrhost sign-in renews it.</source>
        <translation>xbrhost sign-in erneuert sie.</translation>
    </message>
    <message>
        <source>xbrhost sign-in signs in.</source>
        <translation>xbrhost sign-in meldet an.</translation>
    </message>
    <message>
        <source>--module names one.</source>
        <translation>--module nennt eines.</translation>
    </message>
    <message>
        <source>Add it with %1.</source>
        <translation>Mit %1 ergänzen.</translation>
    </message>
    <message>
        <source>Add them with %1.</source>
        <translation>Mit %1 ergänzen.</translation>
    </message>
    <message>
        <source>The service asks to wait %2 before the next upload. “%1” was not taken.</source>
        <translation>Der Dienst bittet, vor dem nächsten Hochladen %2 zu warten. „%1“ wurde nicht angenommen.</translation>
    </message>
    <message>
        <source>The service asks to wait %2 before the next upload. The album “%1” was not taken.</source>
        <translation>Der Dienst bittet, vor dem nächsten Hochladen %2 zu warten. Das Album „%1“ wurde nicht angenommen.</translation>
    </message>
    <message>
        <source>Waiting for the keyring to be unlocked.</source>
        <translation>Warten darauf, dass der Schlüsselbund entsperrt wird.</translation>
    </message>
    <message>
        <source>Waiting for the keyring to answer.</source>
        <translation>Warten auf eine Antwort des Schlüsselbunds.</translation>
    </message>
    <message>
        <source>The web browser could not be started: %1. Copy the address and open it in a browser.</source>
        <translation>Der Webbrowser konnte nicht gestartet werden: %1. Kopieren Sie die Adresse und öffnen Sie sie in einem Browser.</translation>
    </message>
    <message>
        <source>The web browser could not be started: %1.</source>
        <translation>Der Webbrowser konnte nicht gestartet werden: %1.</translation>
    </message>
    <message>
        <source>Signed in as %1, until the program ends: this computer has no keyring.</source>
        <translation>Angemeldet als %1, bis das Programm endet: Dieser Computer hat keinen Schlüsselbund.</translation>
    </message>
    <message>
        <source>Not signed in: this computer has no keyring.</source>
        <translation>Nicht angemeldet: Dieser Computer hat keinen Schlüsselbund.</translation>
    </message>
    <message>
        <source>No keyring can be reached from here: nothing was removed.</source>
        <translation>Von hier ist kein Schlüsselbund erreichbar: Es wurde nichts entfernt.</translation>
    </message>
    <message>
        <source>Signed in as %1, until the program ends: the keyring was not unlocked.</source>
        <translation>Angemeldet als %1, bis das Programm endet: Der Schlüsselbund wurde nicht entsperrt.</translation>
    </message>
    <message>
        <source>The keyring was not unlocked: the stored sign-in cannot be read.</source>
        <translation>Der Schlüsselbund wurde nicht entsperrt: Die gespeicherte Anmeldung kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The keyring was not unlocked: the stored sign-in may still be there.</source>
        <translation>Der Schlüsselbund wurde nicht entsperrt: Die gespeicherte Anmeldung ist vielleicht noch da.</translation>
    </message>
    <message>
        <source>Signed in as %1, until the program ends: the keyring does not answer.</source>
        <translation>Angemeldet als %1, bis das Programm endet: Der Schlüsselbund antwortet nicht.</translation>
    </message>
    <message>
        <source>The keyring does not answer: the stored sign-in cannot be read.</source>
        <translation>Der Schlüsselbund antwortet nicht: Die gespeicherte Anmeldung kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The keyring does not answer: the stored sign-in may still be there.</source>
        <translation>Der Schlüsselbund antwortet nicht: Die gespeicherte Anmeldung ist vielleicht noch da.</translation>
    </message>
    <message>
        <source>The service does not say who is signed in; it may not be %1.</source>
        <translation>Der Dienst sagt nicht, wer angemeldet ist; vielleicht ist es nicht %1.</translation>
    </message>
    <message>
        <source>Signed in as %1, not as %2.</source>
        <translation>Angemeldet als %1, nicht als %2.</translation>
    </message>
    <message>
        <source>A sign-in is stored, but the service could not be asked: %1.</source>
        <translation>Eine Anmeldung ist gespeichert, aber der Dienst konnte nicht gefragt werden: %1.</translation>
    </message>
    <message>
        <source>Not signed in: the service sent an answer that cannot be used.</source>
        <translation>Nicht angemeldet: Der Dienst hat eine Antwort gesendet, die nicht verwendbar ist.</translation>
    </message>
    <message>
        <source>Not signed in.</source>
        <translation>Nicht angemeldet.</translation>
    </message>
    <message>
        <source>This is not a link back: it begins with “%1:”.</source>
        <translation>Das ist kein Rücklink: Er beginnt mit „%1:“.</translation>
    </message>
    <message>
        <source>This link back belongs to another sign-in. Open the address again.</source>
        <translation>Dieser Rücklink gehört zu einer anderen Anmeldung. Öffnen Sie die Adresse noch einmal.</translation>
    </message>
    <message>
        <source>Nobody was signed in.</source>
        <translation>Niemand war angemeldet.</translation>
    </message>
    <message>
        <source>cannot sign out</source>
        <translation>kann nicht abmelden</translation>
    </message>
    <message>
        <source>Unlock it, then run the same command again.</source>
        <translation>Entsperren Sie ihn, dann starten Sie denselben Befehl noch einmal.</translation>
    </message>
    <message>
        <source>xbrhost sign-out signs out.</source>
        <translation>xbrhost sign-out meldet ab.</translation>
    </message>
    <message>
        <source>it answered %1</source>
        <translation>er antwortete %1</translation>
    </message>
    <message>
        <source>%1 is not set up: %2 is not encrypted, and only this computer may be reached that way.</source>
        <translation>%1 ist nicht eingerichtet: %2 ist nicht verschlüsselt, und nur dieser Computer darf so erreicht werden.</translation>
    </message>
    <message>
        <source>--again sends them again.</source>
        <translation>--again sendet sie noch einmal.</translation>
    </message>
    <message>
        <source>%1 of %2 songs were published from this computer before.</source>
        <translation>%1 von %2 Songs wurden schon von diesem Computer aus veröffentlicht.</translation>
    </message>
    <message>
        <source>“%1” was published from this computer on %2.</source>
        <translation>„%1“ wurde am %2 von diesem Computer aus veröffentlicht.</translation>
    </message>
</context>
<context>
    <name>xbr::host::AboutDialog</name>
    <message>
        <source>About xbrhost</source>
        <translation>Über xbrhost</translation>
    </message>
    <message>
        <source>Publishes finished songs through the modules of a workstation.</source>
        <translation>Veröffentlicht fertige Songs über die Module einer Workstation.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>Ko&amp;pieren</translation>
    </message>
    <message>
        <source>Copy the versions</source>
        <translation>Versionen kopieren</translation>
    </message>
</context>
<context>
    <name>xbr::host::DesktopNotification</name>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
</context>
<context>
    <name>xbr::host::DockTitle</name>
    <message>
        <source>Float or dock</source>
        <translation>Lösen oder andocken</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
</context>
<context>
    <name>xbr::host::EmptyState</name>
    <message>
        <source>&amp;Add Songs…</source>
        <translation>Songs &amp;hinzufügen …</translation>
    </message>
    <message>
        <source>Drop your finished songs here</source>
        <translation>Fertige Songs hierher ziehen</translation>
    </message>
    <message>
        <source>WAV, AIFF, FLAC, MP3 or Ogg, one by one or a whole folder</source>
        <translation>WAV, AIFF, FLAC, MP3 oder Ogg, einzeln oder als ganzer Ordner</translation>
    </message>
</context>
<context>
    <name>xbr::host::FileSelector</name>
    <message>
        <source>All usable files</source>
        <translation>Alle verwendbaren Dateien</translation>
    </message>
    <message>
        <source>Choose Files</source>
        <translation>Dateien wählen</translation>
    </message>
</context>
<context>
    <name>xbr::host::GadgetDock</name>
    <message>
        <source>The form of this panel cannot be shown.</source>
        <translation>Das Formular dieser Ansicht kann nicht angezeigt werden.</translation>
    </message>
</context>
<context>
    <name>xbr::host::HandOver</name>
    <message numerus="yes">
        <source>It holds edits of %n song(s) that have not been sent.</source>
        <translation>
            <numerusform>Es enthält Änderungen an %n Song, die nicht gesendet wurden.</numerusform>
            <numerusform>Es enthält Änderungen an %n Songs, die nicht gesendet wurden.</numerusform>
        </translation>
    </message>
    <message>
        <source>It holds the results of the last upload.</source>
        <translation>Es enthält die Ergebnisse des letzten Sendens.</translation>
    </message>
    <message>
        <source>Replace the songs in the panel?</source>
        <translation>Die Songs im Panel ersetzen?</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Behalten</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>The other songs can be handed over without them.</source>
        <translation>Die anderen Songs können ohne sie übergeben werden.</translation>
    </message>
    <message>
        <source>Leave out songs?</source>
        <translation>Songs weglassen?</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Leave out</source>
        <translation>&amp;Weglassen</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) handed over to the panel; nothing is sent yet. Check the details there, then upload.</source>
        <translation>
            <numerusform>%n Song wurde an das Panel übergeben; noch ist nichts gesendet. Dort die Angaben prüfen, dann hochladen.</numerusform>
            <numerusform>%n Songs wurden an das Panel übergeben; noch ist nichts gesendet. Dort die Angaben prüfen, dann hochladen.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) lack details that the service needs. “%2”: %3.</source>
        <translation>
            <numerusform>%1 von %n Song fehlen Angaben, die der Dienst braucht. „%2“: %3.</numerusform>
            <numerusform>%1 von %n Songs fehlen Angaben, die der Dienst braucht. „%2“: %3.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::Header</name>
    <message>
        <source>Songs</source>
        <translation>Songs</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Noch keine</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s)</source>
        <translation>
            <numerusform>%n Song</numerusform>
            <numerusform>%n Songs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::KeyringSheet</name>
    <message>
        <source>Keyring</source>
        <translation>Schlüsselbund</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>xbr::host::MainWindow</name>
    <message>
        <source>Songs – xbrhost</source>
        <translation>Songs – xbrhost</translation>
    </message>
    <message>
        <source>Add Songs</source>
        <translation>Songs hinzufügen</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Some songs are still being read; try again in a moment.</source>
        <translation>Einige Songs werden noch gelesen; gleich noch einmal versuchen.</translation>
    </message>
    <message>
        <source>Add songs first.</source>
        <translation>Zuerst Songs hinzufügen.</translation>
    </message>
    <message>
        <source>Wait until the upload that runs has ended.</source>
        <translation>Bitte warten, bis das laufende Hochladen beendet ist.</translation>
    </message>
    <message>
        <source>&amp;Stop and Quit</source>
        <translation>Abbrechen und &amp;beenden</translation>
    </message>
    <message>
        <source>&amp;Keep Uploading</source>
        <translation>&amp;Weiter hochladen</translation>
    </message>
    <message>
        <source>Hands the selected songs, or all, over to the panel; nothing is sent yet</source>
        <translation>Übergibt die ausgewählten Songs oder alle an das Panel; noch wird nichts gesendet</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) in the panel have edits that were not sent; they would be lost. The list comes back at the next start.</source>
        <translation>
            <numerusform>%n Song im Panel hat Änderungen, die nicht gesendet wurden; sie gingen verloren. Die Liste kommt beim nächsten Start wieder.</numerusform>
            <numerusform>%n Songs im Panel haben Änderungen, die nicht gesendet wurden; sie gingen verloren. Die Liste kommt beim nächsten Start wieder.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop the upload?</source>
        <translation>Das Senden anhalten?</translation>
    </message>
    <message>
        <source>Quit without publishing?</source>
        <translation>Beenden, ohne zu veröffentlichen?</translation>
    </message>
    <message>
        <source>&amp;Keep Editing</source>
        <translation>Weiter &amp;bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
</context>
<context>
    <name>xbr::host::PanelMemory</name>
    <message>
        <source>Track number</source>
        <translation>Titelnummer</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) removed from the panel.</source>
        <translation>
            <numerusform>%n Song aus dem Panel entfernt.</numerusform>
            <numerusform>%n Songs aus dem Panel entfernt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 changed in %n song(s).</source>
        <translation>
            <numerusform>%1 in %n Song geändert.</numerusform>
            <numerusform>%1 in %n Songs geändert.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::PanelNotices</name>
    <message numerus="yes">
        <source>%1 of %n song(s) are published; the rest would not be.</source>
        <translation>
            <numerusform>%1 von %n Song ist veröffentlicht; der Rest würde es nicht.</numerusform>
            <numerusform>%1 von %n Songs sind veröffentlicht; der Rest würde es nicht.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is being sent.</source>
        <translation>„%1“ wird gerade gesendet.</translation>
    </message>
    <message>
        <source>Published %1</source>
        <translation>Veröffentlicht %1</translation>
    </message>
    <message>
        <source>Published %1 as %2</source>
        <translation>Veröffentlicht %1 als %2</translation>
    </message>
    <message>
        <source>Send without these details?</source>
        <translation>Ohne diese Angaben senden?</translation>
    </message>
    <message>
        <source>“%1”: %2. The service will probably refuse it. Nothing is sent yet.</source>
        <translation>„%1“: %2. Der Dienst wird das wahrscheinlich ablehnen. Noch ist nichts gesendet.</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message>
        <source>Send &amp;Anyway</source>
        <translation>&amp;Trotzdem senden</translation>
    </message>
    <message>
        <source>Publish again?</source>
        <translation>Noch einmal veröffentlichen?</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Publish &amp;Again</source>
        <translation>Noch einmal &amp;veröffentlichen</translation>
    </message>
    <message>
        <source>&amp;Leave them out</source>
        <translation>&amp;Weglassen</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) were published from this computer before.</source>
        <translation>
            <numerusform>%1 von %n Song wurde schon von diesem Computer aus veröffentlicht.</numerusform>
            <numerusform>%1 von %n Songs wurden schon von diesem Computer aus veröffentlicht.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
    <message>
        <source>A&amp;ccount page</source>
        <translation>&amp;Kontoseite</translation>
    </message>
    <message>
        <source>&amp;Leave out</source>
        <translation>&amp;Weglassen</translation>
    </message>
    <message>
        <source>Sign &amp;in</source>
        <translation>&amp;Anmelden</translation>
    </message>
</context>
<context>
    <name>xbr::host::ProgressRow</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>End the upload; what has arrived stays published</source>
        <translation>Das Senden beenden; was angekommen ist, bleibt veröffentlicht</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>xbr::host::ProgressSheet</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Working on</source>
        <translation>In Arbeit</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Wird abgebrochen …</translation>
    </message>
</context>
<context>
    <name>xbr::host::Selection</name>
    <message>
        <source>“%1” is on its way and cannot be changed now.</source>
        <translation>„%1“ ist unterwegs und kann jetzt nicht geändert werden.</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) selected: an edit changes all of them.</source>
        <translation>
            <numerusform>%n Song ausgewählt: eine Änderung gilt für alle.</numerusform>
            <numerusform>%n Songs ausgewählt: eine Änderung gilt für alle.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>≠ %n value(s)</source>
        <translation>
            <numerusform>≠ %n Wert</numerusform>
            <numerusform>≠ %n Werte</numerusform>
        </translation>
    </message>
    <message>
        <source>same</source>
        <translation>gleich</translation>
    </message>
    <message numerus="yes">
        <source>%n different value(s): %1</source>
        <translation>
            <numerusform>%n verschiedener Wert: %1</numerusform>
            <numerusform>%n verschiedene Werte: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::SignInStrip</name>
    <message>
        <source>Copy the address</source>
        <translation>Adresse kopieren</translation>
    </message>
    <message>
        <source>Link back</source>
        <translation>Rücklink</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Nothing happened?</source>
        <translation>Nichts passiert?</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
</context>
<context>
    <name>xbr::host::Song</name>
    <message>
        <source>%1 bit</source>
        <translation>%1 Bit</translation>
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
        <translation>Audiodateien</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongCommands</name>
    <message numerus="yes">
        <source>%n song(s) added.</source>
        <translation>
            <numerusform>%n Song hinzugefügt.</numerusform>
            <numerusform>%n Songs hinzugefügt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) added; %1 were in the list already.</source>
        <translation>
            <numerusform>%n Song hinzugefügt; %1 schon in der Liste.</numerusform>
            <numerusform>%n Songs hinzugefügt; %1 schon in der Liste.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) removed from the list; the files stay.</source>
        <translation>
            <numerusform>%n Song aus der Liste entfernt; die Datei bleibt.</numerusform>
            <numerusform>%n Songs aus der Liste entfernt; die Dateien bleiben.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Zeigen</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) need a look before they can be published. %2</source>
        <translation>
            <numerusform>%1 von %n Song braucht einen Blick, bevor er veröffentlicht werden kann. %2</numerusform>
            <numerusform>%1 von %n Songs brauchen einen Blick, bevor sie veröffentlicht werden können. %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) from last time.</source>
        <translation>
            <numerusform>%n Song vom letzten Mal.</numerusform>
            <numerusform>%n Songs vom letzten Mal.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) from last time; %1 no longer there.</source>
        <translation>
            <numerusform>%n Song vom letzten Mal; %1 nicht mehr da.</numerusform>
            <numerusform>%n Songs vom letzten Mal; %1 nicht mehr da.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n Datei</numerusform>
            <numerusform>%n Dateien</numerusform>
        </translation>
    </message>
    <message>
        <source>Start &amp;Empty</source>
        <translation>&amp;Leer beginnen</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongListModel</name>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen …</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Interpret</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>Albuminterpret</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>Titelnummer</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Zeichen</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongView</name>
    <message>
        <source>Songs</source>
        <translation>Songs</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
</context>
<context>
    <name>xbr::host::StatusLine</name>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>Bereit.</translation>
    </message>
    <message>
        <source>Show each song</source>
        <translation>Jeden Song zeigen</translation>
    </message>
</context>
<context>
    <name>xbr::host::WindowActions</name>
    <message>
        <source>Menus</source>
        <translation>Menüs</translation>
    </message>
    <message>
        <source>&amp;Publish</source>
        <translation>&amp;Veröffentlichen</translation>
    </message>
    <message>
        <source>&amp;About xbrhost</source>
        <translation>Ü&amp;ber xbrhost</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Add Songs…</source>
        <translation>Songs &amp;hinzufügen …</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add songs (%1)</source>
        <translation>Songs hinzufügen (%1)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit Cell</source>
        <translation>Feld &amp;bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove the selected songs from the list; the files stay</source>
        <translation>Die ausgewählten Songs aus der Liste entfernen; die Dateien bleiben</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Next Area</source>
        <translation>&amp;Nächster Bereich</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Erscheinungsbild</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>Anordnung &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Wie der &amp;Desktop</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>Da&amp;rk</source>
        <translation>D&amp;unkel</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Red&amp;o</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;Next Problem</source>
        <translation>&amp;Nächstes Problem</translation>
    </message>
    <message>
        <source>&amp;Previous Problem</source>
        <translation>&amp;Voriges Problem</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Anhalten</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
</context>
<context>
    <name>xbr::host::WindowFront</name>
    <message>
        <source>%1, border %2.%3</source>
        <translation>%1, Schnittstelle %2.%3</translation>
    </message>
    <message>
        <source>The browser&apos;s answer to a sign-in cannot be received: %1.</source>
        <translation>Die Antwort des Browsers auf eine Anmeldung kann nicht empfangen werden: %1.</translation>
    </message>
</context>
</TS>
