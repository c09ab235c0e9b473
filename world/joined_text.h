// Text put together from parts.
#ifndef WORLD_JOINED_TEXT_H
#define WORLD_JOINED_TEXT_H

// All parts one after the other, texts or single characters. What doesn't fit into a `Text`, a FixedText, is cut off.
template <typename Text, typename... Parts>
Text joined(const Parts&... parts) {
    Text text;
    (text.append(parts), ...);
    return text;
}

#endif
