#ifndef SCREENSHOT_H
#define SCREENSHOT_H

#include <QString>

class BrowserWindow;

/**
 * Writes a picture of the window when its folder is listed, and quits the application: with 0, or with 1 when
 * the picture cannot be written. To be called before the folder is opened.
 */
void TakeScreenshotWhenLoaded(BrowserWindow& window, const QString& pngPath);

#endif
