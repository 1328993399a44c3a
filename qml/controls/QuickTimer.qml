import QtQuick

// A timer that can say how long it still has to run.
Timer {
    id: timer

    property var startTime: null

    function startTimer(): void {
        startTime = new Date();
        restart();
    }

    // Milliseconds to go, 0 when the timer is stopped.
    function remainingTime(): int {
        if (!running)
            return 0;
        return Math.max(0, interval - (Date.now() - startTime));
    }
}
