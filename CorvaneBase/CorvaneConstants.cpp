#include <CorvaneBase/CorvaneConstants.h>

const char* const g_strInterfaceUsb = "usb0";
const char* const g_strInterfaceEth = "eth0";
const char* const g_strInterfaceWlan = "wlan0";
const char* const g_strSettingNoCheckDiskAvailableSpace = "NoCheckDiskAvailableSpace";
