import QtQuick
import QtQuick.Templates as T

// A line of text that checks what is typed: against `allowedChars` and, where a page gives one, its
// `onContentCheck`, whenever the focus leaves it and before it is submitted.
T.TextField {
    id: field

    enum Mark {
        Resting,
        Editing,
        Failed
    }

    readonly property string regexOnlyNum: "^[0-9]*$"
    readonly property string regexNoSpecialChars: "^[^~!@#$%^&*()<>?:\"{}！，、￥¥…（）？：“”‘’「」。【】〈〉《》〔〕『』｛｝〜～]*$"
    readonly property string regexEmail: "^\\S+@[a-zA-Z0-9-]+(\\.[a-zA-Z0-9-]+)*\\.[a-zA-Z0-9]{1,64}$"
    readonly property string regexPassword: "^(?=.*[A-Z])(?=.*[a-z])(?=.*[0-9])[\\s\\S]{6,32}$"

    property color backgroundColor: "transparent"
    property color normalBorderColor: "#D5D5D5"
    property color focusBorderColor: Theme.green
    property color errorBorderColor: Theme.errorRed
    property real borderWidth: 1
    property real borderRadius: Theme.pillRadius
    property string holdButtonText: showPassword ? qsTr("Hide") : qsTr("Show")
    property bool enablePasswordMode: false
    property bool showPassword: false
    property string allowedChars: ".*"
    property string errorMessage: ""
    property bool showError: false
    property bool forbidSpace: true
    property bool contentValid: true
    readonly property bool valid: acceptableInput && text !== "" && contentValid
    property bool initialized: false
    property Item nextFocusItem: null
    // Functions, so that a page assigns them once it is complete: () => void and () => bool.
    property var onEnterAction: null
    property var onContentCheck: null
    property string accessibleName: placeholderText

    property int mark: QuickTextField.Resting

    // The text, and what it was before it changed last.
    property string textNow: ""
    property string textBefore: ""

    function reset(): void {
        clear();
        settle();
    }

    function settle(): void {
        showError = false;
        mark = QuickTextField.Resting;
    }

    function edit(): void {
        showError = false;
        mark = QuickTextField.Editing;
    }

    // Marks the content as wrong, also for a reason that only the page knows.
    function fail(): void {
        showError = true;
        mark = QuickTextField.Failed;
    }

    function checkInputComplete(): void {
        if (text === "")
            fail();
        else
            checkContent();
    }

    function focusChangedCheckInput(): void {
        if (text === "")
            settle();
        else
            checkContent();
    }

    function checkContent(): void {
        const check = onContentCheck;
        contentValid = true;
        if (check && !check()) {
            contentValid = false;
            fail();
        } else {
            validateInput();
        }
    }

    function validateInput(): void {
        if (acceptableInput)
            settle();
        else
            fail();
    }

    function submit(event: KeyEvent): void {
        event.accepted = true;
        if (event.isAutoRepeat)
            return;
        checkInputComplete();
        if (!valid)
            return;
        if (onEnterAction)
            onEnterAction();
        else if (nextFocusItem)
            nextFocusItem.forceActiveFocus(Qt.TabFocusReason);
    }

    // A pattern would refuse the whole clipboard for one blank around an address.
    function pasteWithoutBlanks(): void {
        clipboard.clear();
        clipboard.paste();
        remove(selectionStart, selectionEnd);
        insert(cursorPosition, clipboard.text.replace(/\s+/g, ""));
        clipboard.clear();
    }

    // Blanks that come past the keys: an input method, the mouse's selection. Those of a text that a
    // page has set stay.
    function dropBlanks(): void {
        // Versions of Qt differ in which they tell first, the edit or the change.
        const before = textNow === text ? textBefore : textNow;
        const shorter = Math.min(before.length, text.length);
        let head = 0;
        while (head < shorter && before[head] === text[head])
            ++head;
        let tail = 0;
        while (tail < shorter - head && before[before.length - 1 - tail] === text[text.length - 1 - tail])
            ++tail;
        const added = text.slice(head, text.length - tail);
        const kept = added.replace(/\s+/g, "");
        if (kept === added)
            return;
        remove(head, head + added.length);
        insert(head, kept);
        cursorPosition = head + kept.length;
    }

    width: 375
    height: 38
    maximumLength: 64
    padding: 6
    leftPadding: 15
    rightPadding: enablePasswordMode ? 15 + revealButton.width + 15 : 15
    verticalAlignment: TextInput.AlignVCenter
    font.family: errorLabel.font.family
    font.pixelSize: Theme.noteText
    color: Theme.textGrey
    placeholderTextColor: Theme.placeholderGrey
    selectionColor: Theme.green
    selectedTextColor: Theme.white
    echoMode: enablePasswordMode && !showPassword ? TextInput.Password : TextInput.Normal
    // Selecting a revealed password with the mouse would copy it on systems with a selection clipboard.
    selectByMouse: !enablePasswordMode || !showPassword
    validator: RegularExpressionValidator {
        regularExpression: new RegExp(field.allowedChars)
    }
    background: Rectangle {
        color: field.backgroundColor
        radius: field.borderRadius
        border.width: field.borderWidth
        border.color: {
            switch (field.mark) {
            case QuickTextField.Editing:
                return field.focusBorderColor;
            case QuickTextField.Failed:
                return field.errorBorderColor;
            default:
                return field.normalBorderColor;
            }
        }
    }

    Accessible.name: accessibleName
    Accessible.description: {
        // Qt 6.4 keeps the name of a password field to itself.
        const name = echoMode === TextInput.Password ? accessibleName : "";
        const error = showError ? errorMessage : "";
        return [name, error].filter(part => part !== "").join(": ");
    }

    Component.onCompleted: {
        initialized = true;
        mark = QuickTextField.Resting;
    }
    onTextChanged: {
        textBefore = textNow;
        textNow = text;
        edit();
    }
    onTextEdited: {
        if (forbidSpace)
            dropBlanks();
    }
    onActiveFocusChanged: {
        if (activeFocus)
            edit();
        else if (initialized && Window.active) // a look at another window is not the end of the entry
            focusChangedCheckInput();
    }
    // A hidden item keeps the focus and with it the keys.
    onVisibleChanged: {
        if (!visible)
            focus = false;
    }
    Keys.onReturnPressed: (event) => submit(event)
    Keys.onEnterPressed: (event) => submit(event)
    Keys.onPressed: (event) => {
        const paste = event.matches(StandardKey.Paste);
        const copy = event.matches(StandardKey.Copy) || event.matches(StandardKey.Cut);
        if (enablePasswordMode && (paste || copy)) {
            event.accepted = true;
        } else if (forbidSpace && event.key === Qt.Key_Space) {
            event.accepted = true;
        } else if (forbidSpace && paste && !readOnly) {
            event.accepted = true;
            pasteWithoutBlanks();
        }
    }

    TextInput {
        id: clipboard

        visible: false
        font: field.font // another one would be loaded for nothing
    }

    // Takes the middle button, which would paste, from a password.
    MouseArea {
        anchors.fill: parent
        enabled: field.enablePasswordMode
        acceptedButtons: Qt.MiddleButton
        cursorShape: Qt.IBeamCursor
    }

    ControlButton {
        id: revealButton

        objectName: "revealButton"
        anchors.right: parent.right
        anchors.rightMargin: 15
        anchors.verticalCenter: parent.verticalCenter
        width: Math.ceil(revealLabel.implicitWidth)
        height: revealLabel.implicitHeight
        visible: field.enablePasswordMode
        cursorShape: Qt.PointingHandCursor
        onClicked: field.showPassword = !field.showPassword
        // What the button does not use must not end up in the field it stands in.
        Keys.onPressed: (event) => {
            event.accepted = event.text !== "" && ![Qt.Key_Tab, Qt.Key_Backtab, Qt.Key_Escape].includes(event.key);
        }

        LatoRegularLabel {
            id: revealLabel

            text: field.holdButtonText
            font.pixelSize: Theme.smallText
            color: Theme.textGrey
        }
    }

    // All that a style would add to the template; without one the window comes up sooner.
    LatoRegularLabel {
        objectName: "placeholder"
        x: field.leftPadding
        y: field.topPadding
        width: field.width - field.leftPadding - field.rightPadding
        height: field.height - field.topPadding - field.bottomPadding
        text: field.placeholderText
        font: field.font
        color: field.placeholderTextColor
        elide: Text.ElideRight
        visible: field.length === 0 && field.preeditText === ""
        Accessible.ignored: true // the field's name tells it
    }

    LatoRegularLabel {
        id: errorLabel

        x: field.leftPadding
        y: field.height + 2
        text: field.errorMessage
        font.pixelSize: Theme.smallText
        color: field.errorBorderColor
        visible: field.showError
    }
}
