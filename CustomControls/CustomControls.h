#pragma once

#include <CustomControls/CustomControlsGlobal.h>

/** The class that the library is named after. It holds nothing and does nothing. */
class CUSTOMCONTROLS_EXPORT CustomControls
{
public:
    CustomControls();
    CustomControls& operator=(const CustomControls& other);
    CustomControls& operator=(CustomControls&& other) noexcept;
};
