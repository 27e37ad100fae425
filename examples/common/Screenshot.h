#ifndef SCREENSHOT_H
#define SCREENSHOT_H

#include <QString>

#include <functional>

class QFileSystemModel;
class QWidget;

/**
 * Writes a picture of a window and quits the application: with 0, or with 1 when the picture cannot be
 * written. To be called before the folder is opened.
 *
 * @param files whose root folder the window shows; the picture is taken after it is listed
 * @param isBusy asked whether the window waits for something else; none if it never does
 */
void TakeScreenshotWhenLoaded(QWidget& window, const QFileSystemModel& files, const QString& pngPath,
                              const std::function<bool()>& isBusy = {});

#endif
