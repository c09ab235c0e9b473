// One family of a neighborhood: its record in the file, and the Sims behind its GUIDs.
#ifndef WORLD_FAMILY_H
#define WORLD_FAMILY_H

#include <array>
#include <cstdint>

#include "platform/fixed_text.h"
#include "world/guid.h"
#include "world/neighborhood_layout.h"
#include "world/stream.h"

class Neighborhood;
class SaveAttempt;
class Sim;

class Family {
 public:
    static constexpr std::size_t nameCapacity = 99;

    explicit Family(Neighborhood& neighborhood) : neighborhood_(&neighborhood) {}
    Family(const Family&) = delete;
    Family& operator=(const Family&) = delete;
    virtual ~Family() = default;

    const char* name() const { return name_.c_str(); }
    void setName(const char* name) { name_.assign(name); }

    // Money, signed as the file holds it. Setting it doesn't set `dirty`: only a change of members puts it on its way
    // to the file.
    std::int32_t funds() const { return funds_; }
    void setFunds(std::int32_t funds) { funds_ = funds; }

    Neighborhood& neighborhood() const { return *neighborhood_; }
    void setNeighborhood(Neighborhood& neighborhood) { neighborhood_ = &neighborhood; }

    // Members at stage 6 or above; 0 until the members are resolved. In memory only.
    std::int16_t adultCount() const { return adultCount_; }
    void setAdultCount(std::int16_t count) { adultCount_ = count; }

    bool membersResolved() const { return membersResolved_; }
    bool dirty() const { return dirty_; }

    // 0 in a family that the file doesn't hold yet.
    std::int16_t familyNumber() const { return familyNumber_; }

    // File offset of the member table; 0 in a family that has come since the file was read.
    std::int32_t memberTableOffset() const { return memberTableOffset_; }
    std::int32_t tableSize() const { return memberTableEnd_ - memberTableOffset_; }

    // Resolves the members if that hasn't been done.
    std::int32_t memberCount();

    // Null for an unreadable member and for an index out of range. Doesn't resolve: call `memberCount` first.
    Sim* member(std::int32_t index) const;

    // Whether a member has the Sim's record name.
    bool hasMember(const Sim& sim) const;

    // 1, or -1 for a full family.
    int addMember(Sim& sim);

    // Takes out the members of the Sim's record name; those behind move up. 1, or -1 if there was none.
    int removeMember(Sim& sim);

    // Turns the GUIDs of the file into links to Sims: the first Sim of the neighborhood with the GUID is the member, no
    // Sim leaves the link null. Reads the character files that this takes. Always 1.
    int resolveMembers();

    // Reads the record and the name, searching for both from the cursor on. 1; -1 for a family of more than 8 members,
    // with the cursor behind the GUIDs read so far; 0 for a family cut off by the end of the file. The number stays 0
    // if the file ends before it.
    int read(StreamView stream, std::int32_t fileSize);

    // Rewrites the family's record in the temporary file, or puts a new family's record there (save/family_writer.cpp).
    int rewriteRecord(StreamView stream);
    int writeNewRecord(StreamView stream, std::int32_t position, std::int16_t familyNumber);

 private:
    friend class SaveAttempt;

    void linkMembers();
    Guid memberGuid(std::size_t index) const;
    template <typename Direction>
    void passFields(const Direction& direction);
    bool readMemberTable(StreamView& stream);
    bool readName(StreamView& stream);
    familyRecord::Bytes recordBytes();

    std::array<Guid, familyRecord::highestMemberCount> memberGuids_;
    bool dirty_ = false;
    std::int16_t familyNumber_ = 0;
    std::int32_t funds_ = 0;
    std::array<std::uint16_t, familyRecord::wordCount> familyWords_{};
    std::int16_t memberCount_ = 0;
    std::uint16_t familyTailWord_ = 0;
    bool membersResolved_ = false;
    std::int16_t adultCount_ = 0;
    std::int32_t memberTableOffset_ = 0;
    std::int32_t memberTableEnd_ = 0;
    FixedText<nameCapacity> name_;
    std::array<Sim*, familyRecord::highestMemberCount> members_{};
    Neighborhood* neighborhood_;
};

#endif
