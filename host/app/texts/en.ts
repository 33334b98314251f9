<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>xbr::host::HandOver</name>
    <message numerus="yes">
        <source>It holds edits of %n song(s) that have not been sent.</source>
        <translation>
            <numerusform>It holds edits of %n song that have not been sent.</numerusform>
            <numerusform>It holds edits of %n songs that have not been sent.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) handed over to the panel; nothing is sent yet. Check the details there, then upload.</source>
        <translation>
            <numerusform>%n song handed over to the panel; nothing is sent yet. Check the details there, then upload.</numerusform>
            <numerusform>%n songs handed over to the panel; nothing is sent yet. Check the details there, then upload.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) lack details that the service needs. “%2”: %3.</source>
        <translation>
            <numerusform>%1 of %n song lacks details that the service needs. “%2”: %3.</numerusform>
            <numerusform>%1 of %n songs lack details that the service needs. “%2”: %3.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::Header</name>
    <message numerus="yes">
        <source>%n song(s)</source>
        <translation>
            <numerusform>%n song</numerusform>
            <numerusform>%n songs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::MainWindow</name>
    <message numerus="yes">
        <source>%n song(s) in the panel have edits that were not sent; they would be lost. The list comes back at the next start.</source>
        <translation>
            <numerusform>%n song in the panel has edits that were not sent; they would be lost. The list comes back at the next start.</numerusform>
            <numerusform>%n songs in the panel have edits that were not sent; they would be lost. The list comes back at the next start.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::PanelMemory</name>
    <message numerus="yes">
        <source>%n song(s) removed from the panel.</source>
        <translation>
            <numerusform>%n song removed from the panel.</numerusform>
            <numerusform>%n songs removed from the panel.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 changed in %n song(s).</source>
        <translation>
            <numerusform>%1 changed in %n song.</numerusform>
            <numerusform>%1 changed in %n songs.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::PanelNotices</name>
    <message numerus="yes">
        <source>%1 of %n song(s) are published; the rest would not be.</source>
        <translation>
            <numerusform>%1 of %n song is published; the rest would not be.</numerusform>
            <numerusform>%1 of %n songs are published; the rest would not be.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) were published from this computer before.</source>
        <translation>
            <numerusform>%1 of %n song was published from this computer before.</numerusform>
            <numerusform>%1 of %n songs were published from this computer before.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::Selection</name>
    <message numerus="yes">
        <source>%n song(s) selected: an edit changes all of them.</source>
        <translation>
            <numerusform>%n song selected: an edit changes all of them.</numerusform>
            <numerusform>%n songs selected: an edit changes all of them.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>≠ %n value(s)</source>
        <translation>
            <numerusform>≠ %n value</numerusform>
            <numerusform>≠ %n values</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n different value(s): %1</source>
        <translation>
            <numerusform>%n different value: %1</numerusform>
            <numerusform>%n different values: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::SongCommands</name>
    <message numerus="yes">
        <source>%n song(s) added.</source>
        <translation>
            <numerusform>%n song added.</numerusform>
            <numerusform>%n songs added.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) added; %1 were in the list already.</source>
        <translation>
            <numerusform>%n song added; %1 were in the list already.</numerusform>
            <numerusform>%n songs added; %1 were in the list already.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) removed from the list; the files stay.</source>
        <translation>
            <numerusform>%n song removed from the list; the files stay.</numerusform>
            <numerusform>%n songs removed from the list; the files stay.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) need a look before they can be published. %2</source>
        <translation>
            <numerusform>%1 of %n song needs a look before it can be published. %2</numerusform>
            <numerusform>%1 of %n songs need a look before they can be published. %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) from last time.</source>
        <translation>
            <numerusform>%n song from last time.</numerusform>
            <numerusform>%n songs from last time.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) from last time; %1 no longer there.</source>
        <translation>
            <numerusform>%n song from last time; %1 no longer there.</numerusform>
            <numerusform>%n songs from last time; %1 no longer there.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n file</numerusform>
            <numerusform>%n files</numerusform>
        </translation>
    </message>
</context>
</TS>
