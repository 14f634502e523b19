<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>GeneralPage</name>
    <message>
        <source>Trace a slow glow across the notch once your Mac is idle</source>
        <translation>Trace a slow glow across the notch once your computer is idle</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>your Mac is idle</source>
        <translation>your computer is idle</translation>
    </message>
</context>
</TS>

