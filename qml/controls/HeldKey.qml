import QtQuick

// Tells the release of a held key from the releases of its repeats. On X11 a held key comes as presses and releases,
// and Qt does not mark all of them as repeats.
QtObject {
    id: key

    // Milliseconds: the shortest delay before the keyboard repeats a held key, and the longest time between the release
    // and the press of a repeat.
    readonly property int shortestDelay: 150
    readonly property int longestGap: 50

    readonly property Timer delay: Timer {
        interval: key.shortestDelay
    }
    readonly property Timer gap: Timer {
        interval: key.longestGap
        onTriggered: key.released()
    }

    // The key was released, and no press of a repeat has followed.
    signal released

    function press(): void {
        key.delay.restart();
    }

    function release(): void {
        if (key.delay.running)
            key.released();
        else
            key.gap.restart();
    }

    // The key is still held, or its release does not matter any more.
    function ignoreRelease(): void {
        key.gap.stop();
    }
}
