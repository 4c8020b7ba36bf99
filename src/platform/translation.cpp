#include "platform/translation.h"

#include "platform/host.h"

namespace gloamtide {

std::string Tr(const char* English, const std::vector<std::string>& Arguments) {
    std::string Text = host->Translate(English);
    for (std::size_t Which = 0; Which < Arguments.size(); ++Which) {
        const std::string Mark = {'%', static_cast<char>('1' + Which)};
        if (const auto Place = Text.find(Mark); Place != std::string::npos) {
            Text.replace(Place, Mark.size(), Arguments[Which]);
        }
    }
    return Text;
}

}  // namespace gloamtide
