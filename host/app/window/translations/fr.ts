<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>xbr::host::AboutDialog</name>
    <message>
        <source>About xbrhost</source>
        <translation>À propos de xbrhost</translation>
    </message>
    <message>
        <source>Publishes finished songs through the modules of a workstation.</source>
        <translation>Publie des morceaux finis grâce aux modules d’une station audio.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>Co&amp;pier</translation>
    </message>
    <message>
        <source>Copy the versions</source>
        <translation>Copier les versions</translation>
    </message>
</context>
<context>
    <name>xbr::host::DockTitle</name>
    <message>
        <source>Float or dock</source>
        <translation>Détacher ou ancrer</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Masquer</translation>
    </message>
</context>
<context>
    <name>xbr::host::EmptyState</name>
    <message>
        <source>&amp;Add Songs…</source>
        <translation>&amp;Ajouter des morceaux…</translation>
    </message>
    <message>
        <source>Drop your finished songs here</source>
        <translation>Déposez ici vos morceaux finis</translation>
    </message>
    <message>
        <source>WAV, AIFF, FLAC, MP3 or Ogg, one by one or a whole folder</source>
        <translation>WAV, AIFF, FLAC, MP3 ou Ogg, un par un ou tout un dossier</translation>
    </message>
</context>
<context>
    <name>xbr::host::FileSelector</name>
    <message>
        <source>All usable files</source>
        <translation>Tous les fichiers utilisables</translation>
    </message>
    <message>
        <source>Choose Files</source>
        <translation>Choisir des fichiers</translation>
    </message>
</context>
<context>
    <name>xbr::host::GadgetDock</name>
    <message>
        <source>The form of this panel cannot be shown.</source>
        <translation>Le formulaire de ce panneau ne peut pas être affiché.</translation>
    </message>
</context>
<context>
    <name>xbr::host::Header</name>
    <message>
        <source>Songs</source>
        <translation>Morceaux</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Aucun pour l’instant</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s)</source>
        <translation>
            <numerusform>%n morceau</numerusform>
            <numerusform>%n morceaux</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::MainWindow</name>
    <message>
        <source>Songs – xbrhost</source>
        <translation>Morceaux – xbrhost</translation>
    </message>
    <message>
        <source>Add Songs</source>
        <translation>Ajouter des morceaux</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Publish the selected songs, or all</source>
        <translation>Publier les morceaux choisis, ou tous</translation>
    </message>
    <message>
        <source>Some songs are still being read; try again in a moment.</source>
        <translation>Certains morceaux sont encore en cours de lecture ; réessayez dans un instant.</translation>
    </message>
    <message>
        <source>Add songs first.</source>
        <translation>Ajoutez d’abord des morceaux.</translation>
    </message>
    <message>
        <source>Wait until the upload that runs has ended.</source>
        <translation>Attendez la fin de l’envoi en cours.</translation>
    </message>
    <message>
        <source>Stop the Upload?</source>
        <translation>Arrêter l’envoi ?</translation>
    </message>
    <message>
        <source>An upload is running.</source>
        <translation>Un envoi est en cours.</translation>
    </message>
    <message>
        <source>When you quit now, it is stopped; songs that have not arrived are not published.</source>
        <translation>Si vous quittez maintenant, il est arrêté ; les morceaux non arrivés ne sont pas publiés.</translation>
    </message>
    <message>
        <source>&amp;Stop and Quit</source>
        <translation>&amp;Arrêter et quitter</translation>
    </message>
    <message>
        <source>&amp;Keep Uploading</source>
        <translation>&amp;Continuer l’envoi</translation>
    </message>
</context>
<context>
    <name>xbr::host::ProgressSheet</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Working on</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Arrêt en cours…</translation>
    </message>
</context>
<context>
    <name>xbr::host::Publishing</name>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>« %1 » ne peut pas être lu.</translation>
    </message>
    <message>
        <source>“%1” is of a kind that cannot be published.</source>
        <translation>« %1 » est d’un type qui ne peut pas être publié.</translation>
    </message>
    <message>
        <source>Rendering was cancelled; nothing was handed over.</source>
        <translation>Le rendu a été annulé ; rien n’a été transmis.</translation>
    </message>
    <message>
        <source>“%1” cannot be used.</source>
        <translation>« %1 » ne peut pas être utilisé.</translation>
    </message>
    <message>
        <source>“%1” does not take the songs.</source>
        <translation>« %1 » n’accepte pas les morceaux.</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) handed over. Complete the information, then upload.</source>
        <translation>
            <numerusform>%n morceau transmis. Complétez les informations, puis envoyez.</numerusform>
            <numerusform>%n morceaux transmis. Complétez les informations, puis envoyez.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::ServiceWatch</name>
    <message>
        <source>Disconnected.</source>
        <translation>Déconnecté.</translation>
    </message>
    <message>
        <source>Continue in your web browser: allow the access there.</source>
        <translation>Continuez dans votre navigateur : autorisez-y l’accès.</translation>
    </message>
    <message>
        <source>Signing in…</source>
        <translation>Connexion en cours…</translation>
    </message>
    <message>
        <source>Connected.</source>
        <translation>Connecté.</translation>
    </message>
    <message>
        <source>Uploading “%1”: %2 %</source>
        <translation>Envoi de « %1 » : %2 %</translation>
    </message>
    <message>
        <source>Your sign-in has expired or was withdrawn. Disconnect, then connect again.</source>
        <translation>Votre connexion a expiré ou a été révoquée. Déconnectez-vous, puis reconnectez-vous.</translation>
    </message>
    <message>
        <source>Connected as %1.</source>
        <translation>Connecté en tant que %1.</translation>
    </message>
    <message>
        <source>The service did not accept the sign-in. Try to connect again.</source>
        <translation>Le service n’a pas accepté la connexion. Essayez de vous reconnecter.</translation>
    </message>
    <message>
        <source>Not connected yet: the browser has not come back with a permission.</source>
        <translation>Pas encore connecté : le navigateur n’a pas rapporté d’autorisation.</translation>
    </message>
    <message>
        <source>The upload was cancelled before anything was sent.</source>
        <translation>L’envoi a été annulé avant que quoi que ce soit ne parte.</translation>
    </message>
    <message numerus="yes">
        <source>Published: %n song(s).</source>
        <translation>
            <numerusform>Publié : %n morceau.</numerusform>
            <numerusform>Publiés : %n morceaux.</numerusform>
        </translation>
    </message>
    <message>
        <source>The service needs more information: fill in the marked fields, then upload again.</source>
        <translation>Le service a besoin de plus d’informations : remplissez les champs marqués, puis renvoyez.</translation>
    </message>
    <message>
        <source>Nothing was sent: the upload could not be prepared.</source>
        <translation>Rien n’a été envoyé : l’envoi n’a pas pu être préparé.</translation>
    </message>
    <message>
        <source>Nothing was sent: %1</source>
        <translation>Rien n’a été envoyé : %1</translation>
    </message>
    <message numerus="yes">
        <source>The service did not take %n song(s). Try again later.</source>
        <translation>
            <numerusform>Le service n’a pas accepté %n morceau. Réessayez plus tard.</numerusform>
            <numerusform>Le service n’a pas accepté %n morceaux. Réessayez plus tard.</numerusform>
        </translation>
    </message>
    <message>
        <source>Uploading…</source>
        <translation>Envoi en cours…</translation>
    </message>
    <message>
        <source>The browser came back without a permission. Allow the access there, or cancel here.</source>
        <translation>Le navigateur est revenu sans autorisation. Autorisez l’accès là-bas ou annulez ici.</translation>
    </message>
</context>
<context>
    <name>xbr::host::Song</name>
    <message>
        <source>%1 bit</source>
        <translation>%1 bits</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <source>This is no audio that can be read.</source>
        <translation>Ce n’est pas un fichier audio lisible.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Le fichier ne peut pas être lu.</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Fichiers audio</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongListModel</name>
    <message>
        <source>Reading…</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artiste</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>Artiste de l’album</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Genre</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>Numéro de piste</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongView</name>
    <message>
        <source>Songs</source>
        <translation>Morceaux</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Colonnes</translation>
    </message>
</context>
<context>
    <name>xbr::host::StatusLine</name>
    <message>
        <source>Status</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Fermer le message</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>Prêt.</translation>
    </message>
</context>
<context>
    <name>xbr::host::WindowActions</name>
    <message>
        <source>Menus</source>
        <translation>Menus</translation>
    </message>
    <message>
        <source>&amp;Publish</source>
        <translation>&amp;Publier</translation>
    </message>
    <message>
        <source>&amp;About xbrhost</source>
        <translation>À &amp;propos de xbrhost</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>&amp;Add Songs…</source>
        <translation>&amp;Ajouter des morceaux…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Add songs (%1)</source>
        <translation>Ajouter des morceaux (%1)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit Cell</source>
        <translation>&amp;Modifier la cellule</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Retirer</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>Remove the selected songs from the list; the files stay</source>
        <translation>Retirer les morceaux choisis de la liste ; les fichiers restent</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Next Area</source>
        <translation>Zone &amp;suivante</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Apparence</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>&amp;Réinitialiser la disposition</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Comme le &amp;bureau</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Clair</translation>
    </message>
    <message>
        <source>Da&amp;rk</source>
        <translation>&amp;Sombre</translation>
    </message>
</context>
<context>
    <name>xbr::host::WindowFront</name>
    <message>
        <source>%1, border %2.%3</source>
        <translation>%1, interface %2.%3</translation>
    </message>
    <message>
        <source>Songs cannot be published: %1</source>
        <translation>Les morceaux ne peuvent pas être publiés : %1</translation>
    </message>
    <message>
        <source>Songs cannot be published: no module was found.</source>
        <translation>Les morceaux ne peuvent pas être publiés : aucun module n’a été trouvé.</translation>
    </message>
    <message>
        <source>The browser&apos;s answer to a sign-in cannot be received: %1</source>
        <translation>La réponse du navigateur à une connexion ne peut pas être reçue : %1</translation>
    </message>
</context>
<context>
    <name>xbr::host::Wording</name>
    <message>
        <source>The settings of %1 cannot be read from “%2”.</source>
        <translation>Les réglages de %1 ne peuvent pas être lus dans « %2 ».</translation>
    </message>
    <message>
        <source>%1 is not set up yet. Put %2 into “%3”, section [%4], one “key = value” a line.</source>
        <translation>%1 n’est pas encore configuré. Mettez %2 dans « %3 », section [%4], un « clé = valeur » par ligne.</translation>
    </message>
    <message>
        <source>%1 is not set up properly. Correct %2 in “%3”, section [%4].</source>
        <translation>%1 est mal configuré. Corrigez %2 dans « %3 », section [%4].</translation>
    </message>
</context>
</TS>
