#include "prepare/preparation.h"

#include <cstdio>
#include <string_view>

#include "data/family_template.h"
#include "data/skin_file.h"
#include "gamefiles/iff_reader.h"
#include "platform/files.h"
#include "platform/win32.h"
#include "prepare/character_check.h"
#include "prepare/character_files.h"
#include "prepare/whole_file.h"
#include "world/game_check.h"

namespace {

constexpr const char* templateFile = "Template.iff";
constexpr const char* familyTemplateFile = "famtemplate";
constexpr const char* originalSkinSets = "skinsets-original.cfg";

void done(Preparation& preparation, const std::string& line) {
    preparation.report += line + "\n";
}

void missing(Preparation& preparation, const std::string& line) {
    preparation.ready = false;
    done(preparation, line);
}

std::string reason() {
    switch (GetLastError()) {
        case ERROR_DISK_FULL:
            return "the disk is full or reports an error";
        case ERROR_ACCESS_DENIED:
        case ERROR_WRITE_PROTECT:
            return "writing there isn't allowed";
        default:
            return "the system's error is " + std::to_string(GetLastError());
    }
}

bool writeNew(Preparation& preparation, const std::string& path, const Bytes& bytes) {
    const bool written = writeWholeFile(path.c_str(), bytes);
    if (written) {
        done(preparation, path + " is new.");
    } else {
        missing(preparation,
                path + " can't be written: " + reason() + ". Please make room or allow it, and try again.");
    }
    return written;
}

void bring(Preparation& preparation, const std::string& path, const Bytes& bytes) {
    if (hasBytes(path.c_str())) {
        done(preparation, path + " is there already.");
    } else {
        writeNew(preparation, path, bytes);
    }
}

void bringSkin(Preparation& preparation, const std::string& simsDirectory) {
    // Both directories are the game's. A failure shows when the skin is written.
    CreateDirectoryA((simsDirectory + "GameData").c_str(), nullptr);
    CreateDirectoryA((simsDirectory + "GameData\\Skins").c_str(), nullptr);
    bring(preparation, simsDirectory + installedSkin, ByteWriter().text(packageSkin()).written());
}

// "Template 2026-11-25.iff", or with a number if there is such a file.
std::string freeCopyName() {
    SYSTEMTIME now{};
    GetSystemTime(&now);
    char date[32];
    std::snprintf(date, sizeof date, "Template %04u-%02u-%02u", unsigned{now.wYear}, unsigned{now.wMonth},
                  unsigned{now.wDay});
    std::string name = std::string(date) + ".iff";
    FileStatus status{};
    for (int number = 2; queryFileStatus(name.c_str(), status); ++number) {
        name = date + (" " + std::to_string(number)) + ".iff";
    }
    return name;
}

void makeNewTemplate(Preparation& preparation, const char* simsDirectory, const std::optional<Bytes>& old) {
    const TemplateSource source = findTemplateSource(simsDirectory);
    if (source.madeTemplate.empty()) {
        missing(preparation, std::string(templateFile) +
                                 " is missing: no character file of your game is that of an adult whom a player made. "
                                 "Please create a family with an adult in the game, save, and try again.");
        return;
    }
    if (old == source.madeTemplate) {
        done(preparation, std::string(templateFile) + " is there already.");
        return;
    }
    if (old && !writeNew(preparation, freeCopyName(), *old)) return;
    if (writeNew(preparation, templateFile, source.madeTemplate)) {
        done(preparation, "It is made of " + source.path + ".");
    }
}

void bringTemplate(Preparation& preparation, const char* simsDirectory, bool newTemplate) {
    const bool exists = hasBytes(templateFile);
    const std::optional<Bytes> old = exists ? readWholeFile(templateFile) : std::nullopt;
    if (exists && !old) {
        missing(preparation, std::string(templateFile) + " can't be read. Please allow it, and try again.");
    } else if (exists && !newTemplate && !standsStill(readIff(*old).chunks)) {
        done(preparation, std::string(templateFile) + " is there already.");
    } else {
        makeNewTemplate(preparation, simsDirectory, old);
    }
}

void bringSkinSets(Preparation& preparation) {
    const std::optional<Bytes> original = readWholeFile(originalSkinSets);
    if (!hasBytes(skinSetsName) && (!original || original->empty())) {
        missing(preparation, std::string(skinSetsName) + " is missing, and " + originalSkinSets +
                                 " can't be read. Please unpack the program again.");
    } else {
        bring(preparation, skinSetsName, original.value_or(Bytes()));
    }
}

}  // namespace

Preparation prepareGame(const char* simsDirectory, bool newTemplate) {
    Preparation preparation;
    bringSkin(preparation, simsDirectory);
    bringTemplate(preparation, simsDirectory, newTemplate);
    bring(preparation, familyTemplateFile, makeFamilyTemplate());
    if (preparation.ready) bringSkinSets(preparation);
    return preparation;
}
