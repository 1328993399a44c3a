import QtQuick

// A Timer that reports its remaining time.
Timer {
    id: timer

    property var startTime: null

    function startTimer(): void {
        startTime = new Date();
        restart();
    }

    // Remaining milliseconds, 0 when the timer is stopped.
    function remainingTime(): int {
        if (!running)
            return 0;
        return Math.max(0, interval - (Date.now() - startTime));
    }
}
