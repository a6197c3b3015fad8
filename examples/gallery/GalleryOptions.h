#pragma once

#include <QString>
#include <QtGlobal>

/** What the command line decides for the pages. */
struct GalleryOptions
{
    quint16 iDiscoveryPort = 45002; ///< UDP port on loopback at which machines announce themselves
};
