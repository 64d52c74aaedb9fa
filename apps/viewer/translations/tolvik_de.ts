<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en_US">
<context>
    <name>main</name>
    <message>
        <source>Shows and edits city models in CityGML 2.0.</source>
        <translation>Zeigt und bearbeitet Stadtmodelle in CityGML 2.0.</translation>
    </message>
    <message>
        <source>desktop, light or dark</source>
        <translation>desktop (wie die Arbeitsfläche), light (hell) oder dark (dunkel)</translation>
    </message>
    <message>
        <source>Write a picture of the window to FILE, and end</source>
        <translation>Schreibt ein Bild des Fensters nach FILE und endet</translation>
    </message>
    <message>
        <source>Document to open</source>
        <translation>Zu öffnendes Dokument</translation>
    </message>
</context>
<context>
    <name>tolvik</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
</context>
<context>
    <name>tolvik::CityGMLModel</name>
    <message>
        <source>&lt;unset&gt;</source>
        <translation>&lt;nicht gesetzt&gt;</translation>
    </message>
    <message>
        <source>Building Model</source>
        <translation>Modell wird aufgebaut</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
</context>
<context>
    <name>tolvik::CityGMLModelPlugin</name>
    <message>
        <source>CityGML documents (*.gml *.xml)</source>
        <translation>CityGML-Dokumente (*.gml *.xml)</translation>
    </message>
</context>
<context>
    <name>tolvik::CityGMLProxyModel</name>
    <message>
        <source>Building Proxy Nodes</source>
        <translation>Knoten des Baums werden angelegt</translation>
    </message>
    <message>
        <source>Building Nodes Parent/Children relashionship</source>
        <translation>Knoten des Baums werden verknüpft</translation>
    </message>
    <message>
        <source>Building Root nodes</source>
        <translation>Wurzeln des Baums werden gesammelt</translation>
    </message>
    <message>
        <source>Select siblings of same type</source>
        <translation>Geschwister gleichen Typs auswählen</translation>
    </message>
    <message>
        <source>Select all brothers of the same type</source>
        <translation>Alle Geschwister desselben Typs auswählen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
</context>
<context>
    <name>tolvik::CityGMLViewSettingsWidget</name>
    <message>
        <source>Level of detail 0 up to</source>
        <translation>Detailstufe 0 bis</translation>
    </message>
    <message>
        <source>Level of detail 1 up to</source>
        <translation>Detailstufe 1 bis</translation>
    </message>
    <message>
        <source>Level of detail 2 up to</source>
        <translation>Detailstufe 2 bis</translation>
    </message>
    <message>
        <source>Level of detail 3 up to</source>
        <translation>Detailstufe 3 bis</translation>
    </message>
    <message>
        <source>Level of detail 4 up to</source>
        <translation>Detailstufe 4 bis</translation>
    </message>
    <message>
        <source> m</source>
        <translation> m</translation>
    </message>
</context>
<context>
    <name>tolvik::FeaturePropertyModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
</context>
<context>
    <name>tolvik::ModelPlugins</name>
    <message>
        <source>There is no plug-in for models in %1.</source>
        <translation>In %1 gibt es kein Zusatzmodul für Modelle.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 has the interface %2, and not %3.</source>
        <translation>%1 hat die Schnittstelle %2 und nicht %3.</translation>
    </message>
    <message>
        <source>%1 is for version %2 of the library, and not %3.</source>
        <translation>%1 ist für Version %2 der Bibliothek und nicht für %3.</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2.</source>
        <translation>%1 kann nicht geladen werden: %2.</translation>
    </message>
</context>
<context>
    <name>tolvik::ScriptDocument</name>
    <message>
        <source>%1 cannot be opened</source>
        <translation>%1 kann nicht geöffnet werden</translation>
    </message>
</context>
<context>
    <name>tolvik::TreeNodeProxyModel</name>
    <message>
        <source>Select children</source>
        <translation>Kinder auswählen</translation>
    </message>
    <message>
        <source>Select everything directly below the selection</source>
        <translation>Alles direkt unter der Auswahl auswählen</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Auswählen</translation>
    </message>
</context>
<context>
    <name>tolvik::apps::DocumentReading</name>
    <message>
        <source>Reading</source>
        <translation>Lesen</translation>
    </message>
</context>
<context>
    <name>tolvik::apps::PropertyText</name>
    <message>
        <source>%1 cannot hold the character U+%2, as XML has no such character</source>
        <translation>%1 kann das Zeichen U+%2 nicht enthalten, da XML es nicht kennt</translation>
    </message>
    <message>
        <source>%1 cannot be edited</source>
        <translation>%1 kann nicht bearbeitet werden</translation>
    </message>
    <message>
        <source>%1 cannot be &quot;%2&quot;</source>
        <translation>%1 kann nicht „%2“ sein</translation>
    </message>
    <message>
        <source>%1 cannot be set to &quot;%2&quot;</source>
        <translation>%1 kann nicht auf „%2“ gesetzt werden</translation>
    </message>
</context>
<context>
    <name>tolvik::scene::AttributeColours</name>
    <message>
        <source>no value</source>
        <translation>kein Wert</translation>
    </message>
    <message>
        <source>other values</source>
        <translation>andere Werte</translation>
    </message>
</context>
<context>
    <name>tolvik::tables::CellEdit</name>
    <message>
        <source>the unit is &quot;%1&quot;, and not &quot;%2&quot;</source>
        <translation>die Einheit ist „%1“ und nicht „%2“</translation>
    </message>
    <message>
        <source>there is no value with the unit &quot;%1&quot; that could be changed</source>
        <translation>es gibt keinen Wert mit der Einheit „%1“, der geändert werden könnte</translation>
    </message>
    <message>
        <source>it is &quot;%1&quot;, which a table cannot change</source>
        <translation>es ist „%1“, was eine Tabelle nicht ändern kann</translation>
    </message>
    <message>
        <source>a name cannot have characters that XML has not</source>
        <translation>ein Name kann keine Zeichen haben, die XML nicht kennt</translation>
    </message>
    <message>
        <source>it cannot be removed</source>
        <translation>es kann nicht entfernt werden</translation>
    </message>
    <message>
        <source>the feature has no such attribute</source>
        <translation>das Objekt hat kein solches Attribut</translation>
    </message>
    <message>
        <source>the feature has no group %1 of %2; a table cannot add one</source>
        <translation>das Objekt hat keine Gruppe %1 von %2; eine Tabelle kann keine hinzufügen</translation>
    </message>
    <message>
        <source>a measure needs a unit: call the column &quot;%1 [UNIT]&quot;</source>
        <translation>ein Messwert braucht eine Einheit: die Spalte muss „%1 [EINHEIT]“ heißen</translation>
    </message>
</context>
<context>
    <name>tolvik::tables::GenericAttributes</name>
    <message>
        <source>&quot;%1&quot; is no number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no date</source>
        <translation>„%1“ ist kein Datum</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number</source>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>the feature has no such attribute, and none can be made of the name</source>
        <translation>das Objekt hat kein solches Attribut, und aus dem Namen kann keines gemacht werden</translation>
    </message>
    <message>
        <source>XML has no such characters</source>
        <translation>XML kennt solche Zeichen nicht</translation>
    </message>
</context>
<context>
    <name>tolvik::tables::TableImport</name>
    <message>
        <source>the feature is in %1 and in %2; a column &quot;file&quot; tells which is meant</source>
        <translation>das Objekt ist in %1 und in %2; eine Spalte „file“ sagt, welches gemeint ist</translation>
    </message>
    <message>
        <source>no document has such a feature</source>
        <translation>kein Dokument hat ein solches Objekt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contradicts &quot;%2&quot; of line %3</source>
        <translation>„%1“ widerspricht „%2“ aus Zeile %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contradicts &quot;%2&quot; of row %3</source>
        <translation>„%1“ widerspricht „%2“ aus Datensatz %3</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::AttributeDialog</name>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Wert:</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>&amp;Einheit:</translation>
    </message>
    <message>
        <source>Add an Attribute</source>
        <translation>Attribut hinzufügen</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Whole number</source>
        <translation>Ganze Zahl</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verweis</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Maß</translation>
    </message>
    <message>
        <source>Set of attributes</source>
        <translation>Gruppe von Attributen</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Typ:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>An attribute needs a name.</source>
        <translation>Ein Attribut braucht einen Namen.</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::AttributeTable</name>
    <message>
        <source>Type of the features</source>
        <translation>Typ der Objekte</translation>
    </message>
    <message>
        <source>Filter rows</source>
        <translation>Zeilen filtern</translation>
    </message>
    <message>
        <source>Columns…</source>
        <translation>Spalten…</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attribute</translation>
    </message>
    <message>
        <source>Reading: %1 of %2</source>
        <translation>Lesen: %1 von %2</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copy with &amp;Titles</source>
        <translation>Mit &amp;Titeln kopieren</translation>
    </message>
    <message>
        <source>&amp;Select the Features</source>
        <translation>Objekte au&amp;swählen</translation>
    </message>
    <message>
        <source>C&amp;olumns…</source>
        <translation>S&amp;palten…</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s)</source>
        <translation>
            <numerusform>%n Objekt</numerusform>
            <numerusform>%n Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 features</source>
        <translation>%1 von %2 Objekten</translation>
    </message>
    <message numerus="yes">
        <source> – %n number(s)</source>
        <translation>
            <numerusform> – %n Zahl</numerusform>
            <numerusform> – %n Zahlen</numerusform>
        </translation>
    </message>
    <message>
        <source>: sum %1, mean %2, smallest %3, largest %4</source>
        <translation>: Summe %1, Mittel %2, kleinste %3, größte %4</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::CityView</name>
    <message>
        <source>City in three dimensions</source>
        <translation>Stadt in drei Dimensionen</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::ColumnsDialog</name>
    <message>
        <source>Columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <source>Filter columns</source>
        <translation>Spalten filtern</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keine</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::EditRunner</name>
    <message>
        <source>Another edit is still under way.</source>
        <translation>Eine andere Änderung ist noch im Gang.</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>Rückgängig machen</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Taking back</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>Recovering</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>es wurde abgebrochen</translation>
    </message>
    <message>
        <source>an edit does not fit the document</source>
        <translation>eine Änderung passt nicht zum Dokument</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::ExportDialog</name>
    <message>
        <source>Text with commas</source>
        <translation>Text mit Kommas</translation>
    </message>
    <message>
        <source>GeoJSON with a line a feature</source>
        <translation>GeoJSON mit einer Zeile je Objekt</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>Tabellenkalkulation</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exportieren...</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Tabelle exportieren</translation>
    </message>
    <message>
        <source>&amp;Features</source>
        <translation>&amp;Objekte</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Spalten</translation>
    </message>
    <message>
        <source>All types, a table each</source>
        <translation>Alle Typen, je eine Tabelle</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>All that the features have</source>
        <translation>Alle, die die Objekte haben</translation>
    </message>
    <message>
        <source>Those of the table (%1)</source>
        <translation>Die der Tabelle (%1)</translation>
    </message>
    <message>
        <source>Reading the features…</source>
        <translation>Die Objekte werden gelesen …</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translation>%1 wird geschrieben …</translation>
    </message>
    <message>
        <source>The table could not be written: %1</source>
        <translation>Die Tabelle konnte nicht geschrieben werden: %1</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::FeatureActions</name>
    <message>
        <source>&amp;Hide</source>
        <translation>A&amp;usblenden</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Einblenden</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Show &amp;Only This</source>
        <translation>&amp;Nur dies zeigen</translation>
    </message>
    <message>
        <source>O</source>
        <translation>O</translation>
    </message>
    <message>
        <source>Hide &amp;All</source>
        <translation>&amp;Alles ausblenden</translation>
    </message>
    <message>
        <source>Ctrl+Shift+H</source>
        <translation>Ctrl+Shift+H</translation>
    </message>
    <message>
        <source>Sho&amp;w All</source>
        <translation>A&amp;lles einblenden</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>&amp;Sperre aufheben</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>S&amp;perren</translation>
    </message>
    <message>
        <source>Ena&amp;ble All</source>
        <translation>Alle Sperren auf&amp;heben</translation>
    </message>
    <message>
        <source>Select Siblings of Same &amp;Type</source>
        <translation>Geschwister gleichen &amp;Typs auswählen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+T</source>
        <translation>Ctrl+Shift+T</translation>
    </message>
    <message>
        <source>&amp;Copy Identifier</source>
        <translation>&amp;Kennung kopieren</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>&amp;Go to Reference</source>
        <translation>&amp;Gehe zum Verweis</translation>
    </message>
    <message>
        <source>Ctrl+R</source>
        <translation>Ctrl+R</translation>
    </message>
    <message>
        <source>Ctrl+Shift+R</source>
        <translation>Ctrl+Shift+R</translation>
    </message>
    <message>
        <source>Re&amp;move Feature</source>
        <translation>&amp;Objekt entfernen</translation>
    </message>
    <message>
        <source>Who Re&amp;fers to This?</source>
        <translation>&amp;Wer verweist hierauf?</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::FeatureBrowser</name>
    <message>
        <source>Feature tree</source>
        <translation>Baum der Objekte</translation>
    </message>
    <message>
        <source>Filtered feature tree</source>
        <translation>Gefilterter Baum der Objekte</translation>
    </message>
    <message>
        <source>Feature list</source>
        <translation>Liste der Objekte</translation>
    </message>
    <message>
        <source>&amp;Tree</source>
        <translation>&amp;Baum</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search for features</source>
        <translation>Objekte suchen</translation>
    </message>
    <message>
        <source>Words in the name, identifier or type; type:Window, name:north,
height&gt;3, function=1000 for attributes. Enter goes to the next hit.</source>
        <translation>Wörter im Namen, in der Kennung oder im Typ; type:Window, name:nord,
height&gt;3, function=1000 für Attribute. Eingabe führt zum nächsten Treffer.</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Previous hit</source>
        <translation>Voriger Treffer</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Next hit</source>
        <translation>Nächster Treffer</translation>
    </message>
    <message>
        <source>Filter by type</source>
        <translation>Nach Typ filtern</translation>
    </message>
    <message>
        <source>Show only features of one type</source>
        <translation>Nur Objekte eines Typs zeigen</translation>
    </message>
    <message>
        <source>All types</source>
        <translation>Alle Typen</translation>
    </message>
    <message>
        <source>Only hits</source>
        <translation>Nur Treffer</translation>
    </message>
    <message>
        <source>Show only the features that the search has found</source>
        <translation>Nur die Objekte zeigen, die die Suche gefunden hat</translation>
    </message>
    <message>
        <source>%1 (%L2)</source>
        <extracomment>A type of features, and how many there are</extracomment>
        <translation>%1 (%L2)</translation>
    </message>
    <message>
        <source>no hits</source>
        <translation>keine Treffer</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hit(s)</source>
        <translation>
            <numerusform>%Ln Treffer</numerusform>
            <numerusform>%Ln Treffer</numerusform>
        </translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 von %L2</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::FeatureListModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::FeatureRemoval</name>
    <message>
        <source>remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message numerus="yes">
        <source>remove %n feature(s)</source>
        <translation>
            <numerusform>%n Objekt entfernen</numerusform>
            <numerusform>%n Objekte entfernen</numerusform>
        </translation>
    </message>
    <message>
        <source>The document itself cannot be removed.</source>
        <translation>Das Dokument selbst kann nicht entfernt werden.</translation>
    </message>
    <message>
        <source>%1 cannot be removed, as what stands around it needs it.</source>
        <translation>%1 kann nicht entfernt werden, da das Umgebende es braucht.</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::FileCommands</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>City models (*.gml *.xml *.citygml);;All files (*)</source>
        <translation>Stadtmodelle (*.gml *.xml *.citygml);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>Reading %1 was cancelled.</source>
        <translation>Das Lesen von %1 wurde abgebrochen.</translation>
    </message>
    <message>
        <source>%1 is open.</source>
        <translation>%1 ist geöffnet.</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2.</source>
        <translation>%1 konnte nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>Another program has changed %1. A reload would lose your edits.</source>
        <translation>Ein anderes Programm hat %1 geändert. Beim Neuladen gingen Ihre Änderungen verloren.</translation>
    </message>
    <message>
        <source>Another program has changed %1.</source>
        <translation>Ein anderes Programm hat %1 geändert.</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Neu laden</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Nicht gespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Save the changes of %1?</source>
        <translation>Änderungen von %1 speichern?</translation>
    </message>
    <message>
        <source>Otherwise they are lost.</source>
        <translation>Sonst gehen sie verloren.</translation>
    </message>
    <message>
        <source>File has changed</source>
        <translation>Datei wurde geändert</translation>
    </message>
    <message>
        <source>If you save, what that program has written is lost.</source>
        <translation>Wenn Sie speichern, geht verloren, was jenes Programm geschrieben hat.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>%1 is saved.</source>
        <translation>%1 ist gespeichert.</translation>
    </message>
    <message>
        <source>Re&amp;pair a Copy...</source>
        <translation>Kopie re&amp;parieren...</translation>
    </message>
    <message>
        <source>Save Repaired Copy</source>
        <translation>Reparierte Kopie speichern</translation>
    </message>
    <message>
        <source>%1-repaired.gml</source>
        <translation>%1-repariert.gml</translation>
    </message>
    <message>
        <source>a repair does not write over the document itself</source>
        <translation>eine Reparatur überschreibt nicht das Dokument selbst</translation>
    </message>
    <message>
        <source>Repairing %1</source>
        <translation>%1 wird repariert</translation>
    </message>
    <message>
        <source>%1 could not be repaired: %2.</source>
        <translation>%1 konnte nicht repariert werden: %2.</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>%1 wird gespeichert</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2.</source>
        <translation>%1 konnte nicht gespeichert werden: %2.</translation>
    </message>
    <message>
        <source>All of %1 was written anew: %2.</source>
        <translation>%1 wurde ganz neu geschrieben: %2.</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::FindingsModel</name>
    <message numerus="yes">
        <source>%Ln more: %1</source>
        <translation>
            <numerusform>%Ln weitere Stelle: %1</numerusform>
            <numerusform>%Ln weitere Stellen: %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Was nicht stimmt</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Element</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Objekt</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::FindingsPanel</name>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>Nothing was found wrong with the document.</source>
        <translation>Am Dokument wurde nichts Falsches gefunden.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln place(s) where the document is not as its schema asks.</source>
        <translation>
            <numerusform>%Ln Stelle, an der das Dokument seinem Schema nicht entspricht.</numerusform>
            <numerusform>%Ln Stellen, an denen das Dokument seinem Schema nicht entspricht.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::ImportDialog</name>
    <message>
        <source>&amp;Make generic attributes of columns that features have no attribute for</source>
        <translation>&amp;Generische Attribute aus Spalten machen, für die Objekte kein Attribut haben</translation>
    </message>
    <message>
        <source>&amp;Skip what cannot be set</source>
        <translation>&amp;Überspringen, was nicht gesetzt werden kann</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>Import %1</source>
        <translation>%1 importieren</translation>
    </message>
    <message>
        <source>no word: empty cells leave the attribute alone</source>
        <translation>kein Wort: leere Zellen lassen das Attribut, wie es ist</translation>
    </message>
    <message>
        <source>Column that &amp;names the feature</source>
        <translation>Spalte, die das Objekt &amp;nennt</translation>
    </message>
    <message>
        <source>&amp;Word that takes an attribute away</source>
        <translation>&amp;Wort, das ein Attribut entfernt</translation>
    </message>
    <message>
        <source>What the import changes</source>
        <translation>Was der Import ändert</translation>
    </message>
    <message>
        <source>Reading the table…</source>
        <translation>Die Tabelle wird gelesen …</translation>
    </message>
    <message>
        <source>Comparing the table with the document…</source>
        <translation>Die Tabelle wird mit dem Dokument verglichen …</translation>
    </message>
    <message numerus="yes">
        <source>%Ln change(s)</source>
        <translation>
            <numerusform>%Ln Änderung</numerusform>
            <numerusform>%Ln Änderungen</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2</source>
        <extracomment>Joins the number of changes and the number of problems</extracomment>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%Ln problem(s)</source>
        <translation>
            <numerusform>%Ln Problem</numerusform>
            <numerusform>%Ln Probleme</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::ImportPreview</name>
    <message>
        <source>Line %1: %2</source>
        <extracomment>Number of the line or row of a table, and why it cannot be imported</extracomment>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>Datensatz %1: %2</translation>
    </message>
    <message>
        <source>absent</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Objekt</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>After the import</source>
        <translation>Nach dem Import</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::ListEditor</name>
    <message>
        <source>Entries of the list</source>
        <translation>Einträge der Liste</translation>
    </message>
    <message>
        <source>Add an entry</source>
        <translation>Eintrag hinzufügen</translation>
    </message>
    <message>
        <source>Remove the entry</source>
        <translation>Eintrag entfernen</translation>
    </message>
    <message>
        <source>Move the entry up</source>
        <translation>Eintrag nach oben</translation>
    </message>
    <message>
        <source>Move the entry down</source>
        <translation>Eintrag nach unten</translation>
    </message>
    <message>
        <source>Take the list over</source>
        <translation>Liste übernehmen</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::LogModel</name>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Stufe</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::LogPanel</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Lowest level that is shown</source>
        <translation>Niedrigste angezeigte Stufe</translation>
    </message>
    <message>
        <source>All messages</source>
        <translation>Alle Meldungen</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>Warnungen und Fehler</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Nur Fehler</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::MainWindow</name>
    <message>
        <source>No feature has the identifier %1.</source>
        <translation>Kein Objekt hat die Kennung %1.</translation>
    </message>
    <message numerus="yes">
        <source>The program has ended with %Ln unsaved change(s) of %1.</source>
        <translation>
            <numerusform>Das Programm endete mit %Ln nicht gespeicherten Änderung von %1.</numerusform>
            <numerusform>Das Programm endete mit %Ln nicht gespeicherten Änderungen von %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>The changes of %1 cannot be recovered: %2.</source>
        <translation>Die Änderungen von %1 können nicht wiederhergestellt werden: %2.</translation>
    </message>
    <message>
        <source>The changes of %1 are recovered.</source>
        <translation>Die Änderungen von %1 sind wiederhergestellt.</translation>
    </message>
    <message>
        <source>Not all changes of %1 could be recovered: %2.</source>
        <translation>Nicht alle Änderungen von %1 konnten wiederhergestellt werden: %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 refers to no other feature.</source>
        <translation>%1 verweist auf kein anderes Objekt.</translation>
    </message>
    <message>
        <source>No feature refers to %1.</source>
        <translation>Kein Objekt verweist auf %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln feature(s) refer to %1.</source>
        <translation>
            <numerusform>%Ln Objekt verweist auf %1.</numerusform>
            <numerusform>%Ln Objekte verweisen auf %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Findings</source>
        <extracomment>Title of the panel, with the number of findings</extracomment>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New Window</source>
        <translation>&amp;Neues Fenster</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Zu&amp;letzt geöffnet</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Ne&amp;u laden</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Speichern un&amp;ter...</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>Fenster s&amp;chließen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig:</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederholen:</translation>
    </message>
    <message>
        <source>Ctrl+Y</source>
        <translation>Ctrl+Y</translation>
    </message>
    <message>
        <source>&amp;Search Features</source>
        <translation>Objekte &amp;suchen</translation>
    </message>
    <message>
        <source>&amp;Next Hit</source>
        <translation>&amp;Nächster Treffer</translation>
    </message>
    <message>
        <source>&amp;Previous Hit</source>
        <translation>&amp;Voriger Treffer</translation>
    </message>
    <message>
        <source>Se&amp;ttings...</source>
        <translation>&amp;Einstellungen...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>Alles auf&amp;klappen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+E</source>
        <translation>Ctrl+Shift+E</translation>
    </message>
    <message>
        <source>&amp;Collapse All</source>
        <translation>Alles &amp;zuklappen</translation>
    </message>
    <message>
        <source>Ctrl+Shift+W</source>
        <translation>Ctrl+Shift+W</translation>
    </message>
    <message>
        <source>C&amp;olours</source>
        <translation>&amp;Farben</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Wie die &amp;Arbeitsfläche</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>D&amp;ark</source>
        <translation>&amp;Dunkel</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Werkzeuge</translation>
    </message>
    <message>
        <source>Changes are not kept for a recovery: %1</source>
        <translation>Änderungen werden nicht für eine Wiederherstellung aufbewahrt: %1</translation>
    </message>
    <message>
        <source>Tolvik</source>
        <extracomment>Title of the window: name of the document, mark of unsaved changes, name of the program</extracomment>
        <translation>Tolvik</translation>
    </message>
    <message>
        <source>%1[*] - Tolvik</source>
        <translation>%1[*] - Tolvik</translation>
    </message>
    <message>
        <source>Findings (%L1)</source>
        <translation>Befunde (%L1)</translation>
    </message>
    <message>
        <source>About Tolvik</source>
        <translation>Über Tolvik</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Tolvik %1&lt;/h3&gt;&lt;p&gt;Shows and edits city models in CityGML 2.0.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Tolvik %1&lt;/h3&gt;&lt;p&gt;Zeigt und bearbeitet Stadtmodelle in CityGML 2.0.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Featu&amp;re</source>
        <translation>&amp;Objekt</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>%1 is not opened.</source>
        <translation>%1 wird nicht geöffnet.</translation>
    </message>
    <message>
        <source>&amp;City</source>
        <translation>S&amp;tadt</translation>
    </message>
    <message>
        <source>&amp;Export Table...</source>
        <translation>Tabelle &amp;exportieren...</translation>
    </message>
    <message>
        <source>&amp;Import Table...</source>
        <translation>Tabelle &amp;importieren...</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::NoticeBar</name>
    <message>
        <source>Close this message</source>
        <translation>Diese Meldung schließen</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::PictureDialog</name>
    <message>
        <source>Leave the background out</source>
        <translation>Hintergrund weglassen</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>&amp;Width in pixels</source>
        <translation>&amp;Breite in Bildpunkten</translation>
    </message>
    <message>
        <source>&amp;Height in pixels</source>
        <translation>&amp;Höhe in Bildpunkten</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::PropertyEdit</name>
    <message>
        <source>XML has no character U+%1.</source>
        <translation>XML kennt das Zeichen U+%1 nicht.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be an entry of this list.</source>
        <translation>„%1“ kann kein Eintrag dieser Liste sein.</translation>
    </message>
    <message>
        <source>The feature can have no such attribute.</source>
        <translation>Das Objekt kann kein solches Attribut haben.</translation>
    </message>
    <message>
        <source>%1 cannot be &quot;%2&quot;.</source>
        <translation>%1 kann nicht „%2“ sein.</translation>
    </message>
    <message>
        <source>%1 cannot be absent.</source>
        <translation>%1 kann nicht fehlen.</translation>
    </message>
    <message>
        <source>%1 is not a generic attribute.</source>
        <translation>%1 ist kein generisches Attribut.</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s)</source>
        <translation>
            <numerusform>%n Objekt</numerusform>
            <numerusform>%n Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>change %1 of %2</source>
        <translation>%1 von %2 ändern</translation>
    </message>
    <message>
        <source>make %1 of %2 absent</source>
        <translation>%1 von %2 weglassen</translation>
    </message>
    <message>
        <source>add to %1 of %2</source>
        <translation>zu %1 von %2 hinzufügen</translation>
    </message>
    <message>
        <source>add attribute %1 to %2</source>
        <translation>Attribut %1 zu %2 hinzufügen</translation>
    </message>
    <message>
        <source>rename attribute %1 of %2</source>
        <translation>Attribut %1 von %2 umbenennen</translation>
    </message>
    <message>
        <source>remove attribute %1 of %2</source>
        <translation>Attribut %1 von %2 entfernen</translation>
    </message>
    <message>
        <source>The unit of %1 cannot be &quot;%2&quot;.</source>
        <translation>Die Einheit von %1 kann nicht „%2“ sein.</translation>
    </message>
    <message>
        <source>change the unit of %1 of %2</source>
        <translation>Einheit von %1 von %2 ändern</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::PropertyPanel</name>
    <message>
        <source>Filter properties</source>
        <translation>Eigenschaften filtern</translation>
    </message>
    <message>
        <source>Absent</source>
        <translation>Fehlende</translation>
    </message>
    <message>
        <source>Show the attributes that the features do not have</source>
        <translation>Attribute zeigen, die die Objekte nicht haben</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Add an attribute or an entry of a list</source>
        <translation>Ein Attribut oder einen Listeneintrag hinzufügen</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n feature(s)…</source>
        <translation>
            <numerusform>%n Objekt wird gelesen…</numerusform>
            <numerusform>%n Objekte werden gelesen…</numerusform>
        </translation>
    </message>
    <message>
        <source>Rename the Attribute</source>
        <translation>Attribut umbenennen</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>Zu %1 hinzufügen</translation>
    </message>
    <message>
        <source>Entry:</source>
        <translation>Eintrag:</translation>
    </message>
    <message>
        <source>Nothing is selected</source>
        <translation>Nichts ist ausgewählt</translation>
    </message>
    <message>
        <source>&amp;Attribute…</source>
        <translation>&amp;Attribut…</translation>
    </message>
    <message>
        <source>Entry of %1…</source>
        <translation>Eintrag von %1…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation>Wert &amp;kopieren</translation>
    </message>
    <message>
        <source>&amp;Follow the Link</source>
        <translation>Verweis &amp;folgen</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Umbenennen…</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;Make Absent</source>
        <translation>&amp;Weglassen</translation>
    </message>
    <message>
        <source>The features are still being read.</source>
        <translation>Die Objekte werden noch gelesen.</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s)</source>
        <translation>
            <numerusform>%n Objekt</numerusform>
            <numerusform>%n Objekte</numerusform>
        </translation>
    </message>
    <message>
        <source>Edit the &amp;Unit</source>
        <translation>&amp;Einheit bearbeiten</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::PropertyTreeModel</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>(different values)</source>
        <translation>(verschiedene Werte)</translation>
    </message>
    <message>
        <source>Absent: it comes into being when it is given a value.</source>
        <translation>Fehlt: ein Wert lässt es entstehen.</translation>
    </message>
    <message>
        <source>Cannot be changed here.</source>
        <translation>Kann hier nicht geändert werden.</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::Recovery</name>
    <message>
        <source>there is no such file any more</source>
        <translation>es gibt die Datei nicht mehr</translation>
    </message>
    <message>
        <source>the file is not the one that was edited</source>
        <translation>die Datei ist nicht die, die bearbeitet wurde</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::StatusProgress</name>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Give up what is going on</source>
        <translation>Abbrechen, was gerade läuft</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::TableCommands</name>
    <message>
        <source>%1 is written.</source>
        <translation>%1 ist geschrieben.</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>Tabelle importieren</translation>
    </message>
    <message>
        <source>Tables (*.csv *.gpkg *.geojson *.geojsonl *.fgb *.xlsx *.ods *.dbf);;All files (*)</source>
        <translation>Tabellen (*.csv *.gpkg *.geojson *.geojsonl *.fgb *.xlsx *.ods *.dbf);;Alle Dateien (*)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln cell(s) of %1 are imported.</source>
        <extracomment>Name of a file</extracomment>
        <translation>
            <numerusform>%Ln Zelle von %1 ist importiert.</numerusform>
            <numerusform>%Ln Zellen von %1 sind importiert.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 could not be imported: %2</source>
        <translation>%1 konnte nicht importiert werden: %2</translation>
    </message>
    <message>
        <source>import of %1</source>
        <translation>Import von %1</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::TableEdits</name>
    <message>
        <source>%1: %2: %3</source>
        <extracomment>Feature, attribute and why it cannot be set</extracomment>
        <translation>%1: %2: %3</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::ValueText</name>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number from 0 up.</source>
        <translation>„%1“ ist keine ganze Zahl ab 0.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date such as %2.</source>
        <translation>„%1“ ist kein Datum wie %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number.</source>
        <translation>„%1“ ist keine ganze Zahl.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries: %1…</source>
        <translation>
            <numerusform>%n Eintrag: %1…</numerusform>
            <numerusform>%n Einträge: %1…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::ViewOverlay</name>
    <message>
        <source>Distance %L1, on the ground %L2, height %L3</source>
        <extracomment>A measured line: its length, its length on the ground, and how far it leads up or down</extracomment>
        <translation>Abstand %L1, am Boden %L2, Höhe %L3</translation>
    </message>
    <message>
        <source>%1 (%L2)</source>
        <extracomment>An entry of the legend: a value, and the number of features that have it</extracomment>
        <translation>%1 (%L2)</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::ViewPanel</name>
    <message>
        <source>The city cannot be drawn: there is no OpenGL here. Everything else can be used.</source>
        <translation>Die Stadt kann nicht gezeichnet werden: Hier gibt es kein OpenGL. Alles andere ist benutzbar.</translation>
    </message>
    <message>
        <source>The city cannot be drawn: %1.</source>
        <translation>Die Stadt kann nicht gezeichnet werden: %1.</translation>
    </message>
    <message>
        <source>Building the view: %1 %</source>
        <translation>Die Ansicht wird aufgebaut: %1 %</translation>
    </message>
    <message>
        <source>%L1 triangles</source>
        <translation>%L1 Dreiecke</translation>
    </message>
    <message>
        <source>Zoom to &amp;All</source>
        <translation>&amp;Alles zeigen</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>&amp;Zoom to Selected</source>
        <translation>Auswahl &amp;zeigen</translation>
    </message>
    <message>
        <source>F</source>
        <translation>F</translation>
    </message>
    <message>
        <source>&amp;Reset Representation</source>
        <translation>Darstellung &amp;neu aufbauen</translation>
    </message>
    <message>
        <source>From A&amp;bove and the Side</source>
        <translation>Von &amp;schräg oben</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>From the &amp;Top</source>
        <translation>Von &amp;oben</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>From the Sout&amp;h</source>
        <translation>Von Sü&amp;den</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>From the &amp;East</source>
        <translation>Von Os&amp;ten</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>&amp;Parallel Lines Stay Parallel</source>
        <translation>&amp;Parallelprojektion</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>E&amp;dges</source>
        <translation>&amp;Kanten</translation>
    </message>
    <message>
        <source>E</source>
        <translation>E</translation>
    </message>
    <message>
        <source>&amp;Measure</source>
        <translation>&amp;Messen</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>&amp;Copy Picture</source>
        <translation>Bi&amp;ld kopieren</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>Bild spe&amp;ichern...</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>Detaillierungsgrad</translation>
    </message>
    <message>
        <source>Highest detail</source>
        <translation>Höchster Detailgrad</translation>
    </message>
    <message>
        <source>Lowest detail</source>
        <translation>Niedrigster Detailgrad</translation>
    </message>
    <message>
        <source>LOD %1</source>
        <translation>LOD %1</translation>
    </message>
    <message>
        <source>Materials and textures</source>
        <translation>Materialien und Texturen</translation>
    </message>
    <message>
        <source>Attribute that gives the colours</source>
        <translation>Attribut, das die Farben bestimmt</translation>
    </message>
    <message>
        <source>Colours of the types</source>
        <translation>Farben der Typen</translation>
    </message>
    <message>
        <source>Plane that cuts the city open</source>
        <translation>Ebene, die die Stadt aufschneidet</translation>
    </message>
    <message>
        <source>No section</source>
        <translation>Kein Schnitt</translation>
    </message>
    <message>
        <source>From above</source>
        <translation>Von oben</translation>
    </message>
    <message>
        <source>From the east</source>
        <translation>Von Osten</translation>
    </message>
    <message>
        <source>From the north</source>
        <translation>Von Norden</translation>
    </message>
    <message>
        <source>Files that are missing, or cannot be drawn: %1</source>
        <translation>Dateien, die fehlen oder nicht gezeichnet werden können: %1</translation>
    </message>
    <message>
        <source>No appearance</source>
        <translation>Ohne Erscheinung</translation>
    </message>
    <message>
        <source>Appearance without a name</source>
        <translation>Erscheinung ohne Namen</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Bild speichern</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Bilder (*.png)</translation>
    </message>
    <message>
        <source>A picture of that size cannot be drawn.</source>
        <translation>Ein Bild dieser Größe kann nicht gezeichnet werden.</translation>
    </message>
    <message>
        <source>The picture is saved as %1.</source>
        <translation>Das Bild ist als %1 gespeichert.</translation>
    </message>
    <message>
        <source>The picture could not be written to %1.</source>
        <translation>Das Bild konnte nicht nach %1 geschrieben werden.</translation>
    </message>
</context>
</TS>
