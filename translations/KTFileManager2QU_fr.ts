<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>CKTFMAliasTreeModel</name>
    <message>
        <source>Category</source>
        <translation>Catégorie</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Chemin</translation>
    </message>
    <message>
        <source>System Watch</source>
        <extracomment>Whether the folder may be read and watched for changes.</extracomment>
        <translation>Surveillance</translation>
    </message>
    <message>
        <source>Allowed Ops</source>
        <extracomment>The operations that the user may perform on the folder.</extracomment>
        <translation>Actions autorisées</translation>
    </message>
    <message>
        <source>INI Section</source>
        <extracomment>The section of an INI file that gives the items below their names.</extracomment>
        <translation>Section INI</translation>
    </message>
    <message>
        <source>Custom Data</source>
        <translation>Données personnalisées</translation>
    </message>
</context>
<context>
    <name>CKTFMCustomListModel</name>
    <message>
        <source>%1 TB</source>
        <translation>%1&#xa0;To</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1&#xa0;Go</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1&#xa0;Mo</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1&#xa0;Ko</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1&#xa0;o</translation>
    </message>
</context>
<context>
    <name>CKTFileManager</name>
    <message>
        <source>Item &apos;%1&apos; alreay exists ! 
Do you want to replace it ?</source>
        <extracomment>%1 is the name of a file or folder.</extracomment>
        <translation>L’élément «&#xa0;%1&#xa0;» existe déjà.
Voulez-vous le remplacer&#xa0;?</translation>
    </message>
    <message>
        <source>Replace File</source>
        <translation>Remplacer le fichier</translation>
    </message>
    <message>
        <source>New Folder</source>
        <extracomment>The name of a folder that the user makes. A number follows it at once: &quot;New Folder1&quot;.</extracomment>
        <translation>Nouveau dossier</translation>
    </message>
</context>
</TS>
