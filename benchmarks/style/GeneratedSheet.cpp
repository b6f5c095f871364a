#include "GeneratedSheet.h"

#include <array>

std::string generatedSheet(std::size_t controls, std::size_t repetitions)
{
    constexpr std::array variants = {"",       "::hovered",        "::pressed",       "::selected::pressed",
                                     ".red",   ".red::hovered",    ".green::pressed", "::inconsistent::pressed",
                                     " RIcon", "::selected RIcon", " > RText",        "::disabled::inconsistent"};
    constexpr std::array declarations = {"background: \"#005691\"", "foreground: \"#FFFFFF\"", "line-visible: true"};

    std::string text = "// GENERATED\r\n";
    for (std::size_t repetition = 0; repetition < repetitions; ++repetition) {
        for (std::size_t control = 0; control < controls; ++control) {
            const std::string type = "RControl" + std::to_string(control);
            for (const char *variant : variants) {
                for (const char *declaration : declarations)
                    text.append(type).append(variant).append(" { ").append(declaration).append("; } \r\n");
            }
        }
    }
    return text;
}
