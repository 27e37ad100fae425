<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>CKTFMAliasTreeModel</name>
    <message>
        <source>Category</source>
        <translation>类别</translation>
    </message>
    <message>
        <source>File Path</source>
        <translation>文件路径</translation>
    </message>
    <message>
        <source>System Watch</source>
        <extracomment>Whether the folder may be read and watched for changes.</extracomment>
        <translation>监视</translation>
    </message>
    <message>
        <source>Allowed Ops</source>
        <extracomment>The operations that the user may perform on the folder.</extracomment>
        <translation>允许的操作</translation>
    </message>
    <message>
        <source>INI Section</source>
        <extracomment>The section of an INI file that gives the items below their names.</extracomment>
        <translation>INI 节</translation>
    </message>
    <message>
        <source>Custom Data</source>
        <translation>自定义数据</translation>
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
        <translation>%1 字节</translation>
    </message>
</context>
<context>
    <name>CKTFileManager</name>
    <message>
        <source>Item &apos;%1&apos; alreay exists ! 
Do you want to replace it ?</source>
        <extracomment>%1 is the name of a file or folder.</extracomment>
        <translation>“%1”已存在。
是否替换？</translation>
    </message>
    <message>
        <source>Replace File</source>
        <translation>替换文件</translation>
    </message>
    <message>
        <source>New Folder</source>
        <extracomment>The name of a folder that the user makes. A number follows it at once: &quot;New Folder1&quot;.</extracomment>
        <translation>新建文件夹</translation>
    </message>
</context>
</TS>
