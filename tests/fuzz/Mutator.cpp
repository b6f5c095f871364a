#include "Mutator.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace {

std::string contents(const std::filesystem::path &file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The word between the outer quotes of a line, with \" and \xHH replaced.
std::string word(const std::string &line)
{
    std::string result;
    for (std::size_t i = 1; i + 1 < line.size(); ++i) {
        if (line[i] != '\\') {
            result += line[i];
        } else if (line[i + 1] == 'x') {
            result += char(std::stoi(line.substr(i + 2, 2), nullptr, 16));
            i += 3;
        } else {
            result += line[++i];
        }
    }
    return result;
}

} // namespace

Mutator::Mutator(const std::vector<std::string> &folders, const std::string &wordsFile)
{
    for (const std::string &folder : folders) {
        for (const auto &entry : std::filesystem::directory_iterator(folder)) {
            if (entry.path().extension() == ".style")
                m_texts.push_back(contents(entry.path()));
        }
    }
    std::ranges::sort(m_texts); // folders have no order
    std::ifstream words(wordsFile);
    for (std::string line; std::getline(words, line);) {
        if (line.starts_with('"'))
            m_words.push_back(word(line));
    }
}

std::string Mutator::text(Random &random) const
{
    std::string result = piece(random);
    for (std::size_t more = random.below(3); more > 0; --more)
        result += piece(random);
    for (std::size_t count = random.below(6); count > 0; --count)
        mutate(result, random);
    return result;
}

std::string Mutator::piece(Random &random) const
{
    const std::string &from = random.oneOf(m_texts);
    if (random.oneIn(200))
        return from;
    // From the begin of a line to the end of another: such pieces often parse.
    const std::size_t middle = random.below(from.size());
    const std::size_t begin = from.rfind('\n', middle) + 1;
    const std::size_t end = from.find("}", begin + random.below(400));
    return from.substr(begin, end == std::string::npos ? end : end + 1 - begin);
}

void Mutator::mutate(std::string &text, Random &random) const
{
    const std::size_t place = random.below(text.size() + 1);
    const std::size_t length = random.below(std::min<std::size_t>(text.size() - place, 40) + 1);
    switch (random.below(5)) {
    case 0:
        text.erase(place, length);
        break;
    case 1:
        text.insert(place, random.oneOf(m_words));
        break;
    case 2:
        text.insert(random.below(text.size() + 1), text.substr(place, length));
        break;
    case 3:
        text.replace(place, length, random.oneOf(m_words));
        break;
    default:
        if (place < text.size())
            text[place] = char(random.below(256));
        break;
    }
}
