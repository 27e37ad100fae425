#include "Names.h"

#include <KTFileManager2QU/KTFileManager2QU.h>

void MapNames(CKTFileManager* manager, const QString& path)
{
    manager->SetFilenameMappingINIFile(FM_PART_LIST, path, QStringLiteral("Furniture"));
    manager->SetFilenameMappingINIFile(FM_PART_TREE, path, QStringLiteral("Furniture"));

    manager->SetFlagStatus(FM_PART_LIST, 2, true); // tool tips
    manager->GetListModel()->SetFileTipsMappingFile(path, QStringLiteral("Furniture Tips"));
}

void MapNamesBySection(CKTFileManager* manager, const QString& section)
{
    manager->SetFilenameMappingINISection(FM_PART_LIST, section); // same file, other section
}
