#pragma once

#include <CorvaneBase/CorvaneBaseGlobal.h>

#include <QString>

#include <functional>

/**
 * Tries a machine's file service: opens port 21 at @p ip, waits at most three seconds for the greeting "220", says
 * "QUIT". Never blocks longer than five seconds in all, and may be called from any thread.
 *
 * @param ip an address in numbers; anything else gives false at once
 * @return   true when the service greeted
 */
CORVANEBASE_EXPORT bool FtpConnection(const QString& ip);

/** Puts @p provider in the place of the built-in probe; {} restores the built-in one. Any thread may call. */
CORVANEBASE_EXPORT void SetFtpConnectionProvider(std::function<bool(const QString& ip)> provider);
