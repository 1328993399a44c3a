import QtQuick
import QtQuick.Templates as T

// A text field with validation: against `allowedChars` and, if set, `onContentCheck`, when the focus leaves the
// field and before it is submitted.
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
    //: Button in a password field: hides or shows the password.
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
    // Functions, () => void and () => bool. Set them in Component.onCompleted: qmllint takes a binding for a
    // signal handler.
    property var onEnterAction: null
    property var onContentCheck: null
    property string accessibleName: placeholderText
    // The error for screen readers: an empty field may show it by its colour alone.
    //: Error of a text field, for screen readers.
    readonly property string spokenError: errorMessage !== "" ? errorMessage : qsTr("This field is required.")
    readonly property string accessibleDescription: {
        // Qt 6.4 does not expose the accessible name of a password field.
        const name = echoMode === TextInput.Password ? accessibleName : "";
        const error = showError ? spokenError : "";
        return [name, error].filter(part => part !== "").join(": ");
    }

    readonly property var speaker: announcer // qmllint disable unqualified

    // Beside the end of the text, where the reveal button stands.
    readonly property real buttonPadding: enablePasswordMode ? 15 + revealButton.width + 15 : 15

    property int mark: QuickTextField.Resting

    function reset(): void {
        clear();
        showPassword = false;
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

    // Shows the error. Pages call it for reasons that the field cannot check.
    function fail(): void {
        showError = true;
        mark = QuickTextField.Failed;
        speaker.announce(accessibleName + ": " + spokenError);
    }

    function checkInputComplete(): void {
        contentValid = true;
        if (text === "")
            fail();
        else
            checkContent();
    }

    function focusChangedCheckInput(): void {
        contentValid = true;
        if (text === "")
            settle();
        else
            checkContent();
    }

    function checkContent(): void {
        const check = onContentCheck;
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

    width: 375
    height: 38
    maximumLength: 64
    // For screen readers: Qt 6.4 does not tell them that a field is disabled.
    readOnly: !enabled
    padding: 6
    leftPadding: Theme.mirrored ? buttonPadding : 15
    rightPadding: Theme.mirrored ? 15 : buttonPadding
    verticalAlignment: TextInput.AlignVCenter
    font.family: errorLabel.font.family
    font.pixelSize: Theme.noteText
    color: Theme.textGrey
    placeholderTextColor: Theme.placeholderGrey
    selectionColor: Theme.green
    selectedTextColor: Theme.white
    echoMode: enablePasswordMode && !showPassword ? TextInput.Password : TextInput.Normal
    // Selecting a revealed password with the mouse would copy it to the selection clipboard of X11.
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
    Accessible.readOnly: readOnly
    Accessible.description: accessibleDescription
    // TextField replaces the description by the placeholder when accessibility is switched on.
    Accessible.onDescriptionChanged: {
        if (Accessible.description !== accessibleDescription)
            Accessible.description = Qt.binding(() => accessibleDescription);
    }

    Component.onCompleted: {
        initialized = true;
        mark = QuickTextField.Resting;
    }
    onTextChanged: {
        blankFilter.noteChange();
        edit();
    }
    onTextEdited: {
        if (forbidSpace)
            blankFilter.removeTypedBlanks();
    }
    onActiveFocusChanged: {
        if (activeFocus)
            edit();
        else if (initialized && Window.active) // switching to another window does not end the input
            focusChangedCheckInput();
    }
    // A hidden item would keep the focus and get key events when shown again.
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
            blankFilter.paste();
        }
    }

    BlankFilter {
        id: blankFilter

        input: field
    }

    // Blocks the paste by middle button in a password field.
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
        //: Name of that button, for screen readers: its text and the name of the field.
        accessibleName: qsTr("%1 %2", "as in Show Password").arg(field.holdButtonText).arg(field.accessibleName)
        onClicked: field.showPassword = !field.showPassword
        // Text keys that the button does not use must not reach the field that contains it.
        Keys.onPressed: (event) => {
            event.accepted = event.text !== "" && ![Qt.Key_Tab, Qt.Key_Backtab, Qt.Key_Escape].includes(event.key);
        }

        ButtonLabel {
            id: revealLabel

            text: field.holdButtonText
            font.pixelSize: Theme.smallText
            color: Theme.textGrey
        }
    }

    // Drawn here, because loading a style would delay the first frame.
    ButtonLabel {
        objectName: "placeholder"
        x: field.leftPadding
        y: field.topPadding
        width: field.width - field.leftPadding - field.rightPadding
        height: field.height - field.topPadding - field.bottomPadding
        text: field.placeholderText
        font: field.font
        color: field.placeholderTextColor
        visible: field.length === 0 && field.preeditText === ""
    }

    ButtonLabel {
        id: errorLabel

        anchors.left: parent.left
        anchors.leftMargin: 15
        y: field.height + 2
        maximumWidth: field.width - anchors.leftMargin
        maximumHeight: 23
        text: field.errorMessage
        font.pixelSize: Theme.smallText
        color: field.errorBorderColor
        visible: field.showError
    }
}
