#include "style/resolution/StylePathPool.h"

#include <QtCore/QHashFunctions>

#include <algorithm>
#include <vector>

namespace tamble::client {

namespace {

/// Calls `visit` with each word of `text` until it returns false; true when it never did.
template <typename Visit>
bool visitWords(QStringView text, Visit visit)
{
    qsizetype begin = 0;
    for (qsizetype i = 0; i <= text.size(); ++i) {
        if (i < text.size() && text[i] != u' ')
            continue;
        if (i > begin && !visit(text.sliced(begin, i - begin)))
            return false;
        begin = i + 1;
    }
    return true;
}

QStringList wordsOf(QStringView text)
{
    qsizetype count = 0;
    visitWords(text, [&count](QStringView) { return ++count > 0; });
    QStringList result;
    result.reserve(count);
    visitWords(text, [&result](QStringView word) {
        result.append(word.toString());
        return true;
    });
    return result;
}

bool hasWords(QStringView text, const QStringList &words)
{
    auto next = words.begin();
    const bool fits = visitWords(text, [&](QStringView word) { return next != words.end() && *next++ == word; });
    return fits && next == words.end();
}

} // namespace

StylePathPool &StylePathPool::instance()
{
    static auto *pool = new StylePathPool;
    return *pool;
}

// The number of classes sets classes and states apart.
StylePathPool::ElementText::ElementText(QStringView type, QStringView classes, QStringView states)
    : typeName(type)
    , name(classes)
    , state(states)
    , hash(qHash(type))
{
    qsizetype classCount = 0;
    visitWords(name, [&](QStringView word) {
        hash = qHash(word, hash);
        return ++classCount > 0;
    });
    hash = qHash(classCount, hash);
    visitWords(state, [&](QStringView word) {
        hash = qHash(word, hash);
        return true;
    });
}

bool StylePathPool::ElementEqual::operator()(const PooledElement &pooled, const ElementText &text) const
{
    const StyleElement &element = pooled.element;
    return pooled.hash == text.hash && element.typeName == text.typeName && hasWords(text.name, element.classes) &&
           hasWords(text.state, element.states);
}

std::size_t StylePathPool::PathHash::operator()(const PathKey &key) const noexcept
{
    return qHashMulti(0, quintptr(key.parent), quintptr(key.element));
}

StylePathRef StylePathPool::child(const StylePathRef &parent, QStringView typeName, QStringView name, QStringView state)
{
    if (m_paths.size() >= m_mostPaths)
        collect();
    const StyleElement *innermost = element(ElementText(typeName, name, state));
    auto path = m_paths.find(PathKey(parent.get(), innermost));
    if (path == m_paths.end()) {
        path = m_paths.emplace(parent.get(), innermost).first;
        if (parent)
            intrusive_ptr_add_ref(parent.get());
    }
    return StylePathRef(&*path);
}

const StyleElement *StylePathPool::element(const ElementText &text)
{
    auto element = m_elements.find(text);
    if (element == m_elements.end())
        element =
            m_elements.insert({{text.typeName.toString(), wordsOf(text.name), wordsOf(text.state)}, text.hash}).first;
    return &element->element;
}

void StylePathPool::collect()
{
    std::vector<const StylePath *> unused;
    for (const StylePath &path : m_paths) {
        if (path.m_users == 0)
            unused.push_back(&path);
    }
    for (const StylePath *path : unused) {
        // A path holds the one it lies below, so going outward meets each path after everything below it.
        while (path && path->m_users == 0) {
            const StylePath *parent = path->parent();
            m_paths.erase(m_paths.find(PathKey(*path)));
            if (parent)
                intrusive_ptr_release(parent);
            path = parent;
        }
    }

    if (!unused.empty())
        dropUnusedElements();
    m_mostPaths = std::max(minimumGrowth, 2 * m_paths.size());
}

void StylePathPool::dropUnusedElements()
{
    std::unordered_set<const StyleElement *> used;
    for (const StylePath &path : m_paths)
        used.insert(&path.element());
    std::erase_if(m_elements, [&used](const PooledElement &pooled) { return !used.contains(&pooled.element); });
}

} // namespace tamble::client
