#include "host/Assinatura.h"

namespace host {

TAssinatura TOuvintes::Assinar(std::function<void()> AOuvinte) {
    std::erase_if(FOuvintes, [](const auto& LOuvinte) { return LOuvinte.expired(); });
    auto LOuvinte = std::make_shared<std::function<void()>>(std::move(AOuvinte));
    FOuvintes.push_back(LOuvinte);
    return TAssinatura(std::move(LOuvinte));
}

void TOuvintes::Avisar() const {
    const auto LOuvintes = FOuvintes;
    for (const auto& LFraco : LOuvintes)
        if (const auto LOuvinte = LFraco.lock())
            (*LOuvinte)();
}

} // namespace host
