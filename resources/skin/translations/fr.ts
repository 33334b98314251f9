<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>brindlex</name>
    <message>
        <source>User authorization pending...</source>
        <translation>En attente de l’autorisation...</translation>
    </message>
    <message>
        <source>Sign in on the page that has opened in your web browser, then come back here. If no page has opened, choose &quot;Retry&quot;.</source>
        <translation>Connectez-vous sur la page qui s’est ouverte dans votre navigateur, puis revenez ici. Si aucune page ne s’est ouverte, choisissez « Réessayer ».</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Getting access token...</source>
        <translation>Obtention du jeton d’accès...</translation>
    </message>
    <message>
        <source>You are now connected to Brindlex.</source>
        <translation>Vous êtes maintenant connecté à Brindlex.</translation>
    </message>
    <message>
        <source>Attempt to connect with Brindlex failed!</source>
        <translation>La connexion à Brindlex a échoué !</translation>
    </message>
    <message>
        <source>Check your internet connection, then choose &quot;Retry&quot;.</source>
        <translation>Vérifiez votre connexion à Internet, puis choisissez « Réessayer ».</translation>
    </message>
    <message>
        <source>Refreshing access token...</source>
        <translation>Renouvellement du jeton d’accès...</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Réessayer</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>Connect to Brindlex</source>
        <translation>Connexion à Brindlex</translation>
    </message>
    <message>
        <source>Publish your music with Brindlex</source>
        <translation>Publiez votre musique avec Brindlex</translation>
    </message>
    <message>
        <source>Sign in to send finished songs straight from your project. Your web browser opens for the sign-in.</source>
        <translation>Connectez-vous pour envoyer vos morceaux terminés directement depuis votre projet. Votre navigateur s’ouvre pour la connexion.</translation>
    </message>
    <message>
        <source>&amp;Connect to Brindlex</source>
        <translation>Se &amp;connecter à Brindlex</translation>
    </message>
    <message>
        <source>Brindlex Client</source>
        <translation>Client Brindlex</translation>
    </message>
    <message>
        <source>Signed in as</source>
        <translation>Connecté en tant que</translation>
    </message>
    <message>
        <source>Opens your account page in the web browser</source>
        <translation>Ouvre la page de votre compte dans le navigateur</translation>
    </message>
    <message>
        <source>&amp;DISCONNECT</source>
        <translation>&amp;DÉCONNEXION</translation>
    </message>
    <message>
        <source>Signs out of Brindlex on this computer</source>
        <translation>Déconnecte cet ordinateur de Brindlex</translation>
    </message>
    <message>
        <source>Trac&amp;ks</source>
        <translation>&amp;Pistes</translation>
    </message>
    <message>
        <source>&amp;Singles</source>
        <translation>&amp;Singles</translation>
    </message>
    <message>
        <source>Each track becomes a release of its own</source>
        <translation>Chaque piste devient une sortie à part entière</translation>
    </message>
    <message>
        <source>Al&amp;bum</source>
        <translation>Al&amp;bum</translation>
    </message>
    <message>
        <source>All tracks become one release</source>
        <translation>Toutes les pistes forment une seule sortie</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Pistes</translation>
    </message>
    <message>
        <source>Drop WAV, FLAC or MP3 files here, or choose them with &quot;Add Tracks&quot;.</source>
        <translation>Déposez des fichiers WAV, FLAC ou MP3 ici, ou choisissez-les avec « Ajouter des pistes ».</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>&amp;Add Tracks</source>
        <translation>&amp;Ajouter des pistes</translation>
    </message>
    <message>
        <source>&amp;Remove all</source>
        <translation>&amp;Tout supprimer</translation>
    </message>
    <message>
        <source>No track selected</source>
        <translation>Aucune piste sélectionnée</translation>
    </message>
    <message>
        <source>Song</source>
        <translation>Morceau</translation>
    </message>
    <message>
        <source>S&amp;ong title</source>
        <translation>Titre du m&amp;orceau</translation>
    </message>
    <message>
        <source>Required: the song has no title</source>
        <translation>Obligatoire : le morceau n’a pas de titre</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obligatoire</translation>
    </message>
    <message>
        <source>Song art&amp;ist</source>
        <translation>Art&amp;iste du morceau</translation>
    </message>
    <message>
        <source>Required: the song has no artist</source>
        <translation>Obligatoire : le morceau n’a pas d’artiste</translation>
    </message>
    <message>
        <source>Track &amp;number</source>
        <translation>&amp;Numéro de piste</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Album &amp;title</source>
        <translation>Titre de l’a&amp;lbum</translation>
    </message>
    <message>
        <source>Required: the release has no title</source>
        <translation>Obligatoire : la sortie n’a pas de titre</translation>
    </message>
    <message>
        <source>Albu&amp;m artist</source>
        <translation>Artiste de l’albu&amp;m</translation>
    </message>
    <message>
        <source>Required: the release has no artist</source>
        <translation>Obligatoire : la sortie n’a pas d’artiste</translation>
    </message>
    <message>
        <source>&amp;Genre</source>
        <translation>&amp;Genre</translation>
    </message>
    <message>
        <source>Type to find</source>
        <translation>Tapez pour chercher</translation>
    </message>
    <message>
        <source>Required: the release has no genre</source>
        <translation>Obligatoire : la sortie n’a pas de genre</translation>
    </message>
    <message>
        <source>&amp;Upload</source>
        <translation>&amp;Envoyer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Missing Information</source>
        <translation>Informations manquantes</translation>
    </message>
    <message>
        <source>Preparing Brindlex Upload</source>
        <translation>Préparation de l’envoi vers Brindlex</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Upload to Brindlex</source>
        <translation>Envoyer vers Brindlex</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>Tout recharger</translation>
    </message>
    <message>
        <source>Pub&amp;lish</source>
        <translation>Publie&amp;r</translation>
    </message>
    <message>
        <source>Shows the songs that you publish</source>
        <translation>Affiche les morceaux que vous publiez</translation>
    </message>
    <message>
        <source>Ne&amp;ws</source>
        <translation>Act&amp;ualités</translation>
    </message>
    <message>
        <source>Shows the news of Brindlex</source>
        <translation>Affiche les actualités de Brindlex</translation>
    </message>
    <message>
        <source>Read more</source>
        <translation>Lire la suite</translation>
    </message>
    <message>
        <source>Opens the whole article in the web browser</source>
        <translation>Ouvre l’article entier dans le navigateur Web</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Actualités</translation>
    </message>
    <message>
        <source>Loading the news...</source>
        <translation>Chargement des actualités...</translation>
    </message>
    <message>
        <source>There is no news at the moment.</source>
        <translation>Il n’y a pas d’actualités pour le moment.</translation>
    </message>
    <message>
        <source>The news could not be loaded. Check your internet connection, then try again.</source>
        <translation>Les actualités n’ont pas pu être chargées. Vérifiez votre connexion Internet, puis réessayez.</translation>
    </message>
</context>
</TS>
