#pragma once

#include <CustomControls/CustomControlsGlobal.h>

/** The class that the library is named after. It holds nothing and does nothing. */
class CUSTOMCONTROLS_EXPORT CustomControls
{
public:
    /** Nothing to set up; no host needs one. */
    CustomControls();
    /** Nothing to assign. */
    CustomControls& operator=(const CustomControls& other);
    /** Nothing to move. */
    CustomControls& operator=(CustomControls&& other) noexcept;
};
