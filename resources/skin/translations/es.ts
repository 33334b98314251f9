<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>brindlex</name>
    <message>
        <source>User authorization pending...</source>
        <translation>Esperando la autorización...</translation>
    </message>
    <message>
        <source>Sign in on the page that has opened in your web browser, then come back here. If no page has opened, choose &quot;Retry&quot;.</source>
        <translation>Inicie sesión en la página que se ha abierto en su navegador y vuelva aquí. Si no se ha abierto ninguna página, elija «Reintentar».</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En espera</translation>
    </message>
    <message>
        <source>Getting access token...</source>
        <translation>Obteniendo el token de acceso...</translation>
    </message>
    <message>
        <source>You are now connected to Brindlex.</source>
        <translation>Ya está conectado a Brindlex.</translation>
    </message>
    <message>
        <source>Attempt to connect with Brindlex failed!</source>
        <translation>¡No se ha podido conectar con Brindlex!</translation>
    </message>
    <message>
        <source>Check your internet connection, then choose &quot;Retry&quot;.</source>
        <translation>Compruebe su conexión a Internet y elija «Reintentar».</translation>
    </message>
    <message>
        <source>Refreshing access token...</source>
        <translation>Renovando el token de acceso...</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Connect to Brindlex</source>
        <translation>Conectar con Brindlex</translation>
    </message>
    <message>
        <source>Publish your music with Brindlex</source>
        <translation>Publique su música con Brindlex</translation>
    </message>
    <message>
        <source>Sign in to send finished songs straight from your project. Your web browser opens for the sign-in.</source>
        <translation>Inicie sesión para enviar canciones terminadas directamente desde su proyecto. Se abrirá su navegador.</translation>
    </message>
    <message>
        <source>&amp;Connect to Brindlex</source>
        <translation>&amp;Conectar con Brindlex</translation>
    </message>
    <message>
        <source>Brindlex Client</source>
        <translation>Cliente de Brindlex</translation>
    </message>
    <message>
        <source>Signed in as</source>
        <translation>Sesión iniciada como</translation>
    </message>
    <message>
        <source>Opens your account page in the web browser</source>
        <translation>Abre la página de su cuenta en el navegador</translation>
    </message>
    <message>
        <source>&amp;DISCONNECT</source>
        <translation>&amp;DESCONECTAR</translation>
    </message>
    <message>
        <source>Signs out of Brindlex on this computer</source>
        <translation>Cierra la sesión de Brindlex en este equipo</translation>
    </message>
    <message>
        <source>Trac&amp;ks</source>
        <translation>&amp;Pistas</translation>
    </message>
    <message>
        <source>&amp;Singles</source>
        <translation>&amp;Sencillos</translation>
    </message>
    <message>
        <source>Each track becomes a release of its own</source>
        <translation>Cada pista se publica por separado</translation>
    </message>
    <message>
        <source>Al&amp;bum</source>
        <translation>Ál&amp;bum</translation>
    </message>
    <message>
        <source>All tracks become one release</source>
        <translation>Todas las pistas se publican juntas</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Pistas</translation>
    </message>
    <message>
        <source>Drop WAV, FLAC or MP3 files here, or choose them with &quot;Add Tracks&quot;.</source>
        <translation>Suelte aquí archivos WAV, FLAC o MP3, o elíjalos con «Añadir pistas».</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>&amp;Add Tracks</source>
        <translation>&amp;Añadir pistas</translation>
    </message>
    <message>
        <source>&amp;Remove all</source>
        <translation>&amp;Quitar todo</translation>
    </message>
    <message>
        <source>No track selected</source>
        <translation>Ninguna pista seleccionada</translation>
    </message>
    <message>
        <source>Song</source>
        <translation>Canción</translation>
    </message>
    <message>
        <source>S&amp;ong title</source>
        <translation>Títu&amp;lo de la canción</translation>
    </message>
    <message>
        <source>Required: the song has no title</source>
        <translation>Obligatorio: la canción no tiene título</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obligatorio</translation>
    </message>
    <message>
        <source>Song art&amp;ist</source>
        <translation>Art&amp;ista de la canción</translation>
    </message>
    <message>
        <source>Required: the song has no artist</source>
        <translation>Obligatorio: la canción no tiene artista</translation>
    </message>
    <message>
        <source>Track &amp;number</source>
        <translation>&amp;Número de pista</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Publicación</translation>
    </message>
    <message>
        <source>Album &amp;title</source>
        <translation>&amp;Título del álbum</translation>
    </message>
    <message>
        <source>Required: the release has no title</source>
        <translation>Obligatorio: la publicación no tiene título</translation>
    </message>
    <message>
        <source>Albu&amp;m artist</source>
        <translation>Artista del álbu&amp;m</translation>
    </message>
    <message>
        <source>Required: the release has no artist</source>
        <translation>Obligatorio: la publicación no tiene artista</translation>
    </message>
    <message>
        <source>&amp;Genre</source>
        <translation>&amp;Género</translation>
    </message>
    <message>
        <source>Type to find</source>
        <translation>Escriba para buscar</translation>
    </message>
    <message>
        <source>Required: the release has no genre</source>
        <translation>Obligatorio: la publicación no tiene género</translation>
    </message>
    <message>
        <source>&amp;Upload</source>
        <translation>S&amp;ubir</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Missing Information</source>
        <translation>Faltan datos</translation>
    </message>
    <message>
        <source>Preparing Brindlex Upload</source>
        <translation>Preparando el envío a Brindlex</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Upload to Brindlex</source>
        <translation>Subir a Brindlex</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>Recargar todo</translation>
    </message>
    <message>
        <source>Pub&amp;lish</source>
        <translation>Publica&amp;r</translation>
    </message>
    <message>
        <source>Shows the songs that you publish</source>
        <translation>Muestra las canciones que publica</translation>
    </message>
    <message>
        <source>Ne&amp;ws</source>
        <translation>N&amp;oticias</translation>
    </message>
    <message>
        <source>Shows the news of Brindlex</source>
        <translation>Muestra las noticias de Brindlex</translation>
    </message>
    <message>
        <source>Read more</source>
        <translation>Leer más</translation>
    </message>
    <message>
        <source>Opens the whole article in the web browser</source>
        <translation>Abre el artículo completo en el navegador</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Noticias</translation>
    </message>
    <message>
        <source>Loading the news...</source>
        <translation>Cargando las noticias...</translation>
    </message>
    <message>
        <source>There is no news at the moment.</source>
        <translation>No hay noticias en este momento.</translation>
    </message>
    <message>
        <source>The news could not be loaded. Check your internet connection, then try again.</source>
        <translation>No se han podido cargar las noticias. Compruebe su conexión a Internet y vuelva a intentarlo.</translation>
    </message>
</context>
</TS>
