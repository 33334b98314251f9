<?xml version="1.0" encoding="utf-8"?>
<TS version="2.1" language="de">
<context>
    <name>brindlex</name>
    <message>
        <source>Track</source>
        <translation>Lied</translation>
    </message>
    <message>
        <source>Upload &amp; close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>other</name>
    <message>
        <source>Album</source>
        <translation>of another module</translation>
    </message>
</context>
</TS>
