<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en_US">
<context>
    <name>main</name>
    <message>
        <source>Shows and edits city models in CityGML 2.0.</source>
        <translation>Affiche et modifie des maquettes urbaines CityGML 2.0.</translation>
    </message>
    <message>
        <source>desktop, light or dark</source>
        <translation>desktop (bureau), light (clair) ou dark (sombre)</translation>
    </message>
    <message>
        <source>Write a picture of the window to FILE, and end</source>
        <translation>Enregistre une image de la fenêtre dans FILE et termine</translation>
    </message>
    <message>
        <source>Document to open</source>
        <translation>Document à ouvrir</translation>
    </message>
</context>
<context>
    <name>tolvik</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
</context>
<context>
    <name>tolvik::CityGMLModel</name>
    <message>
        <source>&lt;unset&gt;</source>
        <translation>&lt;non défini&gt;</translation>
    </message>
    <message>
        <source>Building Model</source>
        <translation>Construction du modèle</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
</context>
<context>
    <name>tolvik::CityGMLModelPlugin</name>
    <message>
        <source>CityGML documents (*.gml *.xml)</source>
        <translation>Documents CityGML (*.gml *.xml)</translation>
    </message>
</context>
<context>
    <name>tolvik::CityGMLProxyModel</name>
    <message>
        <source>Building Proxy Nodes</source>
        <translation>Construction des nœuds de l&apos;arbre</translation>
    </message>
    <message>
        <source>Building Nodes Parent/Children relashionship</source>
        <translation>Construction des liens parents-enfants de l&apos;arbre</translation>
    </message>
    <message>
        <source>Building Root nodes</source>
        <translation>Construction des racines de l&apos;arbre</translation>
    </message>
    <message>
        <source>Select siblings of same type</source>
        <translation>Sélectionner les frères du même type</translation>
    </message>
    <message>
        <source>Select all brothers of the same type</source>
        <translation>Sélectionner tous les frères du même type</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>unknown</source>
        <translation>inconnu</translation>
    </message>
</context>
<context>
    <name>tolvik::CityGMLViewSettingsWidget</name>
    <message>
        <source>Level of detail 0 up to</source>
        <translation>Niveau de détail 0 jusqu&apos;à</translation>
    </message>
    <message>
        <source>Level of detail 1 up to</source>
        <translation>Niveau de détail 1 jusqu&apos;à</translation>
    </message>
    <message>
        <source>Level of detail 2 up to</source>
        <translation>Niveau de détail 2 jusqu&apos;à</translation>
    </message>
    <message>
        <source>Level of detail 3 up to</source>
        <translation>Niveau de détail 3 jusqu&apos;à</translation>
    </message>
    <message>
        <source>Level of detail 4 up to</source>
        <translation>Niveau de détail 4 jusqu&apos;à</translation>
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
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
</context>
<context>
    <name>tolvik::ModelPlugins</name>
    <message>
        <source>There is no plug-in for models in %1.</source>
        <translation>Il n&apos;y a pas de greffon de modèles dans %1.</translation>
    </message>
    <message>
        <source>, </source>
        <translation>, </translation>
    </message>
    <message>
        <source>%1 has the interface %2, and not %3.</source>
        <translation>%1 a l&apos;interface %2 et non %3.</translation>
    </message>
    <message>
        <source>%1 is for version %2 of the library, and not %3.</source>
        <translation>%1 est fait pour la version %2 de la bibliothèque et non %3.</translation>
    </message>
    <message>
        <source>%1 cannot be loaded: %2.</source>
        <translation>Impossible de charger %1 : %2.</translation>
    </message>
</context>
<context>
    <name>tolvik::ScriptDocument</name>
    <message>
        <source>%1 cannot be opened</source>
        <translation>impossible d&apos;ouvrir %1</translation>
    </message>
</context>
<context>
    <name>tolvik::TreeNodeProxyModel</name>
    <message>
        <source>Select children</source>
        <translation>Sélectionner les enfants</translation>
    </message>
    <message>
        <source>Select everything directly below the selection</source>
        <translation>Sélectionner tout ce qui est directement sous la sélection</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>Sélectionner</translation>
    </message>
</context>
<context>
    <name>tolvik::apps::DocumentReading</name>
    <message>
        <source>Reading</source>
        <translation>Lecture</translation>
    </message>
</context>
<context>
    <name>tolvik::apps::PropertyText</name>
    <message>
        <source>%1 cannot hold the character U+%2, as XML has no such character</source>
        <translation>%1 ne peut pas contenir le caractère U+%2, que XML ne connaît pas</translation>
    </message>
    <message>
        <source>%1 cannot be edited</source>
        <translation>%1 ne peut pas être modifié</translation>
    </message>
    <message>
        <source>%1 cannot be &quot;%2&quot;</source>
        <translation>%1 ne peut pas être « %2 »</translation>
    </message>
    <message>
        <source>%1 cannot be set to &quot;%2&quot;</source>
        <translation>%1 ne peut pas recevoir « %2 »</translation>
    </message>
</context>
<context>
    <name>tolvik::scene::AttributeColours</name>
    <message>
        <source>no value</source>
        <translation>sans valeur</translation>
    </message>
    <message>
        <source>other values</source>
        <translation>autres valeurs</translation>
    </message>
</context>
<context>
    <name>tolvik::tables::CellEdit</name>
    <message>
        <source>the unit is &quot;%1&quot;, and not &quot;%2&quot;</source>
        <translation>l&apos;unité est « %1 », et non « %2 »</translation>
    </message>
    <message>
        <source>there is no value with the unit &quot;%1&quot; that could be changed</source>
        <translation>il n&apos;y a pas de valeur d&apos;unité « %1 » à modifier</translation>
    </message>
    <message>
        <source>it is &quot;%1&quot;, which a table cannot change</source>
        <translation>c&apos;est « %1 », ce qu&apos;une table ne peut pas changer</translation>
    </message>
    <message>
        <source>a name cannot have characters that XML has not</source>
        <translation>un nom ne peut pas avoir de caractères que XML ne connaît pas</translation>
    </message>
    <message>
        <source>it cannot be removed</source>
        <translation>cela ne peut pas être enlevé</translation>
    </message>
    <message>
        <source>the feature has no such attribute</source>
        <translation>l&apos;objet n&apos;a pas cet attribut</translation>
    </message>
    <message>
        <source>the feature has no group %1 of %2; a table cannot add one</source>
        <translation>l&apos;objet n&apos;a pas de groupe %1 de %2 ; une table ne peut pas en ajouter</translation>
    </message>
    <message>
        <source>a measure needs a unit: call the column &quot;%1 [UNIT]&quot;</source>
        <translation>une mesure a besoin d&apos;une unité : la colonne doit s&apos;appeler « %1 [UNITÉ] »</translation>
    </message>
</context>
<context>
    <name>tolvik::tables::GenericAttributes</name>
    <message>
        <source>&quot;%1&quot; is no number</source>
        <translation>« %1 » n&apos;est pas un nombre</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no date</source>
        <translation>« %1 » n&apos;est pas une date</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no whole number</source>
        <translation>« %1 » n&apos;est pas un nombre entier</translation>
    </message>
    <message>
        <source>the feature has no such attribute, and none can be made of the name</source>
        <translation>l&apos;objet n&apos;a pas cet attribut, et le nom ne permet pas d&apos;en créer un</translation>
    </message>
    <message>
        <source>XML has no such characters</source>
        <translation>XML ne connaît pas de tels caractères</translation>
    </message>
</context>
<context>
    <name>tolvik::tables::TableImport</name>
    <message>
        <source>the feature is in %1 and in %2; a column &quot;file&quot; tells which is meant</source>
        <translation>l&apos;objet est dans %1 et dans %2 ; une colonne « file » dit lequel est visé</translation>
    </message>
    <message>
        <source>no document has such a feature</source>
        <translation>aucun document n&apos;a un tel objet</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contradicts &quot;%2&quot; of line %3</source>
        <translation>« %1 » contredit « %2 » de la ligne %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; contradicts &quot;%2&quot; of row %3</source>
        <translation>« %1 » contredit « %2 » de l&apos;enregistrement %3</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::AttributeDialog</name>
    <message>
        <source>&amp;Value:</source>
        <translation>&amp;Valeur :</translation>
    </message>
    <message>
        <source>&amp;Unit:</source>
        <translation>&amp;Unité :</translation>
    </message>
    <message>
        <source>Add an Attribute</source>
        <translation>Ajouter un attribut</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Whole number</source>
        <translation>Nombre entier</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Lien</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>Set of attributes</source>
        <translation>Groupe d’attributs</translation>
    </message>
    <message>
        <source>&amp;Type:</source>
        <translation>&amp;Type :</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Nom :</translation>
    </message>
    <message>
        <source>An attribute needs a name.</source>
        <translation>Un attribut a besoin d’un nom.</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::AttributeTable</name>
    <message>
        <source>Type of the features</source>
        <translation>Type des objets</translation>
    </message>
    <message>
        <source>Filter rows</source>
        <translation>Filtrer les lignes</translation>
    </message>
    <message>
        <source>Columns…</source>
        <translation>Colonnes…</translation>
    </message>
    <message>
        <source>Attributes</source>
        <translation>Attributs</translation>
    </message>
    <message>
        <source>Reading: %1 of %2</source>
        <translation>Lecture : %1 sur %2</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>Copy with &amp;Titles</source>
        <translation>Copier avec les &amp;titres</translation>
    </message>
    <message>
        <source>&amp;Select the Features</source>
        <translation>&amp;Sélectionner les objets</translation>
    </message>
    <message>
        <source>C&amp;olumns…</source>
        <translation>C&amp;olonnes…</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s)</source>
        <translation>
            <numerusform>%n objet</numerusform>
            <numerusform>%n objets</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 of %2 features</source>
        <translation>%1 objets sur %2</translation>
    </message>
    <message numerus="yes">
        <source> – %n number(s)</source>
        <translation>
            <numerusform> – %n nombre</numerusform>
            <numerusform> – %n nombres</numerusform>
        </translation>
    </message>
    <message>
        <source>: sum %1, mean %2, smallest %3, largest %4</source>
        <translation> : somme %1, moyenne %2, minimum %3, maximum %4</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::CityView</name>
    <message>
        <source>City in three dimensions</source>
        <translation>Ville en trois dimensions</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::ColumnsDialog</name>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
    <message>
        <source>Filter columns</source>
        <translation>Filtrer les colonnes</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Toutes</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Aucune</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::EditRunner</name>
    <message>
        <source>Another edit is still under way.</source>
        <translation>Une autre modification est encore en cours.</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Modification</translation>
    </message>
    <message>
        <source>Undoing</source>
        <translation>Annulation</translation>
    </message>
    <message>
        <source>Redoing</source>
        <translation>Rétablissement</translation>
    </message>
    <message>
        <source>Taking back</source>
        <translation>Retour à l’état précédent</translation>
    </message>
    <message>
        <source>Recovering</source>
        <translation>Récupération</translation>
    </message>
    <message>
        <source>it was cancelled</source>
        <translation>elle a été annulée</translation>
    </message>
    <message>
        <source>an edit does not fit the document</source>
        <translation>une modification ne convient pas au document</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::ExportDialog</name>
    <message>
        <source>Text with commas</source>
        <translation>Texte à virgules</translation>
    </message>
    <message>
        <source>GeoJSON with a line a feature</source>
        <translation>GeoJSON, une ligne par objet</translation>
    </message>
    <message>
        <source>Spreadsheet</source>
        <translation>Feuille de calcul</translation>
    </message>
    <message>
        <source>&amp;Export...</source>
        <translation>&amp;Exporter...</translation>
    </message>
    <message>
        <source>Export Table</source>
        <translation>Exporter une table</translation>
    </message>
    <message>
        <source>&amp;Features</source>
        <translation>&amp;Objets</translation>
    </message>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Colonnes</translation>
    </message>
    <message>
        <source>All types, a table each</source>
        <translation>Tous les types, une table chacun</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>All that the features have</source>
        <translation>Toutes celles des objets</translation>
    </message>
    <message>
        <source>Those of the table (%1)</source>
        <translation>Celles de la table (%1)</translation>
    </message>
    <message>
        <source>Reading the features…</source>
        <translation>Lecture des objets…</translation>
    </message>
    <message>
        <source>Writing %1…</source>
        <translation>Écriture de %1…</translation>
    </message>
    <message>
        <source>The table could not be written: %1</source>
        <translation>La table n&apos;a pas pu être écrite : %1</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::FeatureActions</name>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Masquer</translation>
    </message>
    <message>
        <source>H</source>
        <translation>H</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>A&amp;fficher</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Show &amp;Only This</source>
        <translation>N&apos;afficher &amp;que ceci</translation>
    </message>
    <message>
        <source>O</source>
        <translation>O</translation>
    </message>
    <message>
        <source>Hide &amp;All</source>
        <translation>Masquer &amp;tout</translation>
    </message>
    <message>
        <source>Ctrl+Shift+H</source>
        <translation>Ctrl+Shift+H</translation>
    </message>
    <message>
        <source>Sho&amp;w All</source>
        <translation>Tout aff&amp;icher</translation>
    </message>
    <message>
        <source>Ctrl+Shift+A</source>
        <translation>Ctrl+Shift+A</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>&amp;Activer</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>&amp;Désactiver</translation>
    </message>
    <message>
        <source>Ena&amp;ble All</source>
        <translation>Activer t&amp;out</translation>
    </message>
    <message>
        <source>Select Siblings of Same &amp;Type</source>
        <translation>Sélectionner les f&amp;rères du même type</translation>
    </message>
    <message>
        <source>Ctrl+Shift+T</source>
        <translation>Ctrl+Shift+T</translation>
    </message>
    <message>
        <source>&amp;Copy Identifier</source>
        <translation>&amp;Copier l&apos;identifiant</translation>
    </message>
    <message>
        <source>Ctrl+Shift+C</source>
        <translation>Ctrl+Shift+C</translation>
    </message>
    <message>
        <source>&amp;Go to Reference</source>
        <translation>Aller à la référ&amp;ence</translation>
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
        <translation>&amp;Supprimer l&apos;objet</translation>
    </message>
    <message>
        <source>Who Re&amp;fers to This?</source>
        <translation>Q&amp;ui y fait référence ?</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::FeatureBrowser</name>
    <message>
        <source>Feature tree</source>
        <translation>Arbre des objets</translation>
    </message>
    <message>
        <source>Filtered feature tree</source>
        <translation>Arbre filtré des objets</translation>
    </message>
    <message>
        <source>Feature list</source>
        <translation>Liste des objets</translation>
    </message>
    <message>
        <source>&amp;Tree</source>
        <translation>A&amp;rbre</translation>
    </message>
    <message>
        <source>&amp;List</source>
        <translation>&amp;Liste</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search for features</source>
        <translation>Rechercher des objets</translation>
    </message>
    <message>
        <source>Words in the name, identifier or type; type:Window, name:north,
height&gt;3, function=1000 for attributes. Enter goes to the next hit.</source>
        <translation>Mots du nom, de l&apos;identifiant ou du type ; type:Window, name:nord,
height&gt;3, function=1000 pour les attributs. Entrée mène au résultat suivant.</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Previous hit</source>
        <translation>Résultat précédent</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>Next hit</source>
        <translation>Résultat suivant</translation>
    </message>
    <message>
        <source>Filter by type</source>
        <translation>Filtrer par type</translation>
    </message>
    <message>
        <source>Show only features of one type</source>
        <translation>N&apos;afficher que les objets d&apos;un type</translation>
    </message>
    <message>
        <source>All types</source>
        <translation>Tous les types</translation>
    </message>
    <message>
        <source>Only hits</source>
        <translation>Résultats seuls</translation>
    </message>
    <message>
        <source>Show only the features that the search has found</source>
        <translation>N&apos;afficher que les objets trouvés par la recherche</translation>
    </message>
    <message>
        <source>%1 (%L2)</source>
        <extracomment>A type of features, and how many there are</extracomment>
        <translation>%1 (%L2)</translation>
    </message>
    <message>
        <source>no hits</source>
        <translation>aucun résultat</translation>
    </message>
    <message numerus="yes">
        <source>%Ln hit(s)</source>
        <translation>
            <numerusform>%Ln résultat</numerusform>
            <numerusform>%Ln résultats</numerusform>
        </translation>
    </message>
    <message>
        <source>%L1 of %L2</source>
        <translation>%L1 sur %L2</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::FeatureListModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identifiant</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::FeatureRemoval</name>
    <message>
        <source>remove %1</source>
        <translation>supprimer %1</translation>
    </message>
    <message numerus="yes">
        <source>remove %n feature(s)</source>
        <translation>
            <numerusform>supprimer %n objet</numerusform>
            <numerusform>supprimer %n objets</numerusform>
        </translation>
    </message>
    <message>
        <source>The document itself cannot be removed.</source>
        <translation>Le document lui-même ne peut pas être supprimé.</translation>
    </message>
    <message>
        <source>%1 cannot be removed, as what stands around it needs it.</source>
        <translation>%1 ne peut pas être supprimé : ce qui l’entoure en a besoin.</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::FileCommands</name>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>City models (*.gml *.xml *.citygml);;All files (*)</source>
        <translation>Maquettes urbaines (*.gml *.xml *.citygml);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Lecture de %1</translation>
    </message>
    <message>
        <source>Reading %1 was cancelled.</source>
        <translation>La lecture de %1 a été annulée.</translation>
    </message>
    <message>
        <source>%1 is open.</source>
        <translation>%1 est ouvert.</translation>
    </message>
    <message>
        <source>%1 could not be opened: %2.</source>
        <translation>%1 n&apos;a pas pu être ouvert : %2.</translation>
    </message>
    <message>
        <source>Another program has changed %1. A reload would lose your edits.</source>
        <translation>Un autre programme a modifié %1. Un rechargement ferait perdre vos modifications.</translation>
    </message>
    <message>
        <source>Another program has changed %1.</source>
        <translation>Un autre programme a modifié %1.</translation>
    </message>
    <message>
        <source>&amp;Reload</source>
        <translation>&amp;Recharger</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>Save the changes of %1?</source>
        <translation>Enregistrer les modifications de %1 ?</translation>
    </message>
    <message>
        <source>Otherwise they are lost.</source>
        <translation>Sinon elles seront perdues.</translation>
    </message>
    <message>
        <source>File has changed</source>
        <translation>Fichier modifié</translation>
    </message>
    <message>
        <source>If you save, what that program has written is lost.</source>
        <translation>Si vous enregistrez, ce que ce programme a écrit sera perdu.</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>%1 is saved.</source>
        <translation>%1 est enregistré.</translation>
    </message>
    <message>
        <source>Re&amp;pair a Copy...</source>
        <translation>Ré&amp;parer une copie...</translation>
    </message>
    <message>
        <source>Save Repaired Copy</source>
        <translation>Enregistrer la copie réparée</translation>
    </message>
    <message>
        <source>%1-repaired.gml</source>
        <translation>%1-repare.gml</translation>
    </message>
    <message>
        <source>a repair does not write over the document itself</source>
        <translation>une réparation n&apos;écrase pas le document lui-même</translation>
    </message>
    <message>
        <source>Repairing %1</source>
        <translation>Réparation de %1</translation>
    </message>
    <message>
        <source>%1 could not be repaired: %2.</source>
        <translation>%1 n&apos;a pas pu être réparé : %2.</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>Enregistrement de %1</translation>
    </message>
    <message>
        <source>%1 could not be saved: %2.</source>
        <translation>%1 n&apos;a pas pu être enregistré : %2.</translation>
    </message>
    <message>
        <source>All of %1 was written anew: %2.</source>
        <translation>Tout %1 a été réécrit : %2.</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::FindingsModel</name>
    <message numerus="yes">
        <source>%Ln more: %1</source>
        <translation>
            <numerusform>%Ln autre : %1</numerusform>
            <numerusform>%Ln autres : %1</numerusform>
        </translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Ce qui ne va pas</translation>
    </message>
    <message>
        <source>Element</source>
        <translation>Élément</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Objet</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::FindingsPanel</name>
    <message>
        <source>Findings</source>
        <translation>Constats</translation>
    </message>
    <message>
        <source>Nothing was found wrong with the document.</source>
        <translation>Aucun défaut n&apos;a été trouvé dans le document.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln place(s) where the document is not as its schema asks.</source>
        <translation>
            <numerusform>%Ln endroit où le document n&apos;est pas conforme à son schéma.</numerusform>
            <numerusform>%Ln endroits où le document n&apos;est pas conforme à son schéma.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::ImportDialog</name>
    <message>
        <source>&amp;Make generic attributes of columns that features have no attribute for</source>
        <translation>&amp;Créer des attributs génériques pour les colonnes sans attribut</translation>
    </message>
    <message>
        <source>&amp;Skip what cannot be set</source>
        <translation>&amp;Sauter ce qui ne peut pas être écrit</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importer</translation>
    </message>
    <message>
        <source>Import %1</source>
        <translation>Importer %1</translation>
    </message>
    <message>
        <source>no word: empty cells leave the attribute alone</source>
        <translation>aucun mot : les cellules vides laissent l&apos;attribut tel quel</translation>
    </message>
    <message>
        <source>Column that &amp;names the feature</source>
        <translation>Colonne qui &amp;nomme l&apos;objet</translation>
    </message>
    <message>
        <source>&amp;Word that takes an attribute away</source>
        <translation>&amp;Mot qui enlève un attribut</translation>
    </message>
    <message>
        <source>What the import changes</source>
        <translation>Ce que l&apos;importation change</translation>
    </message>
    <message>
        <source>Reading the table…</source>
        <translation>Lecture de la table…</translation>
    </message>
    <message>
        <source>Comparing the table with the document…</source>
        <translation>Comparaison de la table et du document…</translation>
    </message>
    <message numerus="yes">
        <source>%Ln change(s)</source>
        <translation>
            <numerusform>%Ln changement</numerusform>
            <numerusform>%Ln changements</numerusform>
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
            <numerusform>%Ln problème</numerusform>
            <numerusform>%Ln problèmes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::ImportPreview</name>
    <message>
        <source>Line %1: %2</source>
        <extracomment>Number of the line or row of a table, and why it cannot be imported</extracomment>
        <translation>Ligne %1 : %2</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>Enregistrement %1 : %2</translation>
    </message>
    <message>
        <source>absent</source>
        <translation>absent</translation>
    </message>
    <message>
        <source>Feature</source>
        <translation>Objet</translation>
    </message>
    <message>
        <source>Attribute</source>
        <translation>Attribut</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Maintenant</translation>
    </message>
    <message>
        <source>After the import</source>
        <translation>Après l&apos;importation</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::ListEditor</name>
    <message>
        <source>Entries of the list</source>
        <translation>Éléments de la liste</translation>
    </message>
    <message>
        <source>Add an entry</source>
        <translation>Ajouter un élément</translation>
    </message>
    <message>
        <source>Remove the entry</source>
        <translation>Supprimer l’élément</translation>
    </message>
    <message>
        <source>Move the entry up</source>
        <translation>Monter l’élément</translation>
    </message>
    <message>
        <source>Move the entry down</source>
        <translation>Descendre l’élément</translation>
    </message>
    <message>
        <source>Take the list over</source>
        <translation>Appliquer la liste</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::LogModel</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Message</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::LogPanel</name>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Lowest level that is shown</source>
        <translation>Niveau le plus bas affiché</translation>
    </message>
    <message>
        <source>All messages</source>
        <translation>Tous les messages</translation>
    </message>
    <message>
        <source>Warnings and errors</source>
        <translation>Avertissements et erreurs</translation>
    </message>
    <message>
        <source>Errors only</source>
        <translation>Erreurs seules</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copier</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Effacer</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::MainWindow</name>
    <message>
        <source>No feature has the identifier %1.</source>
        <translation>Aucun objet n&apos;a l&apos;identifiant %1.</translation>
    </message>
    <message numerus="yes">
        <source>The program has ended with %Ln unsaved change(s) of %1.</source>
        <translation>
            <numerusform>Le programme s&apos;est terminé avec %Ln modification non enregistrée de %1.</numerusform>
            <numerusform>Le programme s&apos;est terminé avec %Ln modifications non enregistrées de %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Recover</source>
        <translation>&amp;Récupérer</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Abandonner</translation>
    </message>
    <message>
        <source>The changes of %1 cannot be recovered: %2.</source>
        <translation>Les modifications de %1 ne peuvent pas être récupérées : %2.</translation>
    </message>
    <message>
        <source>The changes of %1 are recovered.</source>
        <translation>Les modifications de %1 sont récupérées.</translation>
    </message>
    <message>
        <source>Not all changes of %1 could be recovered: %2.</source>
        <translation>Toutes les modifications de %1 n&apos;ont pas pu être récupérées : %2.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1 refers to no other feature.</source>
        <translation>%1 ne fait référence à aucun autre objet.</translation>
    </message>
    <message>
        <source>No feature refers to %1.</source>
        <translation>Aucun objet ne fait référence à %1.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln feature(s) refer to %1.</source>
        <translation>
            <numerusform>%Ln objet fait référence à %1.</numerusform>
            <numerusform>%Ln objets font référence à %1.</numerusform>
        </translation>
    </message>
    <message>
        <source>Features</source>
        <translation>Objets</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Findings</source>
        <extracomment>Title of the panel, with the number of findings</extracomment>
        <translation>Constats</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;New Window</source>
        <translation>&amp;Nouvelle fenêtre</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Fichiers &amp;récents</translation>
    </message>
    <message>
        <source>Re&amp;load</source>
        <translation>Re&amp;charger</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>&amp;Close Window</source>
        <translation>&amp;Fermer la fenêtre</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>&amp;Vider la liste</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Édition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Ann&amp;uler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>Ctrl+Y</source>
        <translation>Ctrl+Y</translation>
    </message>
    <message>
        <source>&amp;Search Features</source>
        <translation>Re&amp;chercher des objets</translation>
    </message>
    <message>
        <source>&amp;Next Hit</source>
        <translation>Résultat &amp;suivant</translation>
    </message>
    <message>
        <source>&amp;Previous Hit</source>
        <translation>Résultat &amp;précédent</translation>
    </message>
    <message>
        <source>Se&amp;ttings...</source>
        <translation>Paramè&amp;tres...</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Expand All</source>
        <translation>Tout &amp;développer</translation>
    </message>
    <message>
        <source>Ctrl+Shift+E</source>
        <translation>Ctrl+Shift+E</translation>
    </message>
    <message>
        <source>&amp;Collapse All</source>
        <translation>Tout &amp;réduire</translation>
    </message>
    <message>
        <source>Ctrl+Shift+W</source>
        <translation>Ctrl+Shift+W</translation>
    </message>
    <message>
        <source>C&amp;olours</source>
        <translation>C&amp;ouleurs</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Comme le &amp;bureau</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>C&amp;laires</translation>
    </message>
    <message>
        <source>D&amp;ark</source>
        <translation>&amp;Sombres</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>Outils</translation>
    </message>
    <message>
        <source>Changes are not kept for a recovery: %1</source>
        <translation>Les modifications ne sont pas conservées pour une récupération : %1</translation>
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
        <translation>Constats (%L1)</translation>
    </message>
    <message>
        <source>About Tolvik</source>
        <translation>À propos de Tolvik</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Tolvik %1&lt;/h3&gt;&lt;p&gt;Shows and edits city models in CityGML 2.0.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Tolvik %1&lt;/h3&gt;&lt;p&gt;Affiche et modifie des maquettes urbaines CityGML 2.0.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>Featu&amp;re</source>
        <translation>&amp;Objet</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>%1 is not opened.</source>
        <translation>%1 n’est pas ouvert.</translation>
    </message>
    <message>
        <source>&amp;City</source>
        <translation>&amp;Ville</translation>
    </message>
    <message>
        <source>&amp;Export Table...</source>
        <translation>E&amp;xporter une table...</translation>
    </message>
    <message>
        <source>&amp;Import Table...</source>
        <translation>&amp;Importer une table...</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::NoticeBar</name>
    <message>
        <source>Close this message</source>
        <translation>Fermer ce message</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::PictureDialog</name>
    <message>
        <source>Leave the background out</source>
        <translation>Sans arrière-plan</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>&amp;Width in pixels</source>
        <translation>&amp;Largeur en pixels</translation>
    </message>
    <message>
        <source>&amp;Height in pixels</source>
        <translation>&amp;Hauteur en pixels</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::PropertyEdit</name>
    <message>
        <source>XML has no character U+%1.</source>
        <translation>XML ne connaît pas le caractère U+%1.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be an entry of this list.</source>
        <translation>« %1 » ne peut pas être un élément de cette liste.</translation>
    </message>
    <message>
        <source>The feature can have no such attribute.</source>
        <translation>L’objet ne peut pas avoir un tel attribut.</translation>
    </message>
    <message>
        <source>%1 cannot be &quot;%2&quot;.</source>
        <translation>%1 ne peut pas être « %2 ».</translation>
    </message>
    <message>
        <source>%1 cannot be absent.</source>
        <translation>%1 ne peut pas être absent.</translation>
    </message>
    <message>
        <source>%1 is not a generic attribute.</source>
        <translation>%1 n’est pas un attribut générique.</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s)</source>
        <translation>
            <numerusform>%n objet</numerusform>
            <numerusform>%n objets</numerusform>
        </translation>
    </message>
    <message>
        <source>change %1 of %2</source>
        <translation>modifier %1 de %2</translation>
    </message>
    <message>
        <source>make %1 of %2 absent</source>
        <translation>rendre %1 de %2 absent</translation>
    </message>
    <message>
        <source>add to %1 of %2</source>
        <translation>ajouter à %1 de %2</translation>
    </message>
    <message>
        <source>add attribute %1 to %2</source>
        <translation>ajouter l’attribut %1 à %2</translation>
    </message>
    <message>
        <source>rename attribute %1 of %2</source>
        <translation>renommer l’attribut %1 de %2</translation>
    </message>
    <message>
        <source>remove attribute %1 of %2</source>
        <translation>supprimer l’attribut %1 de %2</translation>
    </message>
    <message>
        <source>The unit of %1 cannot be &quot;%2&quot;.</source>
        <translation>L’unité de %1 ne peut pas être « %2 ».</translation>
    </message>
    <message>
        <source>change the unit of %1 of %2</source>
        <translation>modifier l’unité de %1 de %2</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::PropertyPanel</name>
    <message>
        <source>Filter properties</source>
        <translation>Filtrer les propriétés</translation>
    </message>
    <message>
        <source>Absent</source>
        <translation>Absents</translation>
    </message>
    <message>
        <source>Show the attributes that the features do not have</source>
        <translation>Afficher les attributs que les objets n’ont pas</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add an attribute or an entry of a list</source>
        <translation>Ajouter un attribut ou un élément de liste</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message numerus="yes">
        <source>Reading %n feature(s)…</source>
        <translation>
            <numerusform>Lecture de %n objet…</numerusform>
            <numerusform>Lecture de %n objets…</numerusform>
        </translation>
    </message>
    <message>
        <source>Rename the Attribute</source>
        <translation>Renommer l’attribut</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>Ajouter à %1</translation>
    </message>
    <message>
        <source>Entry:</source>
        <translation>Élément :</translation>
    </message>
    <message>
        <source>Nothing is selected</source>
        <translation>Rien n’est sélectionné</translation>
    </message>
    <message>
        <source>&amp;Attribute…</source>
        <translation>&amp;Attribut…</translation>
    </message>
    <message>
        <source>Entry of %1…</source>
        <translation>Élément de %1…</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifier</translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation>&amp;Copier la valeur</translation>
    </message>
    <message>
        <source>&amp;Follow the Link</source>
        <translation>&amp;Suivre le lien</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Renommer…</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>S&amp;upprimer</translation>
    </message>
    <message>
        <source>&amp;Make Absent</source>
        <translation>Rendre &amp;absent</translation>
    </message>
    <message>
        <source>The features are still being read.</source>
        <translation>Les objets sont encore en cours de lecture.</translation>
    </message>
    <message numerus="yes">
        <source>%n feature(s)</source>
        <translation>
            <numerusform>%n objet</numerusform>
            <numerusform>%n objets</numerusform>
        </translation>
    </message>
    <message>
        <source>Edit the &amp;Unit</source>
        <translation>Modifier l’&amp;unité</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::PropertyTreeModel</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>(different values)</source>
        <translation>(valeurs différentes)</translation>
    </message>
    <message>
        <source>Absent: it comes into being when it is given a value.</source>
        <translation>Absent : une valeur le fait exister.</translation>
    </message>
    <message>
        <source>Cannot be changed here.</source>
        <translation>Ne peut pas être modifié ici.</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::Recovery</name>
    <message>
        <source>there is no such file any more</source>
        <translation>ce fichier n&apos;existe plus</translation>
    </message>
    <message>
        <source>the file is not the one that was edited</source>
        <translation>le fichier n&apos;est pas celui qui a été modifié</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::StatusProgress</name>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Give up what is going on</source>
        <translation>Abandonner l&apos;opération en cours</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::TableCommands</name>
    <message>
        <source>%1 is written.</source>
        <translation>%1 est écrit.</translation>
    </message>
    <message>
        <source>Import Table</source>
        <translation>Importer une table</translation>
    </message>
    <message>
        <source>Tables (*.csv *.gpkg *.geojson *.geojsonl *.fgb *.xlsx *.ods *.dbf);;All files (*)</source>
        <translation>Tables (*.csv *.gpkg *.geojson *.geojsonl *.fgb *.xlsx *.ods *.dbf);;Tous les fichiers (*)</translation>
    </message>
    <message numerus="yes">
        <source>%Ln cell(s) of %1 are imported.</source>
        <extracomment>Name of a file</extracomment>
        <translation>
            <numerusform>%Ln cellule de %1 est importée.</numerusform>
            <numerusform>%Ln cellules de %1 sont importées.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 could not be imported: %2</source>
        <translation>%1 n&apos;a pas pu être importé : %2</translation>
    </message>
    <message>
        <source>import of %1</source>
        <translation>importation de %1</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::TableEdits</name>
    <message>
        <source>%1: %2: %3</source>
        <extracomment>Feature, attribute and why it cannot be set</extracomment>
        <translation>%1 : %2 : %3</translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::ValueText</name>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a number.</source>
        <translation>« %1 » n’est pas un nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number from 0 up.</source>
        <translation>« %1 » n’est pas un nombre entier positif ou nul.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a date such as %2.</source>
        <translation>« %1 » n’est pas une date comme %2.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a whole number.</source>
        <translation>« %1 » n’est pas un nombre entier.</translation>
    </message>
    <message numerus="yes">
        <source>%n entries: %1…</source>
        <translation>
            <numerusform>%n élément : %1…</numerusform>
            <numerusform>%n éléments : %1…</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tolvik::viewer::ViewOverlay</name>
    <message>
        <source>Distance %L1, on the ground %L2, height %L3</source>
        <extracomment>A measured line: its length, its length on the ground, and how far it leads up or down</extracomment>
        <translation>Distance %L1, au sol %L2, hauteur %L3</translation>
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
        <translation>La ville ne peut pas être dessinée : OpenGL est absent ici. Tout le reste est utilisable.</translation>
    </message>
    <message>
        <source>The city cannot be drawn: %1.</source>
        <translation>La ville ne peut pas être dessinée : %1.</translation>
    </message>
    <message>
        <source>Building the view: %1 %</source>
        <translation>Construction de la vue : %1 %</translation>
    </message>
    <message>
        <source>%L1 triangles</source>
        <translation>%L1 triangles</translation>
    </message>
    <message>
        <source>Zoom to &amp;All</source>
        <translation>&amp;Tout afficher</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>&amp;Zoom to Selected</source>
        <translation>&amp;Cadrer la sélection</translation>
    </message>
    <message>
        <source>F</source>
        <translation>F</translation>
    </message>
    <message>
        <source>&amp;Reset Representation</source>
        <translation>&amp;Reconstruire la représentation</translation>
    </message>
    <message>
        <source>From A&amp;bove and the Side</source>
        <translation>&amp;De biais</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>From the &amp;Top</source>
        <translation>De des&amp;sus</translation>
    </message>
    <message>
        <source>7</source>
        <translation>7</translation>
    </message>
    <message>
        <source>From the Sout&amp;h</source>
        <translation>Depuis le s&amp;ud</translation>
    </message>
    <message>
        <source>1</source>
        <translation>1</translation>
    </message>
    <message>
        <source>From the &amp;East</source>
        <translation>Depuis l’&amp;est</translation>
    </message>
    <message>
        <source>3</source>
        <translation>3</translation>
    </message>
    <message>
        <source>&amp;Parallel Lines Stay Parallel</source>
        <translation>&amp;Projection parallèle</translation>
    </message>
    <message>
        <source>5</source>
        <translation>5</translation>
    </message>
    <message>
        <source>E&amp;dges</source>
        <translation>&amp;Arêtes</translation>
    </message>
    <message>
        <source>E</source>
        <translation>E</translation>
    </message>
    <message>
        <source>&amp;Measure</source>
        <translation>&amp;Mesurer</translation>
    </message>
    <message>
        <source>M</source>
        <translation>M</translation>
    </message>
    <message>
        <source>&amp;Copy Picture</source>
        <translation>Cop&amp;ier l’image</translation>
    </message>
    <message>
        <source>&amp;Save Picture...</source>
        <translation>Enre&amp;gistrer l’image...</translation>
    </message>
    <message>
        <source>Level of detail</source>
        <translation>Niveau de détail</translation>
    </message>
    <message>
        <source>Highest detail</source>
        <translation>Détail le plus élevé</translation>
    </message>
    <message>
        <source>Lowest detail</source>
        <translation>Détail le plus faible</translation>
    </message>
    <message>
        <source>LOD %1</source>
        <translation>LOD %1</translation>
    </message>
    <message>
        <source>Materials and textures</source>
        <translation>Matériaux et textures</translation>
    </message>
    <message>
        <source>Attribute that gives the colours</source>
        <translation>Attribut qui donne les couleurs</translation>
    </message>
    <message>
        <source>Colours of the types</source>
        <translation>Couleurs des types</translation>
    </message>
    <message>
        <source>Plane that cuts the city open</source>
        <translation>Plan qui coupe la ville</translation>
    </message>
    <message>
        <source>No section</source>
        <translation>Pas de coupe</translation>
    </message>
    <message>
        <source>From above</source>
        <translation>Par le haut</translation>
    </message>
    <message>
        <source>From the east</source>
        <translation>Par l’est</translation>
    </message>
    <message>
        <source>From the north</source>
        <translation>Par le nord</translation>
    </message>
    <message>
        <source>Files that are missing, or cannot be drawn: %1</source>
        <translation>Fichiers absents ou impossibles à dessiner : %1</translation>
    </message>
    <message>
        <source>No appearance</source>
        <translation>Sans apparence</translation>
    </message>
    <message>
        <source>Appearance without a name</source>
        <translation>Apparence sans nom</translation>
    </message>
    <message>
        <source>Save Picture</source>
        <translation>Enregistrer l’image</translation>
    </message>
    <message>
        <source>Pictures (*.png)</source>
        <translation>Images (*.png)</translation>
    </message>
    <message>
        <source>A picture of that size cannot be drawn.</source>
        <translation>Une image de cette taille ne peut pas être dessinée.</translation>
    </message>
    <message>
        <source>The picture is saved as %1.</source>
        <translation>L’image est enregistrée sous %1.</translation>
    </message>
    <message>
        <source>The picture could not be written to %1.</source>
        <translation>L’image n’a pas pu être écrite dans %1.</translation>
    </message>
</context>
</TS>
