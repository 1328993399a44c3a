import QtQuick
import "../controls"

// Form to create an account with a work e-mail address.
LoginForm {
    id: form

    readonly property string firstName: firstNameField.text
    readonly property string lastName: lastNameField.text
    readonly property string email: emailField.text
    readonly property string password: passwordField.text
    // Domains of free mail services. Their sub-domains are refused as well.
    required property list<string> notCompanyEmail

    signal accepted

    function isNotCompanyEmail(address: string): bool {
        const at = address.indexOf("@");
        if (at < 0 || at !== address.lastIndexOf("@"))
            return false;
        const domain = address.slice(at + 1).toLowerCase();
        return form.notCompanyEmail.some(listed => domain === listed || domain.endsWith("." + listed));
    }

    function reset(): void {
        firstNameField.reset();
        lastNameField.reset();
        emailField.reset();
        passwordField.reset();
        confirmField.reset();
    }

    function focusFirstField(): void {
        firstNameField.forceActiveFocus();
    }

    function submit(): void {
        firstNameField.checkInputComplete();
        lastNameField.checkInputComplete();
        emailField.checkInputComplete();
        passwordField.checkInputComplete();
        confirmField.checkInputComplete();
        const complete = firstNameField.valid && lastNameField.valid && emailField.valid
                         && passwordField.valid && confirmField.valid;
        if (complete && passwordField.text === confirmField.text)
            form.accepted();
    }

    errorBelowFields: confirmField.showError && confirmField.errorMessage !== ""
    title: qsTr("Create an Account")
    subline: qsTr("Already have an account?")
    linkText: qsTr("Sign In")
    submitText: qsTr("Create Account")
    submitY: 470

    Column {
        y: 201
        spacing: 25

        Row {
            spacing: 15

            QuickTextField {
                id: firstNameField

                objectName: "firstName"
                width: 180
                placeholderText: qsTr("First Name")
                allowedChars: regexNoSpecialChars
                errorMessage: qsTr("The format is incorrect")
                nextFocusItem: lastNameField
            }

            QuickTextField {
                id: lastNameField

                objectName: "lastName"
                width: 180
                placeholderText: qsTr("Last Name")
                allowedChars: regexNoSpecialChars
                errorMessage: qsTr("The format is incorrect")
                nextFocusItem: emailField
            }
        }

        QuickTextField {
            id: emailField

            objectName: "email"
            placeholderText: qsTr("Email")
            allowedChars: regexEmail
            errorMessage: contentValid ? qsTr("The format is incorrect")
                                       : qsTr("Please use a work email address to register.")
            nextFocusItem: passwordField
            Component.onCompleted: onContentCheck = () => !form.isNotCompanyEmail(text)
        }

        QuickTextField {
            id: passwordField

            objectName: "password"
            placeholderText: qsTr("Password")
            maximumLength: 32
            enablePasswordMode: true
            nextFocusItem: confirmField
        }

        QuickTextField {
            id: confirmField

            objectName: "confirmPassword"
            placeholderText: qsTr("Confirm Password")
            maximumLength: 32
            enablePasswordMode: true
            errorMessage: text !== "" ? qsTr("Password do not match") : ""
            Component.onCompleted: {
                onContentCheck = () => text === passwordField.text;
                onEnterAction = () => form.submitted();
            }
        }
    }
}
