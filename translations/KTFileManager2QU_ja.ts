<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>CKTFMAliasTreeModel</name>
    <message>
        <source>Category</source>
        <translation>カテゴリ</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>ファイルのパス</translation>
    </message>
    <message>
        <source>System Watch</source>
        <extracomment>Whether the folder may be read and watched for changes.</extracomment>
        <translation>監視</translation>
    </message>
    <message>
        <source>Allowed Ops</source>
        <extracomment>The operations that the user may perform on the folder.</extracomment>
        <translation>許可する操作</translation>
    </message>
    <message>
        <source>INI Section</source>
        <extracomment>The section of an INI file that gives the items below their names.</extracomment>
        <translation>INI セクション</translation>
    </message>
    <message>
        <source>Custom Data</source>
        <translation>カスタムデータ</translation>
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
        <translation>%1 バイト</translation>
    </message>
</context>
<context>
    <name>CKTFileManager</name>
    <message>
        <source>Item &apos;%1&apos; alreay exists ! 
Do you want to replace it ?</source>
        <extracomment>%1 is the name of a file or folder.</extracomment>
        <translation>「%1」は既に存在します。
置き換えますか？</translation>
    </message>
    <message>
        <source>Replace File</source>
        <translation>ファイルの置き換え</translation>
    </message>
    <message>
        <source>New Folder</source>
        <extracomment>The name of a folder that the user makes. A number follows it at once: &quot;New Folder1&quot;.</extracomment>
        <translation>新しいフォルダー</translation>
    </message>
</context>
</TS>
