<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_US">
<context>
    <name>tolvik::viewer::AttributeTable</name>
    <message numerus="yes">
        <source>%n feature(s)</source>
        <translation>
            <numerusform>%n feature</numerusform>
            <numerusform>%n features</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source> – %n number(s)</source>
        <translation>
            <numerusform> – %n number</numerusform>
            <numerusform> – %n numbers</numerusform>
        </translation>
    </message>
</context>
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
    <name>tolvik::viewer::FeatureRemoval</name>
    <message numerus="yes">
        <source>remove %n feature(s)</source>
        <translation>
            <numerusform>remove %n feature</numerusform>
            <numerusform>remove %n features</numerusform>
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
    <name>tolvik::viewer::ImportDialog</name>
    <message numerus="yes">
        <source>%Ln change(s)</source>
        <translation>
            <numerusform>%Ln change</numerusform>
            <numerusform>%Ln changes</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln problem(s)</source>
        <translation>
            <numerusform>%Ln problem</numerusform>
            <numerusform>%Ln problems</numerusform>
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
<context>
    <name>tolvik::viewer::PropertyEdit</name>
    <message numerus="yes">
        <source>%n feature(s)</source>
        <translation>
            <numerusform>%n feature</numerusform>
            <numerusform>%n features</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::PropertyPanel</name>
    <message numerus="yes">
        <source>Reading %n feature(s)…</source>
        <translation>
            <numerusform>Reading %n feature…</numerusform>
            <numerusform>Reading %n features…</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s)</source>
        <translation>
            <numerusform>%n feature</numerusform>
            <numerusform>%n features</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::TableCommands</name>
    <message numerus="yes">
        <source>%Ln cell(s) of %1 are imported.</source>
        <extracomment>Name of a file</extracomment>
        <translation>
            <numerusform>%Ln cell of %1 is imported.</numerusform>
            <numerusform>%Ln cells of %1 are imported.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::ValueText</name>
    <message numerus="yes">
        <source>%n entries: %1…</source>
        <translation>
            <numerusform>%n entry: %1…</numerusform>
            <numerusform>%n entries: %1…</numerusform>
        </translation>
    </message>
</context>
</TS>
