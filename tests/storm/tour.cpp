// Plays to the end, whatever happens on the way.
#include "tests/storm/tour.h"

#include <algorithm>
#include <cstdio>

namespace storm {

namespace {

constexpr size_t kMostFindings = 12;

const char* NameOf(Ending ending)
{
    constexpr const char* kNames[] = {"ended without a word", "played", "crashed", "hung", "broke a law"};
    return kNames[static_cast<size_t>(ending)];
}

// The same trouble, though numbers in it may differ.
bool IsSame(const Report& one, const Report& other)
{
    if (one.ending != other.ending || one.code != other.code)
        return false;
    return one.ending != Ending::BrokeALaw ||
           std::string(one.told).substr(0, 20) == std::string(other.told).substr(0, 20);
}

// Leaves out what the trouble does not need, in ever smaller pieces.
class Shortener {
public:
    Shortener(const Part& part, const Report& trouble)
        : part_(part), trouble_(trouble), trials_(trouble.ending == Ending::Hung ? 4 : 150)
    {
        part_.first = static_cast<uint32_t>(trouble.episode[0]);
        part_.count = 1;
        part_.kept.assign(kEpisodeLength, false);
        std::fill_n(part_.kept.begin(), trouble.op[0] + 1, true);
    }

    // False when the episode does not show it by itself.
    bool Shorten()
    {
        if (!ShowsIt(part_))
            return false;
        for (size_t piece = kEpisodeLength / 2; piece > 0; piece /= 2)
            LeaveOutPieces(piece);
        return true;
    }
    const Part& Result() const { return part_; }

private:
    bool ShowsIt(const Part& part)
    {
        --trials_;
        return IsSame(PlayInChild(part), trouble_);
    }

    void LeaveOutPieces(size_t piece)
    {
        for (size_t end = kEpisodeLength; end > 0 && trials_ > 0; end = end > piece ? end - piece : 0) {
            Part shorter = part_;
            const size_t begin = end > piece ? end - piece : 0;
            std::fill(shorter.kept.begin() + static_cast<ptrdiff_t>(begin),
                      shorter.kept.begin() + static_cast<ptrdiff_t>(end), false);
            if (shorter.kept != part_.kept && ShowsIt(shorter))
                part_ = shorter;
        }
    }

    Part part_;
    Report trouble_;
    int trials_;
};

std::string ScriptOf(const Part& part)
{
    const std::vector<Op> ops = EpisodeOf(part.seed, part.first);
    std::string script;
    for (size_t i = 0; i < ops.size(); ++i)
        if (part.kept[i])
            script += "    " + std::to_string(i) + ": " + Told(ops[i]) + "\n";
    return script;
}

std::string Place(const Part& part, const Report& report)
{
    return "seed " + std::to_string(part.seed) + ", episode " + std::to_string(report.episode[0]) + ", operation " +
           std::to_string(report.op[0]);
}

void Find(Tour& tour, const Part& part, const Report& report)
{
    std::string finding = Place(part, report) + ": " + NameOf(report.ending);
    if (report.code != 0) {
        char code[20];
        std::snprintf(code, sizeof code, " %08lx", report.code);
        finding += code;
    }
    finding += std::string(" ") + report.told + "\n";
    if (part.threads > 1) {
        finding += "    and episode " + std::to_string(report.episode[1]) + ", operation " +
                   std::to_string(report.op[1]) + "\n";
        tour.findings.push_back(finding);
        return;
    }
    std::printf("Found, and being shortened: %s  %s\n", finding.c_str(),
                Told(EpisodeOf(part.seed, static_cast<uint32_t>(report.episode[0]))[static_cast<size_t>(report.op[0])])
                    .c_str());
    std::fflush(stdout);
    Shortener shortener(part, report);
    if (!shortener.Shorten()) {
        tour.findings.push_back(finding + "    not shown by the episode alone, begun from " +
                                std::to_string(part.first) + "\n");
        return;
    }
    finding += ScriptOf(shortener.Result());
    Part plain = shortener.Result();
    plain.cast = Cast::Plain;
    const bool isShared = part.cast == Cast::Masked && IsSame(PlayInChild(plain), report);
    std::printf("%s\n%s", isShared ? "Plain edits have it, too:" : "The shortest script:", ScriptOf(plain).c_str());
    std::fflush(stdout);
    (isShared ? tour.sharedFindings : tour.findings).push_back(finding);
}

void Add(Tour& tour, const Report& report)
{
    tour.played += static_cast<uint64_t>(report.operations[0] + report.operations[1]);
    for (int kind = 0; kind < kKinds; ++kind)
        tour.kinds[kind] += static_cast<uint64_t>(report.kinds[kind]);
    tour.reactions += static_cast<uint64_t>(report.reactions);
    if (report.ending != Ending::Played || report.warmEpisodes == 0)
        return;
    tour.growth.gdiObjects += report.last.gdiObjects - report.warm.gdiObjects;
    tour.growth.windows += report.last.windows - report.warm.windows;
    tour.growth.memoryBlocks += report.last.memoryBlocks - report.warm.memoryBlocks;
    tour.grownOver += static_cast<uint64_t>(report.episode[0] - report.warmEpisodes);
}

}  // namespace

Tour Travel(const Plan& plan)
{
    Tour tour;
    tour.plan = plan;
    const ULONGLONG start = GetTickCount64();
    auto episodes = static_cast<uint32_t>((plan.operations + kEpisodeLength - 1) / kEpisodeLength);
    Part part = {plan.cast, plan.seed, 0, episodes, plan.threads};
    if (plan.only >= 0) {
        part.first = static_cast<uint32_t>(plan.only);
        episodes = part.first + 1;
    }
    while (part.first < episodes && tour.findings.size() < kMostFindings) {
        part.count = episodes - part.first;
        const Report report = PlayInChild(part);
        Add(tour, report);
        if (report.ending == Ending::Played)
            break;
        Find(tour, part, report);
        part.first = static_cast<uint32_t>(std::max(report.episode[0], report.episode[1])) + 1;
    }
    tour.seconds = static_cast<double>(GetTickCount64() - start) / 1000;
    return tour;
}

void Tell(const Tour& tour)
{
    const char* cast = tour.plan.cast == Cast::Plain ? "plain edits" : "masked edits";
    std::printf(
        "%s, %u thread(s), seed %llu: %llu operations, %.1f s, %.0f/s; findings %zu, shared with plain edits %zu\n",
        cast, tour.plan.threads, static_cast<unsigned long long>(tour.plan.seed),
        static_cast<unsigned long long>(tour.played), tour.seconds,
        static_cast<double>(tour.played) / std::max(tour.seconds, 0.001), tour.findings.size(),
        tour.sharedFindings.size());
    std::printf("  reactions inside notifications: %llu\n", static_cast<unsigned long long>(tour.reactions));
    std::printf("  grown over %llu episodes: graphics objects %ld, windows %ld, memory blocks %ld\n",
                static_cast<unsigned long long>(tour.grownOver), tour.growth.gdiObjects, tour.growth.windows,
                tour.growth.memoryBlocks);
    for (int kind = 0; kind < kKinds; ++kind)
        std::printf("  %-18s %8llu%s", storm::NameOf(static_cast<Kind>(kind)),
                    static_cast<unsigned long long>(tour.kinds[kind]), kind % 3 == 2 ? "\n" : "");
    std::printf("\n");
    for (const std::string& finding : tour.sharedFindings)
        std::printf("Shared with plain edits: %s\n", finding.c_str());
    std::fflush(stdout);
}

}  // namespace storm
