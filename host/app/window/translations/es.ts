<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>xbr::host::AboutDialog</name>
    <message>
        <source>About xbrhost</source>
        <translation>Acerca de xbrhost</translation>
    </message>
    <message>
        <source>Publishes finished songs through the modules of a workstation.</source>
        <translation>Publica canciones terminadas mediante los módulos de una estación de audio.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>Co&amp;piar</translation>
    </message>
    <message>
        <source>Copy the versions</source>
        <translation>Copiar las versiones</translation>
    </message>
</context>
<context>
    <name>xbr::host::DockTitle</name>
    <message>
        <source>Float or dock</source>
        <translation>Separar o acoplar</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
</context>
<context>
    <name>xbr::host::EmptyState</name>
    <message>
        <source>&amp;Add Songs…</source>
        <translation>&amp;Añadir canciones…</translation>
    </message>
    <message>
        <source>Drop your finished songs here</source>
        <translation>Suelte aquí sus canciones terminadas</translation>
    </message>
    <message>
        <source>WAV, AIFF, FLAC, MP3 or Ogg, one by one or a whole folder</source>
        <translation>WAV, AIFF, FLAC, MP3 u Ogg, una a una o una carpeta entera</translation>
    </message>
</context>
<context>
    <name>xbr::host::FileSelector</name>
    <message>
        <source>All usable files</source>
        <translation>Todos los archivos utilizables</translation>
    </message>
    <message>
        <source>Choose Files</source>
        <translation>Elegir archivos</translation>
    </message>
</context>
<context>
    <name>xbr::host::GadgetDock</name>
    <message>
        <source>The form of this panel cannot be shown.</source>
        <translation>No se puede mostrar el formulario de este panel.</translation>
    </message>
</context>
<context>
    <name>xbr::host::Header</name>
    <message>
        <source>Songs</source>
        <translation>Canciones</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Ninguna todavía</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s)</source>
        <translation>
            <numerusform>%n canción</numerusform>
            <numerusform>%n canciones</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::MainWindow</name>
    <message>
        <source>Songs – xbrhost</source>
        <translation>Canciones – xbrhost</translation>
    </message>
    <message>
        <source>Add Songs</source>
        <translation>Añadir canciones</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Publish the selected songs, or all</source>
        <translation>Publicar las canciones seleccionadas, o todas</translation>
    </message>
    <message>
        <source>Some songs are still being read; try again in a moment.</source>
        <translation>Algunas canciones aún se están leyendo; inténtelo de nuevo en un momento.</translation>
    </message>
    <message>
        <source>Add songs first.</source>
        <translation>Añada primero canciones.</translation>
    </message>
    <message>
        <source>Wait until the upload that runs has ended.</source>
        <translation>Espere a que termine la subida en curso.</translation>
    </message>
    <message>
        <source>Stop the Upload?</source>
        <translation>¿Detener la subida?</translation>
    </message>
    <message>
        <source>An upload is running.</source>
        <translation>Hay una subida en curso.</translation>
    </message>
    <message>
        <source>When you quit now, it is stopped; songs that have not arrived are not published.</source>
        <translation>Si sale ahora, se detiene; las canciones que no hayan llegado no se publican.</translation>
    </message>
    <message>
        <source>&amp;Stop and Quit</source>
        <translation>&amp;Detener y salir</translation>
    </message>
    <message>
        <source>&amp;Keep Uploading</source>
        <translation>&amp;Seguir subiendo</translation>
    </message>
</context>
<context>
    <name>xbr::host::ProgressSheet</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Working on</source>
        <translation>Trabajando en</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Deteniendo…</translation>
    </message>
</context>
<context>
    <name>xbr::host::Publishing</name>
    <message>
        <source>“%1” cannot be read.</source>
        <translation>No se puede leer «%1».</translation>
    </message>
    <message>
        <source>“%1” is of a kind that cannot be published.</source>
        <translation>«%1» es de un tipo que no se puede publicar.</translation>
    </message>
    <message>
        <source>Rendering was cancelled; nothing was handed over.</source>
        <translation>Se canceló el renderizado; no se entregó nada.</translation>
    </message>
    <message>
        <source>“%1” cannot be used.</source>
        <translation>No se puede usar «%1».</translation>
    </message>
    <message>
        <source>“%1” does not take the songs.</source>
        <translation>«%1» no acepta las canciones.</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) handed over. Complete the information, then upload.</source>
        <translation>
            <numerusform>%n canción entregada. Complete la información y suba.</numerusform>
            <numerusform>%n canciones entregadas. Complete la información y suba.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::ServiceWatch</name>
    <message>
        <source>Disconnected.</source>
        <translation>Desconectado.</translation>
    </message>
    <message>
        <source>Continue in your web browser: allow the access there.</source>
        <translation>Continúe en su navegador web: permita allí el acceso.</translation>
    </message>
    <message>
        <source>Signing in…</source>
        <translation>Iniciando sesión…</translation>
    </message>
    <message>
        <source>Connected.</source>
        <translation>Conectado.</translation>
    </message>
    <message>
        <source>Uploading “%1”: %2 %</source>
        <translation>Subiendo «%1»: %2 %</translation>
    </message>
    <message>
        <source>Your sign-in has expired or was withdrawn. Disconnect, then connect again.</source>
        <translation>Su sesión ha caducado o fue revocada. Desconéctese y vuelva a conectarse.</translation>
    </message>
    <message>
        <source>Connected as %1.</source>
        <translation>Conectado como %1.</translation>
    </message>
    <message>
        <source>The service did not accept the sign-in. Try to connect again.</source>
        <translation>El servicio no aceptó el inicio de sesión. Intente conectarse de nuevo.</translation>
    </message>
    <message>
        <source>Not connected yet: the browser has not come back with a permission.</source>
        <translation>Aún sin conexión: el navegador no ha traído ningún permiso.</translation>
    </message>
    <message>
        <source>The upload was cancelled before anything was sent.</source>
        <translation>La subida se canceló antes de enviar nada.</translation>
    </message>
    <message numerus="yes">
        <source>Published: %n song(s).</source>
        <translation>
            <numerusform>Publicada: %n canción.</numerusform>
            <numerusform>Publicadas: %n canciones.</numerusform>
        </translation>
    </message>
    <message>
        <source>The service needs more information: fill in the marked fields, then upload again.</source>
        <translation>El servicio necesita más información: rellene los campos marcados y vuelva a subir.</translation>
    </message>
    <message>
        <source>Nothing was sent: the upload could not be prepared.</source>
        <translation>No se envió nada: no se pudo preparar la subida.</translation>
    </message>
    <message>
        <source>Nothing was sent: %1</source>
        <translation>No se envió nada: %1</translation>
    </message>
    <message numerus="yes">
        <source>The service did not take %n song(s). Try again later.</source>
        <translation>
            <numerusform>El servicio no aceptó %n canción. Inténtelo más tarde.</numerusform>
            <numerusform>El servicio no aceptó %n canciones. Inténtelo más tarde.</numerusform>
        </translation>
    </message>
    <message>
        <source>Uploading…</source>
        <translation>Subiendo…</translation>
    </message>
    <message>
        <source>The browser came back without a permission. Allow the access there, or cancel here.</source>
        <translation>El navegador volvió sin permiso. Permita allí el acceso o cancele aquí.</translation>
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
        <translation>No es un audio que se pueda leer.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>No se puede leer el archivo.</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Archivos de audio</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongListModel</name>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>Artista del álbum</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Género</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>Número de pista</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongView</name>
    <message>
        <source>Songs</source>
        <translation>Canciones</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
</context>
<context>
    <name>xbr::host::StatusLine</name>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>Listo.</translation>
    </message>
</context>
<context>
    <name>xbr::host::WindowActions</name>
    <message>
        <source>Menus</source>
        <translation>Menús</translation>
    </message>
    <message>
        <source>&amp;Publish</source>
        <translation>&amp;Publicar</translation>
    </message>
    <message>
        <source>&amp;About xbrhost</source>
        <translation>&amp;Acerca de xbrhost</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Add Songs…</source>
        <translation>&amp;Añadir canciones…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add songs (%1)</source>
        <translation>Añadir canciones (%1)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit Cell</source>
        <translation>&amp;Editar celda</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove the selected songs from the list; the files stay</source>
        <translation>Quitar de la lista las canciones seleccionadas; los archivos se conservan</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>S&amp;ubir</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Next Area</source>
        <translation>Área &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Apariencia</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>&amp;Restablecer disposición</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Como el &amp;escritorio</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>Da&amp;rk</source>
        <translation>&amp;Oscuro</translation>
    </message>
</context>
<context>
    <name>xbr::host::WindowFront</name>
    <message>
        <source>%1, border %2.%3</source>
        <translation>%1, interfaz %2.%3</translation>
    </message>
    <message>
        <source>Songs cannot be published: %1</source>
        <translation>No se pueden publicar canciones: %1</translation>
    </message>
    <message>
        <source>Songs cannot be published: no module was found.</source>
        <translation>No se pueden publicar canciones: no se encontró ningún módulo.</translation>
    </message>
    <message>
        <source>The browser&apos;s answer to a sign-in cannot be received: %1</source>
        <translation>No se puede recibir la respuesta del navegador al iniciar sesión: %1</translation>
    </message>
</context>
<context>
    <name>xbr::host::Wording</name>
    <message>
        <source>The settings of %1 cannot be read from “%2”.</source>
        <translation>No se pueden leer los ajustes de %1 en «%2».</translation>
    </message>
    <message>
        <source>%1 is not set up yet. Put %2 into “%3”, section [%4], one “key = value” a line.</source>
        <translation>%1 aún no está configurado. Ponga %2 en «%3», sección [%4], un «clave = valor» por línea.</translation>
    </message>
    <message>
        <source>%1 is not set up properly. Correct %2 in “%3”, section [%4].</source>
        <translation>%1 no está bien configurado. Corrija %2 en «%3», sección [%4].</translation>
    </message>
</context>
</TS>
