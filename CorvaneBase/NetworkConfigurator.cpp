#include <CorvaneBase/NetworkConfigurator.h>
namespace {
std::function<NetworkConfigurator::Result(int)> g_provider;
}
NetworkConfigurator::Result NetworkConfigurator::autoDiscoverAndConfigureCnc(int n)
{
    return g_provider ? g_provider(n) : Result();
}
void NetworkConfigurator::SetProvider(std::function<Result(int)> provider)
{
    g_provider = std::move(provider);
}
