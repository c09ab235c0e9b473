#include "prepare/preparation.h"

#include <cstdio>
#include <optional>
#include <string_view>
#include <vector>

#include "gamefiles/skin_file.h"
#include "gamefiles/templates.h"
#include "platform/files.h"
#include "platform/part_names.h"
#include "platform/win32.h"
#include "prepare/character_files.h"
#include "prepare/present_file.h"
#include "prepare/whole_file.h"
#include "world/program_files.h"

namespace {

// In the game's directory.
constexpr const char* gameData = "GameData";
constexpr const char* skins = "GameData\\Skins";
static_assert(std::string_view(installedSkin).starts_with(skins) &&
              std::string_view(installedSkin).ends_with(packageSkinName));

void report(Preparation& preparation, const std::string& line) {
    preparation.report += line + "\n";
}

void reportMissing(Preparation& preparation, const std::string& line) {
    preparation.ready = false;
    report(preparation, line);
}

void reportUnwritten(Preparation& preparation, const std::string& path) {
    reportMissing(preparation, path + " can't be written: " + writeFailure() + ". Please mend that, and start again.");
}

bool writeNew(Preparation& preparation, const std::string& path, const Bytes& bytes) {
    const bool written = writeWholeFile(path.c_str(), bytes);
    if (written) {
        report(preparation, path + " is new.");
    } else {
        reportUnwritten(preparation, path);
    }
    return written;
}

void reportPresent(Preparation& preparation, const std::string& path, Present present) {
    if (present == Present::usable) return report(preparation, path + " is there already.");
    const char* const fault =
        present == Present::deadLink
            ? " is there, but leads to no file."
            : " is there already, but a save can't use it: it can't be read, is cut or another file.";
    reportMissing(preparation, path + fault + " Please delete it, and start again.");
}

void bring(Preparation& preparation, const std::string& path, Present present, const Bytes& bytes) {
    if (present == Present::nothing) {
        writeNew(preparation, path, bytes);
    } else {
        reportPresent(preparation, path, present);
    }
}

bool makeDirectory(const std::string& path) {
    FileStatus status{};
    return queryFileStatus(path.c_str(), status) || CreateDirectoryA(path.c_str(), nullptr) != FALSE;
}

void bringSkin(Preparation& preparation, const std::string& simsDirectory) {
    const std::string skin = simsDirectory + installedSkin;
    if (makeDirectory(simsDirectory + gameData) && makeDirectory(simsDirectory + skins)) {
        const DirectoryLock lock((simsDirectory + skins).c_str());
        if (lock.isHeld()) clearLeftOverParts((simsDirectory + skins).c_str());
        bring(preparation, skin, presentFile(skin), ByteWriter().text(packageSkin()).written());
    } else {
        reportUnwritten(preparation, skin);
    }
}

struct Templates {
    Editions editions;
    std::string character;
    std::string family;

    Present present() const { return presentTemplate(character, editions); }
    Present presentFamily() const { return presentFamilyTemplate(family, editions); }

    // Of the names of copies.
    std::string stem() const { return character.substr(0, character.rfind('.')) + " "; }
};

std::vector<Templates> templatesFor(Editions editions) {
    std::vector<Templates> all = {{Editions::base, characterTemplateName, familyTemplateName}};
    if (editions == Editions::later) {
        all.push_back({Editions::later, laterCharacterTemplateName, laterFamilyTemplateName});
    }
    return all;
}

// A template's copy has the day in its name: "Template 2026-11-25.iff", or with a number behind the day if there is
// such a file.
std::string freeCopyName(const std::string& stem) {
    SYSTEMTIME now{};
    GetSystemTime(&now);
    char date[32];
    std::snprintf(date, sizeof date, "%04u-%02u-%02u", unsigned{now.wYear}, unsigned{now.wMonth}, unsigned{now.wDay});
    std::string name = stem + date + ".iff";
    for (int number = 2; presentFile(name) != Present::nothing; ++number) {
        name = stem + date + " " + std::to_string(number) + ".iff";
    }
    return name;
}

// True if there is a copy, perhaps from a run that failed later.
bool keepCopy(Preparation& preparation, const std::string& stem, const Bytes& file) {
    for (const std::string& name : fileNamesIn(".")) {
        if (!name.starts_with(stem + "2") || readWholeFile(name.c_str()) != file) continue;
        report(preparation, name + " is a copy of the old one.");
        return true;
    }
    return writeNew(preparation, freeCopyName(stem), file);
}

// As a sentence, and what to do.
std::string whyNoSource(const TemplateSource& source, const std::string& simsDirectory, Editions editions) {
    FileStatus status{};
    if (!queryFileStatus(simsDirectory.substr(0, simsDirectory.size() - 1).c_str(), status)) {
        return "The game's directory " + simsDirectory + " can't be found. Please start again when it is there.";
    }
    const std::string create = "create a family with an adult in the game, save, and start again.";
    if (source.found == 0) {
        return "No character file can be seen in " + simsDirectory +
               "UserData\\Characters. Please allow reading it, or " + create;
    }
    if (source.unreadable == source.found) {
        return "None of the " + std::to_string(source.found) +
               " character files of your game can be read. Please allow reading them, and start again.";
    }
    const std::string unreadable =
        source.unreadable == 0 ? "" : "; " + std::to_string(source.unreadable) + " of them can't be read";
    return "None of the " + std::to_string(source.found) + " character files of your game is that of an adult whom a " +
           "player made" + (editions == Editions::later ? " in a later edition" : "") + unreadable + ". Please " +
           create;
}

void makeNewTemplate(Preparation& preparation, const Templates& templates, const char* simsDirectory, bool isThere) {
    const std::string& name = templates.character;
    const std::optional<Bytes> old = isThere ? readWholeFile(name.c_str()) : std::nullopt;
    if (isThere && !old) return reportPresent(preparation, name, Present::unusable);
    const TemplateSource source = findTemplateSource(simsDirectory, templates.editions);
    if (source.madeTemplate.empty()) {
        reportMissing(preparation, name + (isThere ? " stays as it is. " : " is missing. ") +
                                       whyNoSource(source, simsDirectory, templates.editions));
    } else if (old == source.madeTemplate) {
        report(preparation, name + " stays as it is: a new one, made of " + source.path + ", would be the same.");
    } else if ((!old || keepCopy(preparation, templates.stem(), *old)) &&
               writeNew(preparation, name, source.madeTemplate)) {
        report(preparation, "It is made of " + source.path + ".");
    }
}

// Whether a template is to be made where `present` is.
bool isMade(Present present, bool newTemplate) {
    return present == Present::nothing || present == Present::ofEarlierVersion ||
           (newTemplate && present != Present::deadLink);
}

void bringTemplate(Preparation& preparation, const Templates& templates, const char* simsDirectory, bool newTemplate) {
    const Present present = templates.present();
    if (isMade(present, newTemplate)) {
        makeNewTemplate(preparation, templates, simsDirectory, present != Present::nothing);
        return;
    }
    reportPresent(preparation, templates.character, present);
    if (present == Present::unusable) {
        report(preparation, "Or use the option --new-template, which keeps a copy of it.");
    }
}

void bringSkinSets(Preparation& preparation, const std::string& originalSkinSets) {
    const std::optional<Bytes> original = readWholeFile(originalSkinSets.c_str());
    const Present present = presentFile(skinSetsName);
    if (present == Present::nothing && (!original || original->empty())) {
        reportMissing(preparation, std::string(skinSetsName) + " is missing, and " + originalSkinSets +
                                       " can't be read. Please install or unpack the program again.");
    } else {
        bring(preparation, skinSetsName, present, original.value_or(Bytes()));
    }
}

std::string plannedTemplate(const Templates& templates, bool newTemplate) {
    const Present present = templates.present();
    if (!isMade(present, newTemplate)) return "";
    const std::string made = "    " + templates.character + ", out of one of your own Sims' files\n";
    return present == Present::nothing ? made : made + "    (the present one is kept as a copy with a date)\n";
}

}  // namespace

Preparation prepareGame(const char* simsDirectory, const std::string& originalSkinSets, bool newTemplate,
                        Editions editions) {
    Preparation preparation;
    const DirectoryLock lock(".");
    if (lock.isHeld()) clearLeftOverParts(".");
    bringSkin(preparation, simsDirectory);
    for (const Templates& templates : templatesFor(editions)) {
        bringTemplate(preparation, templates, simsDirectory, newTemplate);
        bring(preparation, templates.family, templates.presentFamily(), makeFamilyTemplate(templates.editions));
    }
    if (preparation.ready) bringSkinSets(preparation, originalSkinSets);
    return preparation;
}

std::string plannedFiles(const std::string& simsDirectory, const std::string& toolDirectory, bool newTemplate,
                         Editions editions) {
    std::string inTool, all;
    const auto add = [](std::string& text, const std::string& name) { text += "    " + name + "\n"; };
    for (const Templates& templates : templatesFor(editions)) {
        inTool += plannedTemplate(templates, newTemplate);
        if (templates.presentFamily() == Present::nothing) add(inTool, templates.family);
    }
    if (presentFile(skinSetsName) == Present::nothing) add(inTool, skinSetsName);
    if (presentFile(simsDirectory + installedSkin) == Present::nothing) {
        all = "In the game's directory " + simsDirectory + ":\n";
        add(all, installedSkin);
    }
    return inTool.empty() ? all : all + "In " + toolDirectory + ":\n" + inTool;
}
