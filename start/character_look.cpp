#include "start/character_look.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

#include "gamefiles/character_ids.h"
#include "gamefiles/iff_reader.h"
#include "gamefiles/object_definition.h"
#include "gamefiles/text_chunk.h"
#include "platform/letter_case.h"
#include "prepare/whole_file.h"

namespace {

// Empty if there is no such chunk.
std::string contentOf(const std::vector<IffChunk>& chunks, std::string_view type, std::optional<int> id) {
    const auto chunk = std::ranges::find_if(
        chunks, [&](const IffChunk& each) { return each.type == type && (!id || each.id == *id); });
    return chunk == chunks.end() ? "" : std::string(chunk->content.begin(), chunk->content.end());
}

// The text of this number, from 0. Each is followed by a zero byte, its comment, another zero byte and the next one's
// language.
std::string textOf(const std::string& content, int number) {
    std::string_view rest(content);
    rest.remove_prefix(std::min(firstTextOffset, rest.size()));
    for (int i = 0; i < number; ++i) {
        rest.remove_prefix(std::min(rest.find('\0'), rest.size()));
        rest.remove_prefix(std::min<std::size_t>(rest.size(), 3));
    }
    return std::string(rest.substr(0, rest.find('\0')));
}

// The first text is the word for the age, the second one mesh and skin of the body.
Body bodyOf(const std::string& content) {
    const std::string age = textOf(content, 0);
    const std::string body = textOf(content, 1);
    if (age == "child") return Body::child;
    if (age != "adult") return Body::unknown;
    const std::string skin = body.substr(std::min(body.find('='), body.size()));
    const bool isTeen = skin.find("TNR") != std::string::npos || skin.find("tnr") != std::string::npos;
    return isTeen ? Body::teen : Body::adult;
}

}  // namespace

CharacterLook lookAtCharacter(const std::string& path) {
    const std::optional<Bytes> file = readWholeFile(path.c_str());
    if (!file) return {.fault = "can't be read"};
    const IffContents contents = readIff(*file);
    if (!contents.fault.empty()) return {.fault = contents.fault};
    const std::string definition = contentOf(contents.chunks, "OBJD", std::nullopt);
    constexpr std::size_t guidOffset = 2 * definitionWord::guid;
    return {.name = textOf(contentOf(contents.chunks, "CTSS", std::nullopt), 0),
            .guid = definition.size() >= guidOffset + 4 ? definition.substr(guidOffset, 4) : "",
            .body = bodyOf(contentOf(contents.chunks, "STR#", bodyStringsId))};
}
