<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
    <name>xbr::host::Publishing</name>
    <message numerus="yes">
        <source>%n song(s) handed over. Complete the information, then upload.</source>
        <translation>
            <numerusform>%n song handed over. Complete the information, then upload.</numerusform>
            <numerusform>%n songs handed over. Complete the information, then upload.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::ServiceWatch</name>
    <message numerus="yes">
        <source>Published: %n song(s).</source>
        <translation>
            <numerusform>Published: %n song.</numerusform>
            <numerusform>Published: %n songs.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The service did not take %n song(s). Try again later.</source>
        <translation>
            <numerusform>The service did not take %n song. Try again later.</numerusform>
            <numerusform>The service did not take %n songs. Try again later.</numerusform>
        </translation>
    </message>
</context>
</TS>
