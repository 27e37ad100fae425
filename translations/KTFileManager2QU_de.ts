<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>CKTFMAliasTreeModel</name>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>Dateipfad</translation>
    </message>
    <message>
        <source>System Watch</source>
        <extracomment>Whether the folder may be read and watched for changes.</extracomment>
        <translation>Überwachung</translation>
    </message>
    <message>
        <source>Allowed Ops</source>
        <extracomment>The operations that the user may perform on the folder.</extracomment>
        <translation>Erlaubte Aktionen</translation>
    </message>
    <message>
        <source>INI Section</source>
        <extracomment>The section of an INI file that gives the items below their names.</extracomment>
        <translation>INI-Abschnitt</translation>
    </message>
    <message>
        <source>Custom Data</source>
        <translation>Eigene Daten</translation>
    </message>
</context>
<context>
    <name>CKTFMCustomListModel</name>
    <message>
        <source>%1 TB</source>
        <translation>%1 TB</translation>
    </message>
    <message>
        <source>%1 GB</source>
        <translation>%1 GB</translation>
    </message>
    <message>
        <source>%1 MB</source>
        <translation>%1 MB</translation>
    </message>
    <message>
        <source>%1 KB</source>
        <translation>%1 KB</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Byte</translation>
    </message>
</context>
<context>
    <name>CKTFileManager</name>
    <message>
        <source>Item &apos;%1&apos; alreay exists ! 
Do you want to replace it ?</source>
        <extracomment>%1 is the name of a file or folder.</extracomment>
        <translation>„%1“ ist bereits vorhanden.
Möchten Sie das vorhandene Element ersetzen?</translation>
    </message>
    <message>
        <source>Replace File</source>
        <translation>Datei ersetzen</translation>
    </message>
    <message>
        <source>New Folder</source>
        <extracomment>The name of a folder that the user makes. A number follows it at once: &quot;New Folder1&quot;.</extracomment>
        <translation>Neuer Ordner</translation>
    </message>
</context>
</TS>
