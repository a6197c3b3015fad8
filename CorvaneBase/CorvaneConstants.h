#pragma once

#include <CorvaneBase/CorvaneBaseGlobal.h>

/** Names of the three ways in which a machine is connected, as a machine announces them. */
extern CORVANEBASE_EXPORT const char* const g_strInterfaceUsb;  ///< "usb0"
extern CORVANEBASE_EXPORT const char* const g_strInterfaceEth;  ///< "eth0"
extern CORVANEBASE_EXPORT const char* const g_strInterfaceWlan; ///< "wlan0"

/** Key of the setting (group SettingTypeNotice) that stops the low-disk-space warning. */
extern CORVANEBASE_EXPORT const char* const g_strSettingNoCheckDiskAvailableSpace;

/** The machine models whose tool data CorvaneToolBitHelper keeps apart. */
enum ModelType
{
    ModelTypeStandard = 0, ///< the desktop mill
    ModelTypeCompact = 1,  ///< the small mill
    ModelTypeScanner = 2,  ///< the mill with scanner
};

/** The group of a local setting. */
enum SettingType
{
    SettingTypeGeneral = 0, ///< the application's own
    SettingTypeNotice = 1,  ///< which notices the user has switched off
};
