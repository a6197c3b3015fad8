#pragma once

#include <CustomControls/CustomControlsGlobal.h>

/** The class that the library is named after. It holds nothing and does nothing. */
class CUSTOMCONTROLS_EXPORT CustomControls
{
public:
    CustomControls();
    /** Nothing to assign. */
    CustomControls& operator=(const CustomControls& other);
    /** Nothing to move. */
    CustomControls& operator=(CustomControls&& other) noexcept;
};
