#ifndef LOOKS_H
#define LOOKS_H

class CKTFileManager;

/** Gives a pane large thumbnails with wide cells. */
void ShowLargeThumbnails(CKTFileManager& pane);

/** Colours a pane dark, by its setters and by a style sheet. */
void ShowDark(CKTFileManager& pane);

/** Sets the width of the name column in the table of details. */
void WidenNames(CKTFileManager& pane, int pixels);

/** Paints every view of a pane anew, after settings that are stored for the next paint. */
void PaintAnew(const CKTFileManager& pane);

#endif
