// Times a program's start-up on the current X display, the way a player
// sees it: from fork to the first map of one of its top-level windows
// (matched by _NET_WM_PID), with its peak and current resident size read
// from /proc at that moment and one second later. Optionally it then plays
// the game's first two clicks with real X input (XTest): "OK" on the first
// window, a level button on the window that opens, and times the level click
// to the board's map.
//
//   startup [--ok X,Y --level X,Y] [--settle MS] -- program [arguments...]
//
// X,Y are pixels inside the window clicked. One line per run on stdout:
//   map_ms=22.81 cpu_map_ms=... hwm_map_kb=... rss_map_kb=... hwm_1s_kb=... rss_1s_kb=...
//   [board_ms=4.12]
// (cpu_map_ms: processor time the program used up to the map).
// Any failure prints a line starting "error:" and exits with 1.
#include <X11/Xatom.h>
#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>
#include <dirent.h>
#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <optional>
#include <string>
#include <thread>
#include <vector>

namespace {

using Clock = std::chrono::steady_clock;

double msSince(Clock::time_point start) {
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

pid_t runningChild = 0;  // killed on the way out of a failed run

[[noreturn]] void die(const std::string& why) {
    if (runningChild > 0) {
        kill(runningChild, SIGKILL);
        waitpid(runningChild, nullptr, 0);
    }
    std::printf("error: %s\n", why.c_str());
    std::fflush(stdout);
    std::exit(1);
}

struct Point {
    int x = 0, y = 0;
};

std::optional<Point> parsePoint(const char* text) {
    Point p;
    char comma = 0;
    if (std::sscanf(text, "%d%c%d", &p.x, &comma, &p.y) != 3 || comma != ',') return std::nullopt;
    return p;
}

struct Options {
    std::optional<Point> ok, level;
    int settleMs = 1000;
    int pauseMs = 300;  // lets the options screen paint and go idle before the level click
    int timeoutMs = 15000;
    std::vector<char*> command;
};

Options parseArguments(int argc, char** argv) {
    Options o;
    int i = 1;
    for (; i < argc && std::strcmp(argv[i], "--") != 0; ++i) {
        const std::string flag = argv[i];
        if (i + 1 >= argc) die("missing value after " + flag);
        const char* value = argv[++i];
        if (flag == "--ok" || flag == "--level") {
            auto p = parsePoint(value);
            if (!p) die(flag + " wants X,Y");
            (flag == "--ok" ? o.ok : o.level) = p;
        } else if (flag == "--settle") {
            o.settleMs = std::atoi(value);
        } else if (flag == "--timeout") {
            o.timeoutMs = std::atoi(value) * 1000;
        } else {
            die("unknown option " + flag);
        }
    }
    for (++i; i < argc; ++i) o.command.push_back(argv[i]);
    if (o.command.empty())
        die("usage: startup [--ok X,Y --level X,Y] [--settle MS] [--timeout S] -- program [args]");
    if (o.ok.has_value() != o.level.has_value()) die("--ok and --level go together");
    o.command.push_back(nullptr);
    return o;
}

// Milliseconds the program has spent on a processor so far, all its threads
// together: unlike the wall-clock time, it barely moves when other work
// crowds the machine.
double cpuMs(pid_t pid) {
    const std::string tasks = "/proc/" + std::to_string(pid) + "/task";
    DIR* dir = opendir(tasks.c_str());
    if (!dir) return -1;
    double ns = 0;
    while (dirent* entry = readdir(dir)) {
        if (entry->d_name[0] == '.') continue;
        std::ifstream schedstat(tasks + "/" + entry->d_name + "/schedstat");
        double onCpu = 0;
        if (schedstat >> onCpu) ns += onCpu;
    }
    closedir(dir);
    return ns / 1e6;
}

struct Memory {
    long hwmKb = -1, rssKb = -1;
};

Memory readMemory(pid_t pid) {
    Memory m;
    std::ifstream status("/proc/" + std::to_string(pid) + "/status");
    std::string key;
    long value = 0;
    while (status >> key) {
        if (key == "VmHWM:" && status >> value) m.hwmKb = value;
        if (key == "VmRSS:" && status >> value) m.rssKb = value;
    }
    return m;
}

class Bench {
  public:
    explicit Bench(Display* d) : dpy_(d), root_(DefaultRootWindow(d)) {
        pidAtom_ = XInternAtom(dpy_, "_NET_WM_PID", False);
        // Every top-level map shows up on the root window (or, under a
        // reparenting window manager, the frame's map does).
        XSelectInput(dpy_, root_, SubstructureNotifyMask);
        XSync(dpy_, False);
        fcntl(ConnectionNumber(dpy_), F_SETFD, FD_CLOEXEC);
    }

    pid_t start(std::vector<char*>& command) {
        started_ = Clock::now();
        pid_ = fork();
        if (pid_ < 0) die("fork failed");
        if (pid_ == 0) {
            execvp(command[0], command.data());
            std::fprintf(stderr, "cannot run %s\n", command[0]);
            _exit(127);
        }
        runningChild = pid_;
        return pid_;
    }

    Clock::time_point started() const { return started_; }

    // Waits for the next map of one of the program's windows; returns it.
    Window nextMap(int timeoutMs) {
        const auto deadline = Clock::now() + std::chrono::milliseconds(timeoutMs);
        for (;;) {
            while (XPending(dpy_)) {
                XEvent e;
                XNextEvent(dpy_, &e);
                if (e.type != MapNotify || e.xmap.event != root_) continue;
                if (Window w = ownWindow(e.xmap.window)) return w;
            }
            int status = 0;
            if (waitpid(pid_, &status, WNOHANG) == pid_) {
                pid_ = runningChild = 0;
                die("the program ended before mapping a window");
            }
            const auto left =
                std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
            if (left.count() <= 0) die("no window mapped in time");
            pollfd fd{ConnectionNumber(dpy_), POLLIN, 0};
            poll(&fd, 1, static_cast<int>(std::min<long>(left.count(), 50)));
        }
    }

    // Waits for a map of one of the program's windows of the given size.
    Window nextMapSized(int width, int height, int timeoutMs) {
        const auto deadline = Clock::now() + std::chrono::milliseconds(timeoutMs);
        for (;;) {
            const auto left =
                std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now());
            if (left.count() <= 0) die("no window of the expected size mapped in time");
            const Window w = nextMap(static_cast<int>(left.count()));
            const auto [wd, ht] = size(w);
            if (wd == width && ht == height) return w;
        }
    }

    std::pair<int, int> size(Window w) {
        XWindowAttributes a;
        if (!XGetWindowAttributes(dpy_, w, &a)) return {0, 0};
        return {a.width, a.height};
    }

    // A left click at a point inside a window, as a player's hand would.
    // Returns the moment the button went up, when the program acts on it.
    Clock::time_point click(Window w, Point p) {
        int x = 0, y = 0;
        Window child;
        XTranslateCoordinates(dpy_, w, root_, p.x, p.y, &x, &y, &child);
        XTestFakeMotionEvent(dpy_, -1, x, y, CurrentTime);
        XTestFakeButtonEvent(dpy_, 1, True, CurrentTime);
        XSync(dpy_, False);
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        const auto up = Clock::now();
        XTestFakeButtonEvent(dpy_, 1, False, CurrentTime);
        XFlush(dpy_);
        return up;
    }

    void stop() {
        if (pid_ <= 0) return;
        runningChild = 0;
        kill(pid_, SIGTERM);
        for (int i = 0; i < 100; ++i) {
            if (waitpid(pid_, nullptr, WNOHANG) == pid_) {
                pid_ = 0;
                return;
            }
            std::this_thread::sleep_for(std::chrono::milliseconds(20));
        }
        kill(pid_, SIGKILL);
        waitpid(pid_, nullptr, 0);
        pid_ = 0;
    }

  private:
    // The window itself when it is the program's, or (under a window
    // manager's frame) the first of its children that is.
    Window ownWindow(Window w) {
        if (pidOf(w) == pid_) return w;
        Window rootOut, parent, *children = nullptr;
        unsigned count = 0;
        Window found = 0;
        if (XQueryTree(dpy_, w, &rootOut, &parent, &children, &count)) {
            for (unsigned i = 0; i < count && !found; ++i)
                if (pidOf(children[i]) == pid_) found = children[i];
            if (children) XFree(children);
        }
        return found;
    }

    long pidOf(Window w) {
        Atom type;
        int format = 0;
        unsigned long items = 0, after = 0;
        unsigned char* data = nullptr;
        long pid = -1;
        if (XGetWindowProperty(dpy_, w, pidAtom_, 0, 1, False, XA_CARDINAL, &type, &format, &items,
                               &after, &data) == Success &&
            data && items == 1 && format == 32)
            pid = *reinterpret_cast<long*>(data);
        if (data) XFree(data);
        return pid;
    }

    Display* dpy_;
    Window root_;
    Atom pidAtom_;
    pid_t pid_ = 0;
    Clock::time_point started_;
};

int xErrors(Display*, XErrorEvent*) {
    return 0;  // a window that went away while we looked at it
}

}  // namespace

int main(int argc, char** argv) {
    Options o = parseArguments(argc, argv);
    Display* dpy = XOpenDisplay(nullptr);
    if (!dpy) die("cannot open the X display");
    XSetErrorHandler(xErrors);
    int event = 0, error = 0, major = 0, minor = 0;
    if (o.ok && !XTestQueryExtension(dpy, &event, &error, &major, &minor))
        die("the X server has no XTest extension");

    Bench bench(dpy);
    const pid_t pid = bench.start(o.command);
    const Window first = bench.nextMap(o.timeoutMs);
    const double mapMs = msSince(bench.started());
    const double cpuAtMap = cpuMs(pid);
    const Memory atMap = readMemory(pid);
    std::this_thread::sleep_for(std::chrono::milliseconds(o.settleMs));
    const Memory later = readMemory(pid);

    std::printf(
        "map_ms=%.2f cpu_map_ms=%.2f hwm_map_kb=%ld rss_map_kb=%ld hwm_1s_kb=%ld "
        "rss_1s_kb=%ld",
        mapMs, cpuAtMap, atMap.hwmKb, atMap.rssKb, later.hwmKb, later.rssKb);
    if (o.ok) {
        const auto [width, height] = bench.size(first);
        bench.click(first, *o.ok);
        // The options screen has the title screen's size; the backdrop that
        // maps with it covers the whole screen.
        const Window options = bench.nextMapSized(width, height, o.timeoutMs);
        std::this_thread::sleep_for(std::chrono::milliseconds(o.pauseMs));
        const auto up = bench.click(options, *o.level);
        bench.nextMap(o.timeoutMs);
        std::printf(" board_ms=%.2f", msSince(up));
    }
    std::printf("\n");
    std::fflush(stdout);
    bench.stop();
    XCloseDisplay(dpy);
    return 0;
}
