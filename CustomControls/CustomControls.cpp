#include <CustomControls/CustomControls.h>

CustomControls::CustomControls() = default;

CustomControls& CustomControls::operator=(const CustomControls&) = default;

CustomControls& CustomControls::operator=(CustomControls&&) noexcept = default;
