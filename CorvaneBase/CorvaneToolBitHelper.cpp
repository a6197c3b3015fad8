#include <CorvaneBase/CorvaneToolBitHelper.h>
struct CorvaneToolBitHelper::Private
{};
CorvaneToolBitHelper::CorvaneToolBitHelper()
    : d(std::make_unique<Private>())
{}
CorvaneToolBitHelper::~CorvaneToolBitHelper() = default;
CorvaneToolBitHelper* CorvaneToolBitHelper::instance()
{
    static CorvaneToolBitHelper h;
    return &h;
}
int CorvaneToolBitHelper::GetIntegerToolTypeByNumber(int, ModelType) const
{
    return -1;
}
QString CorvaneToolBitHelper::GetToolNameByType(int) const
{
    return {};
}
QString CorvaneToolBitHelper::GetToolDetailByNumber(int, ModelType) const
{
    return {};
}
int CorvaneToolBitHelper::GetToolLocationByToolNo(int, ModelType)
{
    return -1;
}
void CorvaneToolBitHelper::SetTools(ModelType, const QList<ToolBit>&) {}
bool CorvaneToolBitHelper::LoadTools(const QString&, QString*)
{
    return false;
}
