// One family of a neighborhood: its record in the file, and the Sims that its GUIDs lead to.
#ifndef WORLD_FAMILY_H
#define WORLD_FAMILY_H

#include <array>
#include <cstdint>

#include "platform/fixed_text.h"
#include "world/guid.h"
#include "world/neighborhood_layout.h"
#include "world/record_format.h"
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

    // The family's money. Setting it doesn't make the record wait to be written; only a change of members does.
    std::int32_t funds() const { return funds_; }
    void setFunds(std::int32_t funds) { funds_ = funds; }

    Neighborhood& neighborhood() const { return *neighborhood_; }
    void setNeighborhood(Neighborhood& neighborhood) { neighborhood_ = &neighborhood; }

    // How many members are adults; 0 until the members are resolved.
    std::int16_t adultCount() const { return adultCount_; }
    void setAdultCount(std::int16_t count) { adultCount_ = count; }

    bool membersResolved() const { return membersResolved_; }

    // Whether the record waits to be rewritten.
    bool dirty() const { return dirty_; }

    // 0 until the file holds the family.
    std::int16_t familyNumber() const { return familyNumber_; }

    // Where the member table begins in the file, and its size in bytes when it was read. Both are 0 for a family that
    // came later.
    std::int32_t memberTableOffset() const { return memberTableOffset_; }
    std::int32_t tableSize() const { return memberTableEnd_ - memberTableOffset_; }

    // Resolves the members first if that hasn't been done.
    std::int32_t memberCount();

    // Null for an unreadable member and for an index out of range. Call `memberCount` first: this doesn't resolve.
    Sim* member(std::int32_t index) const;

    // Whether a member has the Sim's record name.
    bool hasMember(const Sim& sim) const;

    // 1, or -1 for a full family.
    int addMember(Sim& sim);

    // Removes the members with the Sim's record name; those behind them move up. 1, or -1 if there was none.
    int removeMember(Sim& sim);

    // Finds the Sims that the GUIDs of the file mean: the neighborhood's first Sim with a GUID is the member. A GUID
    // that no Sim has leaves the link null. Reads as many character files as that takes. Always 1.
    int resolveMembers();

    // Searches for the record and the name from the cursor on, and reads them. Returns 1; 0 if one of them is missing
    // or cut off by the end of the file; or -1 for more than 8 members, with the cursor behind the GUIDs read so far.
    // The family number counts whatever the result; it is 0 if it couldn't be read.
    int read(StreamView stream, std::int32_t fileSize);

    // The format of a new family's record: that of its member.
    const RecordFormat& format() const;

    // Rewrite the family's record in the temporary file, or write a new family's (save/family_writer.cpp). `position`
    // is where the template's copy begins. 1, or -1 on a stream in a bad state; rewriteRecord also returns -1 if there
    // are more members than the table had when it was read.
    int rewriteRecord(StreamView stream);
    int writeNewRecord(StreamView stream, std::int32_t position);

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
