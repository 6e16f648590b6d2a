#pragma once

#include "qtcommonsglobal.h"

#include <QString>
#include <QStringList>

/*!
    Where the application's images are found.

    Images are looked up by file name ("btnBell.png") in an ordered list of
    folders. A folder starting with ":" is a resource folder and yields "qrc:"
    URLs; any other folder yields "file:" URLs. The default list is the single
    resource folder ":/images". All calls happen on the GUI thread.
*/
namespace VynFileUtils {

/*!
    The URL text (ready for an Image source) of the image file \a name: the
    first folder of the search list that holds the file, or, when none does,
    the name placed in the first folder, so that the answer is predictable and
    a missing image shows up as a failed load rather than an empty source.
    An empty name, or an empty search list, gives an empty string.
*/
QTCOMMONS_EXPORT QString pathForImageNamed(const QString& name);

//! Replaces the folders searched by pathForImageNamed(); empty entries are dropped.
QTCOMMONS_EXPORT void setImageSearchPaths(const QStringList& folders);

QTCOMMONS_EXPORT QStringList imageSearchPaths();

} // namespace VynFileUtils
