// One Sim: its neighbor record, and the parts of its character file that have been asked for.
//
// The neighborhood's reader makes a Sim for each record, even if the character file is missing. The operations are
// defined in world/ for reading, in save/ for writing, and in lifestage/ for moving out.
#ifndef WORLD_SIM_H
#define WORLD_SIM_H

#include <array>
#include <cstdint>
#include <memory>
#include <span>

#include "platform/fixed_text.h"
#include "world/body_strings.h"
#include "world/guid.h"
#include "world/neighborhood_layout.h"
#include "world/paths.h"
#include "world/record_format.h"
#include "world/stream.h"

class Family;
class Neighborhood;
class SaveAttempt;

// Stages of life. No Sim is ever a baby, a toddler or a preteen; these only have words.
namespace stageNumber {
constexpr std::int32_t pet = -1;
constexpr std::int32_t unknown = 0;
constexpr std::int32_t baby = 1;
constexpr std::int32_t toddler = 2;
constexpr std::int32_t child = 3;
constexpr std::int32_t preteen = 4;
constexpr std::int32_t teen = 5;
constexpr std::int32_t adult = 6;
}  // namespace stageNumber

// The ages that the game stores.
namespace ageNumber {
constexpr std::int32_t child = 9;
constexpr std::int32_t teen = 18;
constexpr std::int32_t adult = 27;
}  // namespace ageNumber

namespace genderNumber {
constexpr std::int16_t male = 0;
constexpr std::int16_t female = 1;
constexpr std::int16_t pet = 2;  // the kinds 2 to 5 of the file
}  // namespace genderNumber

// Numbers of the person values that the program uses. The others are kept as they are.
namespace personValue {
constexpr std::size_t bodySkill = 15;  // 0 to 1000, as the other skills
// Cooking, charisma, mechanical, creativity, body, logic.
constexpr std::array<std::size_t, 6> skills = {8, 9, 10, 13, bodySkill, 16};
constexpr std::size_t career = 27;  // 0 for none
constexpr std::size_t careerLevel = 28;
}  // namespace personValue

class Sim {
 public:
    // An adult with nothing known of its files, until a record is read.
    explicit Sim(Neighborhood& neighborhood, const RecordFormat& format = baseFormats[0])
        : neighborhood_(&neighborhood), format_(&format) {}
    Sim(const Sim&) = delete;
    Sim& operator=(const Sim&) = delete;
    virtual ~Sim() = default;

    // The record's fields. They never come from the character file. `recordOffset` is from where the offsets of
    // `neighborRecord` count.
    const char* recordName() const { return recordName_.c_str(); }
    std::int32_t recordOffset() const { return recordOffset_; }
    std::int16_t version() const { return format_->version.value_or(version_); }
    std::int32_t age() const { return age_; }
    std::int16_t skinTone() const { return skinTone_; }
    std::int16_t gender() const { return gender_; }
    std::int16_t personValue(std::size_t number) const { return static_cast<std::int16_t>(personValues_.at(number)); }
    std::int16_t bodySkill() const { return personValue(personValue::bodySkill); }

    Neighborhood& neighborhood() const { return *neighborhood_; }
    const RecordFormat& format() const { return *format_; }

    // The family that lists the Sim. Null until that family has resolved its members.
    Family* family() const { return family_; }
    void setFamily(Family* family) { family_ = family; }

    // Each of these loads its part of the character file on first use. If that fails, the result is empty or null, and
    // a file that couldn't be opened is tried again at the next call. The stage is then 0 for a Sim of an adult's age.
    const char* name();
    const Guid& guid();
    BodyStrings* bodyStrings();
    std::int32_t stage();

    // Derives the stage from age, gender and body strings. Always 1.
    int deriveStage();

    // 1 if the part is loaded or the file turned out to have none; -1 if the file can't be opened; -3 for the GUID and
    // the body strings of a file that was found unusable before; -4 if there is no object chunk, which holds the GUID.
    // loadBodyStrings also returns -1 for body strings that can't be found or read.
    int loadName();
    int loadGuid();
    int loadBodyStrings();

    // Reads where the resource map begins in the character file. 1, or -1 if the file can't be opened.
    int readHeaderOffset();

    // True for the word "adult" in the character file, false for "child".
    bool characterTag() const { return characterTag_; }
    bool fileUsable() const { return fileUsable_; }
    std::int32_t tagOffset() const { return tagOffset_; }

    // Makes the Sim a teen or an adult, with the age, the character tag and the person values of that stage, and with
    // `bodyStrings` unless they are null. Returns 1. For any other stage nothing changes, and the result is -2 for the
    // stages 1 to 4 and -3 for the rest.
    int setStage(std::int32_t stage, std::unique_ptr<BodyStrings> bodyStrings);

    // Whether the character file, or the neighbor record, waits to be rewritten.
    bool characterDirty() const { return characterDirty_; }
    bool recordDirty() const { return recordDirty_; }

    // Takes the fields of `record`, whose kind is known to be good, and asks for the size of the character file.
    // `recordOffset` is where they begin in the file.
    void readRecord(std::span<const std::uint8_t, neighborRecord::size> record, std::int32_t recordOffset);

    // Moves the Sim out of its family into a new one, which waits for the next save (lifestage/move_out.cpp). The new
    // family gets `funds`; the caller takes them from the old one. The Sim must have a family, and its neighborhood
    // must have room for a new one.
    void splitToNewFamily(const char* familyName, std::uint32_t funds);

    // Replaces the character file by a new one, made from the template in `toolDirectory` (save/character_writer.cpp).
    // `directory` is the neighborhood's. Returns 1 if the new file has the live name, 0 if the body strings were never
    // found and nothing was done, or -1; then everything is marked still. The next three are its steps, the last two in
    // save/backups.cpp.
    int saveCharacterFile(const char* toolDirectory, const char* directory);
    int buildCharacterFile(const char* tempPath);
    void backupCharacterFile(const char* directory);
    int installCharacterFile(const char* tempPath);

    // Writes the record into the temporary neighborhood file (save/character_writer.cpp). 1, or -1 on a stream in a bad
    // state: the record then still waits to be written.
    int writeNeighborRecord(StreamView stream);

 private:
    friend class SaveAttempt;

    bool openCharacterFile(StreamFile& file);
    int readName(StreamView stream);
    int readGuid(StreamView stream);
    int readBodyStrings(StreamView stream);
    bool textEnds(StreamView stream) const;
    template <typename Direction>
    void passFields(const Direction& direction);
    neighborRecord::Bytes recordBytes(StreamView& stream);

    std::int16_t version_ = 0;  // as in the file
    std::int32_t recordOffset_ = 0;
    bool fileUsable_ = true;
    bool headerRead_ = false;
    bool nameLoaded_ = false;
    bool bodyStringsLoaded_ = false;
    bool guidLoaded_ = false;
    bool stageKnown_ = false;
    bool characterDirty_ = false;
    bool recordDirty_ = false;
    bool recordOwed_ = false;  // the character file is new, but the record isn't in the live neighborhood file yet
    FixedText<13> fileName_;
    DirectoryText filePath_;
    Guid guid_;
    std::int32_t fileSize_ = 0;
    std::int32_t mapOffset_ = 0;
    std::int32_t tagOffset_ = 0;
    std::int32_t bodyOffset_ = 0;
    FixedText<neighborRecord::nameSize> recordName_;
    FixedText<99> name_;
    std::array<std::uint16_t, neighborRecord::personValueCount> personValues_{};
    bool characterTag_ = true;
    std::int32_t age_ = ageNumber::adult;
    std::int32_t stage_ = stageNumber::unknown;
    std::int16_t skinTone_ = 64;
    std::uint16_t recordWordA_ = 0;
    std::uint16_t recordWordB_ = 0;
    std::int16_t gender_ = genderNumber::male;
    std::array<std::uint16_t, neighborRecord::tailWordCount> tailWords_{};
    std::unique_ptr<BodyStrings> bodyStrings_;
    Family* family_ = nullptr;
    Neighborhood* neighborhood_;
    const RecordFormat* format_;
};

#endif
