#pragma once

#include "random/Random.h"

#include <string>
#include <vector>

/// Makes new texts out of given ones: pieces are cut, repeated, swapped, damaged and mixed with words.
class Mutator
{
public:
    /// Texts come from the files of the folders; words from the file, which has one in quotes on each line.
    Mutator(const std::vector<std::string> &folders, const std::string &wordsFile);

    bool isEmpty() const { return m_texts.empty() || m_words.empty(); }
    std::string text(Random &random) const;

private:
    std::string piece(Random &random) const;
    void mutate(std::string &text, Random &random) const;

    std::vector<std::string> m_texts;
    std::vector<std::string> m_words;
};
