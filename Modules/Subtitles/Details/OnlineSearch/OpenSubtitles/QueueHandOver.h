#pragma once

/// Qt's event queue, and the end of its threads, hand data from one thread to another in order. But the system's build
/// of Qt is not instrumented, so the thread sanitizer sees neither its locks nor whose turn it is. These say it. Both
/// sides name the same channel, any address that outlives the hand-over. Without the sanitizer they are nothing.
namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
{

#if defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define KORVEX_SEES_THREADS 1
#endif
#endif
#if defined(__SANITIZE_THREAD__)
#define KORVEX_SEES_THREADS 1
#endif

#if defined(KORVEX_SEES_THREADS)

extern "C" void __tsan_acquire(void* address);
extern "C" void __tsan_release(void* address);
extern "C" void AnnotateIgnoreWritesBegin(char const* file, int line);
extern "C" void AnnotateIgnoreWritesEnd(char const* file, int line);

/// What this thread wrote so far is for whoever takes over the channel next.
inline void PassOn(void const* channel)
{
    __tsan_release(const_cast<void*>(channel));
}

/// First thing in a slot that a queued signal calls, and after the wait for a thread.
inline void TakeOver(void const* channel)
{
    __tsan_acquire(const_cast<void*>(channel));
}

/// For as long as a queued signal is emitted: passes on, and leaves the copies of the arguments that Qt makes meanwhile
/// to the queue. Nothing but the emission may happen under it.
class QueueGiving final
{
public:
    explicit QueueGiving(void const* channel)
    {
        PassOn(channel);
        AnnotateIgnoreWritesBegin(__FILE__, __LINE__);
    }
    ~QueueGiving() { AnnotateIgnoreWritesEnd(__FILE__, __LINE__); }
    QueueGiving(QueueGiving const&) = delete;
    QueueGiving& operator=(QueueGiving const&) = delete;
};

#else

inline void PassOn(void const* /*channel*/) {}
inline void TakeOver(void const* /*channel*/) {}

class QueueGiving final
{
public:
    explicit QueueGiving(void const* /*channel*/) {}
    ~QueueGiving() {} // not defaulted, so that a guard that is only there for its scope counts as used
    QueueGiving(QueueGiving const&) = delete;
    QueueGiving& operator=(QueueGiving const&) = delete;
};

#endif

#undef KORVEX_SEES_THREADS

} // namespace Korvex::Converter::Subtitles::Details::OpenSubtitles
