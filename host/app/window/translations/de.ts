<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
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
        <source>Publish the selected songs, or all</source>
        <translation>Die ausgewählten Songs veröffentlichen, oder alle</translation>
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
        <source>Stop the Upload?</source>
        <translation>Hochladen abbrechen?</translation>
    </message>
    <message>
        <source>An upload is running.</source>
        <translation>Es wird gerade hochgeladen.</translation>
    </message>
    <message>
        <source>When you quit now, it is stopped; songs that have not arrived are not published.</source>
        <translation>Beim Beenden wird es abgebrochen; Songs, die noch nicht angekommen sind, werden nicht veröffentlicht.</translation>
    </message>
    <message>
        <source>&amp;Stop and Quit</source>
        <translation>Abbrechen und &amp;beenden</translation>
    </message>
    <message>
        <source>&amp;Keep Uploading</source>
        <translation>&amp;Weiter hochladen</translation>
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
    <name>xbr::host::Publishing</name>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>„%1“ kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>“%1” is of a kind that cannot be published.</source>
        <translation>„%1“ ist von einer Art, die nicht veröffentlicht werden kann.</translation>
    </message>
    <message>
        <source>Rendering was cancelled; nothing was handed over.</source>
        <translation>Das Rendern wurde abgebrochen; es wurde nichts übergeben.</translation>
    </message>
    <message>
        <source>“%1” cannot be used.</source>
        <translation>„%1“ kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>“%1” does not take the songs.</source>
        <translation>„%1“ nimmt die Songs nicht an.</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) handed over. Complete the information, then upload.</source>
        <translation>
            <numerusform>%n Song übergeben. Angaben ergänzen, dann hochladen.</numerusform>
            <numerusform>%n Songs übergeben. Angaben ergänzen, dann hochladen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::ServiceWatch</name>
    <message>
        <source>Disconnected.</source>
        <translation>Getrennt.</translation>
    </message>
    <message>
        <source>Continue in your web browser: allow the access there.</source>
        <translation>Weiter im Webbrowser: dort den Zugriff erlauben.</translation>
    </message>
    <message>
        <source>Signing in…</source>
        <translation>Anmeldung läuft …</translation>
    </message>
    <message>
        <source>Connected.</source>
        <translation>Verbunden.</translation>
    </message>
    <message>
        <source>Uploading “%1”: %2 %</source>
        <translation>„%1“ wird hochgeladen: %2 %</translation>
    </message>
    <message>
        <source>Your sign-in has expired or was withdrawn. Disconnect, then connect again.</source>
        <translation>Die Anmeldung ist abgelaufen oder wurde widerrufen. Bitte trennen und neu verbinden.</translation>
    </message>
    <message>
        <source>Connected as %1.</source>
        <translation>Verbunden als %1.</translation>
    </message>
    <message>
        <source>The service did not accept the sign-in. Try to connect again.</source>
        <translation>Der Dienst hat die Anmeldung nicht angenommen. Bitte noch einmal verbinden.</translation>
    </message>
    <message>
        <source>Not connected yet: the browser has not come back with a permission.</source>
        <translation>Noch nicht verbunden: Der Browser hat keine Erlaubnis gebracht.</translation>
    </message>
    <message>
        <source>The upload was cancelled before anything was sent.</source>
        <translation>Das Hochladen wurde abgebrochen, bevor etwas gesendet wurde.</translation>
    </message>
    <message numerus="yes">
        <source>Published: %n song(s).</source>
        <translation>
            <numerusform>Veröffentlicht: %n Song.</numerusform>
            <numerusform>Veröffentlicht: %n Songs.</numerusform>
        </translation>
    </message>
    <message>
        <source>The service needs more information: fill in the marked fields, then upload again.</source>
        <translation>Der Dienst braucht mehr Angaben: die markierten Felder ausfüllen und noch einmal hochladen.</translation>
    </message>
    <message>
        <source>Nothing was sent: the upload could not be prepared.</source>
        <translation>Es wurde nichts gesendet: Das Hochladen konnte nicht vorbereitet werden.</translation>
    </message>
    <message>
        <source>Nothing was sent: %1</source>
        <translation>Es wurde nichts gesendet: %1</translation>
    </message>
    <message numerus="yes">
        <source>The service did not take %n song(s). Try again later.</source>
        <translation>
            <numerusform>Der Dienst hat %n Song nicht angenommen. Später noch einmal versuchen.</numerusform>
            <numerusform>Der Dienst hat %n Songs nicht angenommen. Später noch einmal versuchen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Uploading…</source>
        <translation>Wird hochgeladen …</translation>
    </message>
    <message>
        <source>The browser came back without a permission. Allow the access there, or cancel here.</source>
        <translation>Der Browser kam ohne Erlaubnis zurück. Den Zugriff dort erlauben oder hier abbrechen.</translation>
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
        <source>This is no audio that can be read.</source>
        <translation>Das ist kein lesbares Audio.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Die Datei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Audiodateien</translation>
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
</context>
<context>
    <name>xbr::host::WindowFront</name>
    <message>
        <source>%1, border %2.%3</source>
        <translation>%1, Schnittstelle %2.%3</translation>
    </message>
    <message>
        <source>Songs cannot be published: %1</source>
        <translation>Songs können nicht veröffentlicht werden: %1</translation>
    </message>
    <message>
        <source>Songs cannot be published: no module was found.</source>
        <translation>Songs können nicht veröffentlicht werden: Es wurde kein Modul gefunden.</translation>
    </message>
    <message>
        <source>The browser&apos;s answer to a sign-in cannot be received: %1</source>
        <translation>Die Antwort des Browsers auf eine Anmeldung kann nicht empfangen werden: %1</translation>
    </message>
</context>
<context>
    <name>xbr::host::Wording</name>
    <message>
        <source>The settings of %1 cannot be read from “%2”.</source>
        <translation>Die Einstellungen von %1 können nicht aus „%2“ gelesen werden.</translation>
    </message>
    <message>
        <source>%1 is not set up yet. Put %2 into “%3”, section [%4], one “key = value” a line.</source>
        <translation>%1 ist noch nicht eingerichtet. %2 in „%3“ eintragen, Abschnitt [%4], je Zeile „Schlüssel = Wert“.</translation>
    </message>
    <message>
        <source>%1 is not set up properly. Correct %2 in “%3”, section [%4].</source>
        <translation>%1 ist nicht richtig eingerichtet. %2 in „%3“ berichtigen, Abschnitt [%4].</translation>
    </message>
</context>
</TS>
