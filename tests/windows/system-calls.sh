#!/usr/bin/env bash
# Compares what the DLL takes from the system's window libraries with what CustomControls/platform/ is there to call.
#   system-calls.sh DLL SOURCE_DIR OBJDUMP
set -euo pipefail
library=$1 source_dir=$2 objdump=$3

allowed='dwmapi.dll DwmEnableBlurBehindWindow
dwmapi.dll DwmExtendFrameIntoClientArea
dwmapi.dll DwmIsCompositionEnabled
gdi32.dll CombineRgn
gdi32.dll CreateRectRgn
gdi32.dll CreateSolidBrush
gdi32.dll DeleteObject
gdi32.dll ExcludeClipRect
gdi32.dll ExtSelectClipRgn
gdi32.dll OffsetRgn
user32.dll FillRect
user32.dll GetClientRect
user32.dll GetDCEx
user32.dll GetWindowLongW
user32.dll GetWindowRect
user32.dll IsZoomed
user32.dll MapWindowPoints
user32.dll OffsetRect
user32.dll RedrawWindow
user32.dll ReleaseDC
user32.dll SetWindowLongW'
# What comes with the compiler and the toolkit is no call of ours; any other library of the system would be.
usual='^(qt6[a-z]+|kernel32|msvcrt|ucrtbase|api-ms-win-[a-z0-9-]+|lib(gcc_s_seh|stdc\+\+|winpthread|corvanebase)(-[0-9]+)?)\.dll '

imported=$("$objdump" -p "$library" | sed 's/\r$//' |
    awk '/DLL Name:/ {dll = tolower($3)} dll && NF == 3 && /^\t[0-9a-f]+\t/ {print dll, $3}' | LC_ALL=C sort -u)
if [ -z "$imported" ]; then
    echo "No import was read from $library"
    exit 1
fi
system=$(grep -vE "$usual" <<<"$imported" || true)
if [ "$system" != "$allowed" ]; then
    echo "Allowed system calls (<), imported ones (>):"
    diff <(echo "$allowed") <(echo "$system") || true
    exit 1
fi

# Each of them is called in platform/ only, where alone <windows.h> may be included.
outside=$(grep -rnE '#include <(windows|dwmapi|winuser|windowsx)\.h>' "$source_dir" --include='*.cpp' --include='*.h' |
    grep -v "^$source_dir/platform/" || true)
if [ -n "$outside" ]; then
    echo "System headers outside platform/:"
    echo "$outside"
    exit 1
fi
echo "$(wc -l <<<"$system") system calls, all of platform/"
