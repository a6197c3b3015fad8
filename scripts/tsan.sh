#!/usr/bin/env bash
# Runs what works on several threads under the thread sanitizer: the log, the machine's roads with the worker of the USB
# connection, and the network configuration. Those that need a network of their own make one, or are skipped.
set -euo pipefail
cd "$(dirname "$0")/.."
. scripts/packages.sh

tests=(CDebugLogTest FtpConnectionTest NetworkConfiguratorTest CorvaneRegisterHelperTest CSelectMachineBoxTest
       MachineSerialQueryTest MachineUsbRoadTest UsbRoadNamespaceTest)

require_packages "${PACKAGES_BUILD[@]}" "${PACKAGES_SHOW[@]}" "${PACKAGES_DISPLAY[@]}" "${PACKAGES_TEST[@]}"
build_preset tsan "${tests[@]}"
say "Thread sanitizer"
# The toolkit isn't built with the sanitizer, so what its own code reads and writes through the C library is left out; its
# locks and threads are seen. Programs that a test starts are forked off while the sanitizer has threads of its own.
export TSAN_OPTIONS=exitcode=66:second_deadlock_stack=1:ignore_noninstrumented_modules=1:die_after_fork=0
log=build/tsan/tests.log status=0
regex="^($(IFS='|'; echo "${tests[*]}"))\$"
ctest --preset tsan -R "$regex" --no-tests=error -V --output-log "$log" >/dev/null || status=1
grep -E -A25 'WARNING: ThreadSanitizer' "$log" | head -n 120 || true
report_log "$log"
printf '%d passed, %d failed, %d skipped\n' "$passed" "$failed" "$skipped"
exit "$status"
