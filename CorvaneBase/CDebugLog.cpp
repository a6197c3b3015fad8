#include <CorvaneBase/CDebugLog.h>
void CDebugLog::AddLog(const QString&) {}
void CDebugLog::SetLogFile(const QString&) {}
QString CDebugLog::LogFile() { return {}; }
void CDebugLog::SetListener(std::function<void(const QString& line)>) {}
