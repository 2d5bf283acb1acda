// first_frame PROGRAM [WORDS]: starts a program and prints how many milliseconds pass until the middle of its window is
// painted, then the process identifier; the program goes on. Looked at from outside, so that any program is measured
// alike: the screen is made of a colour that nobody paints, and one pixel of the new window is read until it has
// another. The screen must be bare, without a window manager.
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <spawn.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>

namespace {

using Clock = std::chrono::steady_clock;

constexpr unsigned long kBare = 0xFE01FD;
constexpr unsigned long kColours = 0xFFFFFF;
constexpr int kSmallest = 100;  // pixels
constexpr useconds_t kPause = 100;
constexpr auto kPatience = std::chrono::seconds(20);

int Ignore(Display*, XErrorEvent*) {
    return 0;  // a window may be gone before it is looked at
}

void MakeBare(Display* display) {
    XSetErrorHandler(Ignore);
    XSetWindowBackground(display, DefaultRootWindow(display), kBare);
    XClearWindow(display, DefaultRootWindow(display));
    XSelectInput(display, DefaultRootWindow(display), SubstructureNotifyMask);
    XSync(display, False);
}

/// Small windows are for talking between programs.
bool IsWindow(Display* display, Window window, XWindowAttributes& place) {
    return XGetWindowAttributes(display, window, &place) != 0 && place.width >= kSmallest;
}

bool IsPainted(Display* display, const XWindowAttributes& place) {
    XImage* image = XGetImage(display, DefaultRootWindow(display), place.x + place.width / 2,
                              place.y + place.height / 2, 1, 1, kColours, ZPixmap);
    if (image == nullptr) return false;
    const bool painted = (XGetPixel(image, 0, 0) & kColours) != kBare;
    XDestroyImage(image);
    return painted;
}

/// False when nothing is painted for a long time.
bool WaitForFrame(Display* display, Clock::time_point begun) {
    XEvent event{};
    Window window = None;
    for (XWindowAttributes place{}; Clock::now() - begun < kPatience; usleep(kPause)) {
        while (XCheckTypedEvent(display, MapNotify, &event) != 0) {
            if (IsWindow(display, event.xmap.window, place)) window = event.xmap.window;
        }
        if (window != None && IsWindow(display, window, place) && IsPainted(display, place)) return true;
    }
    return false;
}

}  // namespace

int main(int count, char** words) {
    Display* display = XOpenDisplay(nullptr);
    if (count < 2 || display == nullptr) {
        std::fputs("usage: first_frame PROGRAM [WORDS], with DISPLAY set\n", stderr);
        return 2;
    }
    MakeBare(display);
    pid_t child = 0;
    const auto begun = Clock::now();
    if (posix_spawn(&child, words[1], nullptr, nullptr, words + 1, environ) != 0) return 1;
    const bool seen = WaitForFrame(display, begun);
    const std::chrono::duration<double, std::milli> taken = Clock::now() - begun;
    std::printf("%.3f %d\n", seen ? taken.count() : -1.0, static_cast<int>(child));
    return seen ? 0 : 1;
}
