<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>tolvik::viewer::FeatureBrowser</name>
    <message numerus="yes">
        <source>%Ln hit(s)</source>
        <translation>
            <numerusform>%Ln hit</numerusform>
            <numerusform>%Ln hits</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::FindingsModel</name>
    <message numerus="yes">
        <source>%Ln more: %1</source>
        <translation>
            <numerusform>%Ln more: %1</numerusform>
            <numerusform>%Ln more: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::FindingsPanel</name>
    <message numerus="yes">
        <source>%Ln place(s) where the document is not as its schema asks.</source>
        <translation>
            <numerusform>%Ln place where the document is not as its schema asks.</numerusform>
            <numerusform>%Ln places where the document is not as its schema asks.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::MainWindow</name>
    <message numerus="yes">
        <source>The program has ended with %Ln unsaved change(s) of %1.</source>
        <translation>
            <numerusform>The program has ended with %Ln unsaved change of %1.</numerusform>
            <numerusform>The program has ended with %Ln unsaved changes of %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln feature(s) refer to %1.</source>
        <translation>
            <numerusform>%Ln feature refers to %1.</numerusform>
            <numerusform>%Ln features refer to %1.</numerusform>
        </translation>
    </message>
</context>
</TS>
