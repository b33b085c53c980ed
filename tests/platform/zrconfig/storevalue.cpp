// SPDX-License-Identifier: GPL-3.0-or-later
// Stores one value and dies at once, as at a power cut:  storevalue GROUP KEY VALUE [BYTES] [UID]
// Tells each flush and each change of a name on standard output.
// BYTES is the largest file that may be written (a full disk), UID the user to become (one without rights).
#include <zrconfig.h>

#include <csignal>
#include <cstdlib>
#include <grp.h>
#include <sys/resource.h>
#include <unistd.h>

namespace {

/// The groups have to go too: they open what the user may not.
bool become(uid_t user) {
    return ::setgroups(0, nullptr) == 0 && ::setgid(user) == 0 && ::setuid(user) == 0;
}

} // namespace

int main(int argc, char *argv[]) {
    if (argc < 4)
        return EXIT_FAILURE;
    if (argc > 4 && std::atoi(argv[4]) > 0) {
        std::signal(SIGXFSZ, SIG_IGN);
        const rlim_t bytes = static_cast<rlim_t>(std::atoi(argv[4]));
        const rlimit limit{bytes, bytes};
        if (::setrlimit(RLIMIT_FSIZE, &limit) != 0)
            return EXIT_FAILURE;
    }
    if (argc > 5 && std::atoi(argv[5]) > 0 && !become(static_cast<uid_t>(std::atoi(argv[5]))))
        return EXIT_FAILURE;
    ZrConfig(QStringLiteral("zr-launcher"),
             QString::fromLocal8Bit(argv[1]))[QString::fromLocal8Bit(argv[2])] =
        QString::fromLocal8Bit(argv[3]);
    std::raise(SIGKILL);
}
